#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/inventory/device_list.h"
#include "module/raid/device_records.h"

namespace orvik::host {

/// A logical disk. What only the controller itself can tell is absent when it did not answer.
struct LogicalDisk {
  int index = 0;
  std::string name;
  std::string raidLevel;
  std::optional<module::raid::LogicalDriveState> state;
  std::int64_t memberCount = 0;
  std::optional<std::uint64_t> sizeBytes;
  std::string size;  ///< the module's own wording
  std::vector<std::string> failedMembers;
};

/// A physical disk, under the same rule.
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
  QStringList errors;  ///< one line per question that the controller did not answer
};

/// Asks the controller for its state now. Where it does not answer, the scan's description stands in.
ControllerDetails ReadControllerDetails(const ListedDevice& listed);

}  // namespace orvik::host
