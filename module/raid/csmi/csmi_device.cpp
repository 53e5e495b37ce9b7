#include "module/raid/csmi/csmi_device.h"

#include <hostkit.h>

#include <algorithm>
#include <utility>

#include "module/raid/csmi/drive_identification.h"
#include "module/raid/csmi/raid_set.h"
#include "module/raid/family/driver_version.h"
#include "utils/windows/unique_handle.h"

namespace orvik::module::raid {

namespace {

namespace status = storage::status;

// A controller that never answers "out of range" must not keep a scan for ever.
constexpr std::uint32_t kMaximumRaidSets = 256;

}  // namespace

CsmiDevice::CsmiDevice(CsmiAdapter adapter)
    : Device(utils::HandleNumber(adapter.handle.Get())), port_(std::move(adapter.handle)) {
  controllerInfo.model = std::move(adapter.description);
  identifier = std::move(adapter.pciDeviceId);
}

std::uint32_t CsmiDevice::GetControllerInfo(ControllerInfo& info) {
  ControllerConfigurationPacket configuration;
  if (const auto sent = ExchangeCsmiPacket(port_.Get(), configuration); sent != status::kSuccess) return sent;
  RaidInformationPacket raidInformation;
  if (const auto sent = ExchangeCsmiPacket(port_.Get(), raidInformation); sent != status::kSuccess) return sent;
  info.logicalDriveCount = raidInformation.NumRaidSets();

  std::vector<PhysicalDrive> drives;
  const storage::Status result = GetPhysicalDrives(drives);

  if (&info != &controllerInfo) info.model = controllerInfo.model;
  std::string text;
  get_string_handler()->RemoveBlanks(info.model + "-" + identifier, text);
  info.udi = std::move(text);
  if (std::string version; ReadDriverVersion(version) == status::kSuccess) info.driverVersion = std::move(version);
  return result;
}

storage::Status CsmiDevice::VisitRaidSets(const RaidInformationPacket& information, const SetVisitor& visit) {
  const std::uint32_t count = std::min(information.NumRaidSets(), kMaximumRaidSets);
  for (std::uint32_t index = 0; index < count; ++index) {
    RaidConfigurationPacket set(index, information.MaxDrivesPerSet());
    const storage::Status sent = SendCsmiPacket(port_.Get(), set);
    if (sent != status::kSuccess) return sent;
    if (set.ReturnCode() == csmi::kRaidSetOutOfRange) break;
    if (set.ReturnCode() != 0) return status::kCsmiReturnCode;
    visit(index, set);
  }
  return status::kSuccess;
}

std::uint32_t CsmiDevice::GetLogicalDrives(std::vector<LogicalDrive>& drives) {
  RaidInformationPacket information;
  if (const auto sent = ExchangeCsmiPacket(port_.Get(), information); sent != status::kSuccess) return sent;
  return VisitRaidSets(information, [&drives](std::uint32_t index, const RaidConfigurationPacket& set) {
    drives.push_back(DescribeRaidSet(index, set));
  });
}

std::uint32_t CsmiDevice::GetPhysicalDrives(std::vector<PhysicalDrive>& drives) {
  PhyInformationPacket information;
  if (const auto sent = ExchangeCsmiPacket(port_.Get(), information); sent != status::kSuccess) return sent;
  for (const utils::ByteView entry : information.Phys()) {
    const std::uint8_t target = entry.Get(csmi::phy::kAttachedTargetProtocol);
    if (entry.Get(csmi::phy::kAttachedDeviceType) != csmi::phy::kEndDevice || target == csmi::phy::kTargetSmp)
      continue;
    PhysicalDrive drive;
    const storage::Status identified = target == csmi::phy::kTargetSsp ? IdentifySasDrive(port_.Get(), entry, drive)
                                                                       : IdentifySataDrive(port_.Get(), entry, drive);
    if (identified == status::kSuccess) drives.push_back(std::move(drive));
  }
  AddNvmeMembers(drives);
  return status::kSuccess;
}

void CsmiDevice::AddNvmeMembers(std::vector<PhysicalDrive>& drives) {
  // The count is taken as it came back, whatever the ReturnCode; members found before a failure are kept.
  RaidInformationPacket information;
  if (SendCsmiPacket(port_.Get(), information) != status::kSuccess) return;
  storage::Ignore(VisitRaidSets(information, [&drives](std::uint32_t, const RaidConfigurationPacket& set) {
    for (const utils::ByteView entry : set.Drives()) {
      if (!IsNvmeMember(entry)) continue;
      PhysicalDrive drive;
      drive.protocol = DriveProtocol::Nvme;
      drive.serial = entry.Text(csmi::raid_drive::kSerialNumber);
      drives.push_back(std::move(drive));
    }
  }));
}

storage::Status CsmiDevice::GetControllerStatus(std::uint32_t& status, std::uint32_t& offlineReason) {
  ControllerStatusPacket packet;
  const storage::Status sent = ExchangeCsmiPacket(port_.Get(), packet);
  if (sent != status::kSuccess) return sent;
  status = packet.View().Get(csmi::controller_status::kStatus);
  offlineReason = packet.View().Get(csmi::controller_status::kOfflineReason);
  return sent;
}

}  // namespace orvik::module::raid
