#pragma once

#include <utility>

#include "simulation/drives/drive_descriptions.h"

namespace orvik::simulation {

/// An NVMe drive: a member of a RAID set that has no phy.
class NvmeDrive {
 public:
  explicit NvmeDrive(NvmeDriveDescription description) : description_(std::move(description)) {}

  const NvmeDriveDescription& Description() const { return description_; }

 private:
  NvmeDriveDescription description_;
};

}  // namespace orvik::simulation
