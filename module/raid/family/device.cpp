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
  resources.clear();
  if (GetControllerInfo(controllerInfo) == storage::status::kSuccess) AddControllerProperties();

  std::vector<LogicalDrive> logicalDrives;
  const bool listed = GetLogicalDrives(logicalDrives) == storage::status::kSuccess;
  if (listed && controllerInfo.logicalDriveCount > 0) AddLogicalDisks(logicalDrives);

  std::vector<PhysicalDrive> physicalDrives;
  const storage::Status result = GetPhysicalDrives(physicalDrives);
  if (result == storage::status::kSuccess) {
    const std::size_t count = physicalDrives.size();
    AddPhysicalDisks(std::move(physicalDrives));
    properties.emplace_back("NUM_PHYSICAL_DEVICES", std::to_string(count));
    AddIfNotEmpty(properties, "DRIVER_VERSION", controllerInfo.driverVersion);
  }
  return result;
}

void Device::AddControllerProperties() {
  displayName = controllerInfo.model;
  if (!controllerInfo.serial.empty()) displayName += " - " + controllerInfo.serial;
  udi = controllerInfo.udi;

  AddIfNotEmpty(properties, "UDI", udi);
  AddIfNotEmpty(properties, "MODEL", controllerInfo.model);
  if (controllerInfo.platform != kCapabilitiesNotFound) {
    AddIfNotEmpty(properties, "PLATFORM", controllerInfo.platform);
  }
  AddIfNotEmpty(properties, "SERIAL", controllerInfo.serial);
  if (controllerInfo.logicalDriveCount >= 0) {
    properties.emplace_back("NUM_LOGICAL_DEVICES", std::to_string(controllerInfo.logicalDriveCount));
  }
  AddIfNotEmpty(properties, "SUPPORTED_INTERFACES", Join(controllerInfo.supportedInterfaces));
  AddIfNotEmpty(properties, "SUPPORTED_RAID_LEVELS", Join(controllerInfo.supportedRaidLevels));
}

void Device::AddLogicalDisks(const std::vector<LogicalDrive>& drives) {
  for (const auto& drive : drives) {
    const std::string index = std::to_string(resources.size());
    resources.push_back({{"RESOURCE_TYPE", "LOGICAL_DISK"},
                         {"INDEX", index},
                         {"RAID_LEVEL", drive.raidLevel},
                         {"NUM_PHYSICAL_DEVICES", std::to_string(drive.memberCount)},
                         {"SIZE", SizeText(drive.sizeBytes)}});
  }
}

void Device::AddPhysicalDisks(std::vector<PhysicalDrive> drives) {
  resources.reserve(resources.size() + drives.size());
  for (auto& drive : drives) {
    // Without an initialiser list, whose texts would be copied.
    core::KeyValueList resource;
    resource.reserve(kPhysicalDiskEntries);
    resource.emplace_back("RESOURCE_TYPE", "PHYSICAL_DISK");
    resource.emplace_back("INDEX", std::to_string(resources.size()));
    AddIfNotEmpty(resource, "MANUFACTURER", std::move(drive.manufacturer));
    AddIfNotEmpty(resource, "MODEL", std::move(drive.model));
    if (drive.sizeBytes != 0) resource.emplace_back("SIZE", SizeText(drive.sizeBytes));
    AddIfNotEmpty(resource, "SERIAL", std::move(drive.serial));
    resources.push_back(std::move(resource));
  }
}

}  // namespace orvik::module::raid
