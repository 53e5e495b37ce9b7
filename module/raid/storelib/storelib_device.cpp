#include "module/raid/storelib/storelib_device.h"

#include <hostkit.h>

#include <string>
#include <utility>

#include "module/raid/family/driver_version.h"
#include "module/raid/family/pass_through.h"
#include "module/raid/storelib/storelib_bridges.h"
#include "module/raid/storelib/storelib_names.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"

namespace orvik::module::raid {

namespace {

using storage::Status;
using utils::ByteView;

namespace status = storage::status;

constexpr std::uint64_t kBlockSize = 512;

DriveProtocol ProtocolOf(std::uint8_t interfaceByte) {
  using namespace lsi::physical_drive_information;
  switch (interfaceByte) {
    case kParallelScsi:
    case kSas: return DriveProtocol::Scsi;
    case kSata: return DriveProtocol::Ata;
    default: return DriveProtocol::Unknown;
  }
}

/// Both texts without their blanks, joined by a hyphen.
std::string UdiOf(const ControllerInfo& info) {
  std::string udi;
  get_string_handler()->RemoveBlanks(info.model, udi);
  udi += '-';
  get_string_handler()->RemoveBlanks(info.serial, udi);
  return udi;
}

}  // namespace

LsiDevice::LsiDevice(std::uint32_t id, std::shared_ptr<LsiSender> librarySender)
    : sender_(std::move(librarySender)), controllerId_(id) {
  identifier_ = std::to_string(id);
}

Status LsiDevice::Send(LsiCommand& command) const {
  return sender_->SendCommand(command) == 0 ? status::kSuccess : status::kFailure;
}

std::uint32_t LsiDevice::GetControllerInfo(ControllerInfo& info) {
  LsiCommand information = ControllerCommand(lsi::code::kControllerInformation, controllerId_);
  if (const Status sent = Send(information); !sent.Ok()) return sent.Code();
  using namespace lsi::controller_information;
  const ByteView block = information.Data();
  info.model = block.ZeroTerminatedText(kProductName);
  info.serial = block.ZeroTerminatedText(kSerialNumber);
  info.bbuSupported = (block.Get(kAdapterOperations) & kBatterySupported) != 0;
  AppendRaidLevelNames(block.Get(kRaidLevels), info.supportedRaidLevels);
  AppendInterfaceNames(block.Get(kDriveInterfaces), info.supportedInterfaces);

  LsiCommand list = ControllerCommand(lsi::code::kLogicalDriveList, controllerId_);
  if (Send(list).Ok()) info.logicalDriveCount = list.Data().Get(lsi::logical_drive_list::kCount);
  if (std::string version; ReadDriverVersion(version).Ok()) info.driverVersion = std::move(version);
  info.udi = UdiOf(info);
  return status::kSuccess.Code();
}

std::uint32_t LsiDevice::GetLogicalDrives(std::vector<LogicalDrive>& drives) {
  drives.clear();
  LsiCommand list = ControllerCommand(lsi::code::kLogicalDriveList, controllerId_);
  if (const Status sent = Send(list); !sent.Ok()) return sent.Code();
  using namespace lsi::logical_drive_list;
  for (const ByteView entry : list.Data().Entries(kEntries, list.Data().Get(kCount))) {
    LogicalDrive drive;
    if (DescribeLogicalDrive(entry.Get(kEntryTargetId), entry.Get(kEntrySequenceNumber), drive)) {
      drives.push_back(std::move(drive));
    }
  }
  return status::kSuccess.Code();
}

bool LsiDevice::DescribeLogicalDrive(std::uint8_t targetId, std::uint16_t sequenceNumber, LogicalDrive& drive) const {
  LsiCommand members = LogicalDriveCommand(lsi::code::kMemberList, controllerId_, targetId);
  if (!Send(members).Ok()) return false;
  LsiCommand information =
      LogicalDriveCommand(lsi::code::kLogicalDriveInformation, controllerId_, targetId, sequenceNumber);
  if (!Send(information).Ok()) return false;

  using namespace lsi::logical_drive_information;
  const ByteView block = information.Data();
  drive.memberCount = members.Data().Get(lsi::member_list::kCount);
  drive.raidLevel = RaidLevelName(block.Get(kPrimaryLevel), block.Get(kSecondaryLevel));
  drive.sizeBytes = block.Get(kSizeInBlocks) * kBlockSize;
  drive.vendorData.assign(block.Bytes().begin(), block.Bytes().end());
  drive.sequenceNumber = block.Get(kSequenceNumber);
  drive.name = std::to_string(targetId);
  return true;
}

std::uint32_t LsiDevice::GetPhysicalDrives(std::vector<PhysicalDrive>& drives) {
  drives.clear();
  LsiCommand list = ControllerCommand(lsi::code::kPhysicalDriveList, controllerId_);
  Status result = Send(list);
  if (!result.Ok()) return result.Code();
  using namespace lsi::physical_drive_list;
  const auto entries = list.Data().Entries(kEntries, list.Data().Get(kCount));
  drives.reserve(entries.size());
  for (const ByteView entry : entries) {
    if (entry.Get(kEntryDeviceType) != kDirectAccessDevice) continue;
    PhysicalDrive drive;
    result = DescribePhysicalDrive(entry.Get(kEntryDeviceId), drive);
    if (result.Ok()) drives.push_back(std::move(drive));
  }
  return result.Code();
}

Status LsiDevice::DescribePhysicalDrive(std::uint16_t deviceId, PhysicalDrive& drive) const {
  LsiCommand information = DriveCommand(lsi::code::kPhysicalDriveInformation, controllerId_, deviceId);
  if (const Status sent = Send(information); !sent.Ok()) return sent;
  using namespace lsi::physical_drive_information;
  const ByteView block = information.Data();
  drive.protocol = ProtocolOf(block.Get(kInterface));
  drive.manufacturer = block.Text(kVendor);
  drive.model = block.Text(kProduct);
  drive.sizeBytes = block.Get(kSizeInBlocks) * kBlockSize;
  drive.deviceId = deviceId;
  return status::kSuccess;
}

Status LsiDevice::GetBatteryStatus(BatteryStatus& battery) {
  LsiCommand command = ControllerCommand(lsi::code::kBatteryStatus, controllerId_);
  if (const Status sent = Send(command); !sent.Ok()) return sent;
  using namespace lsi::battery_status;
  const std::uint16_t bits = command.Data().Get(kStatus);
  battery.notPresent = command.Data().Get(kType) == kNoBattery;
  battery.packMissing = (bits & kPackMissing) != 0;
  battery.lowVoltage = (bits & kVoltageLow) != 0;
  battery.temperatureHigh = (bits & kTemperatureHigh) != 0;
  return status::kSuccess;
}

Status LsiDevice::GetEnclosures(std::vector<EnclosureInfo>& enclosures) {
  LsiCommand list = ControllerCommand(lsi::code::kEnclosureList, controllerId_);
  if (const Status sent = Send(list); !sent.Ok()) return sent;
  using namespace lsi::enclosure_list;
  for (const ByteView entry : list.Data().Entries(kEntries, list.Data().Get(kCount))) {
    enclosures.push_back({.enclosureId = entry.Get(kEntryEnclosureId), .faulty = entry.Get(kEntryFault) != 0});
  }
  return status::kSuccess;
}

Status LsiDevice::StartConsistencyCheck(std::uint8_t targetId, std::uint16_t sequenceNumber) {
  LsiCommand command = LogicalDriveCommand(lsi::code::kStartCheck, controllerId_, targetId, sequenceNumber);
  return Send(command);
}

Status LsiDevice::GetConsistencyCheckProgress(std::uint8_t targetId, bool& running, double& percent) {
  LsiCommand command = LogicalDriveCommand(lsi::code::kCheckProgress, controllerId_, targetId);
  if (const Status sent = Send(command); !sent.Ok()) return sent;
  using namespace lsi::check_progress;
  running = (command.Data().Get(kFlags) & kRunning) != 0;
  const std::uint16_t progress = command.Data().Get(kProgress);
  if (progress != 0) percent = progress * 100.0 / kComplete;
  return status::kSuccess;
}

Status LsiDevice::CancelConsistencyCheck(std::uint8_t targetId, std::uint16_t sequenceNumber) {
  LsiCommand command = LogicalDriveCommand(lsi::code::kCancelCheck, controllerId_, targetId, sequenceNumber);
  return Send(command);
}

Status LsiDevice::GetConsistencyCheckResult(std::uint8_t targetId, std::uint16_t sequenceNumber, bool& consistent) {
  LsiCommand command =
      LogicalDriveCommand(lsi::code::kLogicalDriveInformation, controllerId_, targetId, sequenceNumber);
  if (const Status sent = Send(command); !sent.Ok()) return sent;
  using namespace lsi::logical_drive_information;
  consistent = command.Data().Get(kConsistent) == kIsConsistent;
  return status::kSuccess;
}

std::uint32_t LsiDevice::GetStorageDevices(std::vector<StorageDeviceEntry>& devices) {
  std::vector<PhysicalDrive> drives;
  if (const Status listed{GetPhysicalDrives(drives)}; !listed.Ok()) return listed.Code();
  for (const PhysicalDrive& drive : drives) devices.push_back(ReachDrive(drive));
  return status::kSuccess.Code();
}

StorageDeviceEntry LsiDevice::ReachDrive(const PhysicalDrive& drive) const {
  StorageDeviceEntry entry;
  entry.id = "r-" + std::to_string(drive.deviceId);
  entry.protocol = drive.protocol;
  entry.protocolObject = MakeProtocol<storage::ScsiProtocol>(
      storage::interface_kind::kScsi, std::make_shared<LsiSspBridge>(controllerId_, drive.deviceId, sender_));
  // The controller accepts SCSI for a SATA drive too; the probe shows whether the drive is one.
  auto bridge =
      std::make_shared<LsiStpBridge>(controllerId_, static_cast<std::uint8_t>(drive.deviceId & 0xFF), sender_);
  if (storage::ProbeBridge(*bridge)) {
    entry.ataProtocolObject = MakeProtocol<storage::AtaProtocol>(storage::interface_kind::kAta, std::move(bridge));
  }
  return entry;
}

}  // namespace orvik::module::raid
