#include "module/raid/csmi/csmi_device.h"

#include <hostkit.h>

#include <algorithm>
#include <utility>

#include "module/raid/csmi/drive_descriptions.h"
#include "module/raid/family/driver_version.h"

namespace orvik::module::raid {

namespace {

using storage::Status;

// Limits a controller that never answers "out of range".
constexpr std::uint32_t kMaximumRaidSets = 256;

}  // namespace

CsmiDevice::CsmiDevice(CsmiAdapter adapter)
    : port_(std::make_shared<const utils::UniqueHandle>(std::move(adapter.handle))) {
  controllerInfo_.model = std::move(adapter.description);
  identifier_ = std::move(adapter.pciDeviceId);
}

std::uint32_t CsmiDevice::GetControllerInfo(ControllerInfo& info) {
  ControllerConfigurationPacket configuration;
  if (const Status sent = ExchangeCsmiPacket(port_->Get(), configuration); !sent.Ok()) return sent.Code();
  RaidInformationPacket raidInformation;
  if (const Status sent = ExchangeCsmiPacket(port_->Get(), raidInformation); !sent.Ok()) return sent.Code();
  info.logicalDriveCount = raidInformation.NumRaidSets();

  // A scan identifies the drives twice, on purpose: here their result decides whether the controller is reported as
  // described, and `BuildProperties` asks again for the records.
  std::vector<PhysicalDrive> drives;
  const std::uint32_t result = GetPhysicalDrives(drives);

  if (&info != &controllerInfo_) info.model = controllerInfo_.model;
  std::string text;
  get_string_handler()->RemoveBlanks(info.model + "-" + identifier_, text);
  info.udi = std::move(text);
  if (std::string version; ReadDriverVersion(version).Ok()) info.driverVersion = std::move(version);
  return result;
}

Status CsmiDevice::VisitRaidSets(const RaidInformationPacket& information, const SetVisitor& visit) {
  const std::uint32_t count = std::min(information.NumRaidSets(), kMaximumRaidSets);
  for (std::uint32_t index = 0; index < count; ++index) {
    RaidConfigurationPacket set(index, information.MaxDrivesPerSet());
    if (const Status sent = SendCsmiPacket(port_->Get(), set); !sent.Ok()) return sent;
    if (set.ReturnCode() == csmi::kRaidSetOutOfRange) break;
    if (set.ReturnCode() != 0) return storage::status::kCsmiReturnCode;
    visit(index, set);
  }
  return storage::status::kSuccess;
}

std::uint32_t CsmiDevice::GetLogicalDrives(std::vector<LogicalDrive>& drives) {
  RaidInformationPacket information;
  if (const Status sent = ExchangeCsmiPacket(port_->Get(), information); !sent.Ok()) return sent.Code();
  return VisitRaidSets(information,
                       [&drives](std::uint32_t index, const RaidConfigurationPacket& set) {
                         drives.push_back(DescribeRaidSet(index, set));
                       })
      .Code();
}

std::uint32_t CsmiDevice::GetPhysicalDrives(std::vector<PhysicalDrive>& drives) {
  PhyInformationPacket information;
  if (const Status sent = ExchangeCsmiPacket(port_->Get(), information); !sent.Ok()) return sent.Code();
  for (const utils::ByteView entry : information.PhysWithDrives()) {
    PhysicalDrive drive;
    const Status identified = IsSasDrive(entry) ? IdentifySasDrive(port_->Get(), entry, drive)
                                                : IdentifySataDrive(port_->Get(), entry, drive);
    if (identified.Ok()) drives.push_back(std::move(drive));
  }
  AddNvmeMembers(drives);
  return storage::status::kSuccess.Code();
}

void CsmiDevice::AddNvmeMembers(std::vector<PhysicalDrive>& drives) {
  // The ReturnCode is not examined: the count is used as returned.
  RaidInformationPacket information;
  if (!SendCsmiPacket(port_->Get(), information).Ok()) return;
  // Members found before a failure are kept.
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

Status CsmiDevice::GetControllerStatus(std::uint32_t& status, std::uint32_t& offlineReason) {
  ControllerStatusPacket packet;
  if (const Status sent = ExchangeCsmiPacket(port_->Get(), packet); !sent.Ok()) return sent;
  status = packet.View().Get(csmi::controller_status::kStatus);
  offlineReason = packet.View().Get(csmi::controller_status::kOfflineReason);
  return storage::status::kSuccess;
}

}  // namespace orvik::module::raid
