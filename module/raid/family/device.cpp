#include "module/raid/family/device.h"

#include <hostkit.h>

#include <utility>

namespace orvik::module::raid {

namespace {

constexpr std::size_t kPhysicalDiskEntries = 6;

void AddIfNotEmpty(core::KeyValueList& list, const char* key, std::string value) {
  if (!value.empty()) list.emplace_back(key, std::move(value));
}

std::string Join(const std::vector<std::string>& texts) {
  std::string joined;
  for (const auto& text : texts) {
    if (!joined.empty()) joined += ", ";
    joined += text;
  }
  return joined;
}

std::string SizeText(std::uint64_t bytes) {
  std::string text;
  get_number_handler()->SizeText(text, bytes);
  return text;
}

}  // namespace

storage::Status Device::BuildProperties() {
  resources_.clear();
  if (storage::Status{GetControllerInfo(controllerInfo_)}.Ok()) AddControllerProperties();

  std::vector<LogicalDrive> logicalDrives;
  const bool listed = storage::Status{GetLogicalDrives(logicalDrives)}.Ok();
  if (listed && controllerInfo_.logicalDriveCount > 0) AddLogicalDisks(logicalDrives);

  std::vector<PhysicalDrive> physicalDrives;
  const storage::Status result{GetPhysicalDrives(physicalDrives)};
  if (result.Ok()) {
    const std::size_t count = physicalDrives.size();
    AddPhysicalDisks(std::move(physicalDrives));
    properties_.emplace_back("NUM_PHYSICAL_DEVICES", std::to_string(count));
    AddIfNotEmpty(properties_, "DRIVER_VERSION", controllerInfo_.driverVersion);
  }
  return result;
}

void Device::AddControllerProperties() {
  displayName_ = controllerInfo_.model;
  if (!controllerInfo_.serial.empty()) displayName_ += " - " + controllerInfo_.serial;
  udi_ = controllerInfo_.udi;

  AddIfNotEmpty(properties_, "UDI", udi_);
  AddIfNotEmpty(properties_, "MODEL", controllerInfo_.model);
  if (controllerInfo_.platform != kCapabilitiesNotFound) {
    AddIfNotEmpty(properties_, "PLATFORM", controllerInfo_.platform);
  }
  AddIfNotEmpty(properties_, "SERIAL", controllerInfo_.serial);
  if (controllerInfo_.logicalDriveCount >= 0) {
    properties_.emplace_back("NUM_LOGICAL_DEVICES", std::to_string(controllerInfo_.logicalDriveCount));
  }
  AddIfNotEmpty(properties_, "SUPPORTED_INTERFACES", Join(controllerInfo_.supportedInterfaces));
  AddIfNotEmpty(properties_, "SUPPORTED_RAID_LEVELS", Join(controllerInfo_.supportedRaidLevels));
}

void Device::AddLogicalDisks(const std::vector<LogicalDrive>& drives) {
  for (const auto& drive : drives) {
    const std::string index = std::to_string(resources_.size());
    resources_.push_back({{"RESOURCE_TYPE", "LOGICAL_DISK"},
                          {"INDEX", index},
                          {"RAID_LEVEL", drive.raidLevel},
                          {"NUM_PHYSICAL_DEVICES", std::to_string(drive.memberCount)},
                          {"SIZE", SizeText(drive.sizeBytes)}});
  }
}

void Device::AddPhysicalDisks(std::vector<PhysicalDrive> drives) {
  resources_.reserve(resources_.size() + drives.size());
  for (auto& drive : drives) {
    // An initialiser list would copy the texts.
    core::KeyValueList resource;
    resource.reserve(kPhysicalDiskEntries);
    resource.emplace_back("RESOURCE_TYPE", "PHYSICAL_DISK");
    resource.emplace_back("INDEX", std::to_string(resources_.size()));
    AddIfNotEmpty(resource, "MANUFACTURER", std::move(drive.manufacturer));
    AddIfNotEmpty(resource, "MODEL", std::move(drive.model));
    if (drive.sizeBytes != 0) resource.emplace_back("SIZE", SizeText(drive.sizeBytes));
    AddIfNotEmpty(resource, "SERIAL", std::move(drive.serial));
    resources_.push_back(std::move(resource));
  }
}

}  // namespace orvik::module::raid
