#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/inventory/inventory.h"
#include "module/raid/device_records.h"

namespace orvik::host {

/// A logical disk. Fields that only the controller can supply are absent or empty if reading it failed.
struct LogicalDisk {
  int index = 0;
  std::string name;
  std::string raidLevel;
  std::optional<module::raid::LogicalDriveState> state;
  std::int64_t memberCount = 0;
  std::optional<std::uint64_t> sizeBytes;
  std::string size;  ///< as formatted by the module
  std::vector<std::string> failedMembers;
};

/// A physical disk; the same fields may be absent.
struct PhysicalDisk {
  int index = 0;
  std::optional<module::raid::DriveProtocol> protocol;
  std::string manufacturer;
  std::string model;
  std::string serial;
  std::optional<std::uint64_t> sizeBytes;
  std::string size;
};

struct ControllerDetails {
  std::optional<module::raid::ControllerInfo> info;
  std::vector<LogicalDisk> logicalDisks;
  std::vector<PhysicalDisk> physicalDisks;
  QStringList errors;  ///< one line per list or record that could not be read
};

/// Reads the current state from the controller, and falls back to the scan's description for what it fails to read.
ControllerDetails ReadControllerDetails(const ListedDevice& listed);

}  // namespace orvik::host
