#include "simulation/storelib/storelib_controller.h"

#include <algorithm>
#include <utility>

namespace orvik::simulation {

namespace {

std::uint16_t StatusBits(const StorelibBatteryDescription& battery) {
  unsigned bits = 0;
  if (battery.packMissing) bits |= battery_status::kPackMissing;
  if (battery.lowVoltage) bits |= battery_status::kLowVoltage;
  if (battery.temperatureHigh) bits |= battery_status::kTemperatureHigh;
  return static_cast<std::uint16_t>(bits);
}

}  // namespace

StorelibController::StorelibController(StorelibControllerDescription description,
                                       const std::shared_ptr<const Clock>& clock)
    : description_(std::move(description)) {
  for (const StorelibPhysicalDriveDescription& drive : description_.drives) drives_.emplace_back(drive, clock);
  for (const StorelibLogicalDriveDescription& drive : description_.logicalDrives) {
    logicalDrives_.push_back({drive, ConsistencyCheck(drive.check, drive.consistent, clock)});
  }
}

const StorelibDrive* StorelibController::FindDrive(std::uint16_t deviceId) const {
  const auto found = std::ranges::find(drives_, deviceId, &StorelibDrive::DeviceId);
  return found == drives_.end() ? nullptr : &*found;
}

StorelibController::LogicalDrive* StorelibController::FindLogicalDrive(std::uint8_t targetId) {
  const auto found = std::ranges::find(logicalDrives_, targetId,
                                       [](const LogicalDrive& drive) { return drive.description.targetId; });
  return found == logicalDrives_.end() ? nullptr : &*found;
}

// No lock: these read constant data only, and a drive executes one command at a time.
// NOLINTBEGIN(readability-make-member-function-const): commands have one signature

StorelibStatus StorelibController::Information(const StorelibRequest& request) {
  const auto block = request.CleanData();
  Set(block, controller_info::kInterfaces, description_.interfaces);
  SetText(block, controller_info::kProduct, description_.product, '\0');
  SetText(block, controller_info::kSerial, description_.serial, '\0');
  Set(block, controller_info::kRaidLevels, description_.raidLevels);
  Set(block, controller_info::kAdapterOperations,
      description_.batterySupported ? controller_info::kBatteryUnit : std::uint32_t{0});
  return StorelibStatus::Success;
}

StorelibStatus StorelibController::PhysicalDriveList(const StorelibRequest& request) {
  using namespace physical_drive_list;
  const std::size_t size = kHeaderSize + kEntrySize * drives_.size();
  if (request.data.size() < size) return StorelibStatus::BlockTooSmall;
  const auto block = request.CleanData();
  Set(block, kSizeUsed, static_cast<std::uint32_t>(size));
  Set(block, kCount, static_cast<std::uint32_t>(drives_.size()));
  for (std::size_t i = 0; i < drives_.size(); ++i) {
    const auto entry = Inside(block, Entry(i));
    Set(entry, kDeviceId, drives_[i].DeviceId());
    Set(entry, kScsiDeviceType, drives_[i].ScsiDeviceType());
  }
  return StorelibStatus::Success;
}

StorelibStatus StorelibController::PhysicalDriveInformation(const StorelibRequest& request) {
  const StorelibDrive* drive = FindDrive(request.DeviceId());
  if (drive == nullptr) return StorelibStatus::NoSuchDevice;
  drive->FillInformation(request.CleanData());
  return StorelibStatus::Success;
}

StorelibStatus StorelibController::ScsiPassThrough(const StorelibRequest& request) {
  const StorelibDrive* drive = FindDrive(request.DeviceId());
  return drive == nullptr ? StorelibStatus::NoSuchDevice : drive->ScsiPassThrough(request);
}

StorelibStatus StorelibController::SataPassThrough(const StorelibRequest& request) {
  const StorelibDrive* drive = FindDrive(request.DeviceId());
  return drive == nullptr ? StorelibStatus::NoSuchDevice : drive->SataPassThrough(request);
}

// NOLINTEND(readability-make-member-function-const)

StorelibStatus StorelibController::EnclosureList(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  const auto& enclosures = description_.enclosures;
  const auto block = request.CleanData();
  Set(block, enclosure_list::kCount, static_cast<std::uint32_t>(enclosures.size()));
  for (std::size_t i = 0; i < enclosures.size(); ++i) {
    const auto entry = Inside(block, enclosure_list::Entry(i));
    Set(entry, enclosure_list::kEnclosureId, enclosures[i].enclosureId);
    Set(entry, enclosure_list::kFault, enclosures[i].faultByte);
  }
  return StorelibStatus::Success;
}

StorelibStatus StorelibController::LogicalDriveList(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  const auto block = request.CleanData();
  Set(block, logical_drive_list::kCount, static_cast<std::uint32_t>(logicalDrives_.size()));
  for (std::size_t i = 0; i < logicalDrives_.size(); ++i) {
    const auto entry = Inside(block, logical_drive_list::Entry(i));
    Set(entry, logical_drive_list::kTargetId, logicalDrives_[i].description.targetId);
    Set(entry, logical_drive_list::kSequenceNumber, logicalDrives_[i].description.sequenceNumber);
  }
  return StorelibStatus::Success;
}

StorelibStatus StorelibController::BatteryStatus(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  const auto block = request.CleanData();
  Set(block, battery_status::kType, description_.battery.type);
  Set(block, battery_status::kStatus, StatusBits(description_.battery));
  return StorelibStatus::Success;
}

StorelibStatus StorelibController::LogicalDriveInformation(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  LogicalDrive* drive = FindLogicalDrive(request.TargetId());
  if (drive == nullptr) return StorelibStatus::NoSuchDevice;
  const auto block = request.CleanData();
  const StorelibLogicalDriveDescription& description = drive->description;
  Set(block, logical_drive_info::kTargetId, description.targetId);
  Set(block, logical_drive_info::kSequenceNumber, description.sequenceNumber);
  Set(block, logical_drive_info::kPrimaryLevel, description.primaryLevel);
  Set(block, logical_drive_info::kSecondaryLevel, description.secondaryLevel);
  Set(block, logical_drive_info::kState, static_cast<std::uint8_t>(description.state));
  Set(block, logical_drive_info::kConsistent, drive->check.Consistent() ? 1 : 0);
  Set(block, logical_drive_info::kBlocks, description.blocks);
  return StorelibStatus::Success;
}

StorelibStatus StorelibController::MemberList(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  const LogicalDrive* drive = FindLogicalDrive(request.TargetId());
  if (drive == nullptr) return StorelibStatus::NoSuchDevice;
  const auto block = request.CleanData();
  const auto& members = drive->description.members;
  Set(block, member_list::kCount, static_cast<std::uint32_t>(members.size()));
  for (std::size_t i = 0; i < members.size(); ++i) Set(block, member_list::DeviceId(i), members[i]);
  return StorelibStatus::Success;
}

StorelibController::LogicalDrive* StorelibController::FindForCheck(const StorelibRequest& request,
                                                                   StorelibStatus& refusal) {
  refusal = StorelibStatus::NoSuchDevice;
  LogicalDrive* drive = FindLogicalDrive(request.TargetId());
  if (drive == nullptr || drive->description.sequenceNumber == request.SequenceNumber()) return drive;
  refusal = StorelibStatus::WrongSequenceNumber;
  return nullptr;
}

StorelibStatus StorelibController::StartCheck(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  StorelibStatus refusal{};
  LogicalDrive* drive = FindForCheck(request, refusal);
  if (drive == nullptr) return refusal;
  if (const auto status = drive->description.check.startStatus; status != 0) return StorelibStatus{status};
  return drive->check.Start() ? StorelibStatus::Success : StorelibStatus::CheckAlreadyRunning;
}

StorelibStatus StorelibController::CancelCheck(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  StorelibStatus refusal{};
  LogicalDrive* drive = FindForCheck(request, refusal);
  if (drive == nullptr) return refusal;
  return drive->check.Cancel() ? StorelibStatus::Success : StorelibStatus::NoCheckRunning;
}

StorelibStatus StorelibController::CheckProgress(const StorelibRequest& request) {
  const std::scoped_lock lock(mutex_);
  LogicalDrive* drive = FindLogicalDrive(request.TargetId());
  if (drive == nullptr) return StorelibStatus::NoSuchDevice;
  const auto progress = drive->check.Progress();
  const auto block = request.CleanData();
  if (!progress) return StorelibStatus::Success;
  Set(block, check_progress::kFlags, check_progress::kRunning);
  Set(block, check_progress::kProgress, *progress);
  return StorelibStatus::Success;
}

bool StorelibController::SetState(std::uint8_t targetId, StorelibDriveState state) {
  const std::scoped_lock lock(mutex_);
  LogicalDrive* drive = FindLogicalDrive(targetId);
  if (drive != nullptr) drive->description.state = state;
  return drive != nullptr;
}

void StorelibController::SetBattery(const StorelibBatteryDescription& battery) {
  const std::scoped_lock lock(mutex_);
  description_.battery = battery;
}

bool StorelibController::IsChecking(std::uint8_t targetId) {
  const std::scoped_lock lock(mutex_);
  LogicalDrive* drive = FindLogicalDrive(targetId);
  return drive != nullptr && drive->check.Progress().has_value();
}

}  // namespace orvik::simulation
