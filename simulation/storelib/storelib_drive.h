#pragma once

// What has a device id behind a storelib controller: its information and the pass-through frames to it.

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "simulation/drives/drive.h"
#include "simulation/storelib/storelib_description.h"
#include "simulation/storelib/storelib_request.h"

namespace orvik::simulation {

/// Thread-safe.
class StorelibDrive {
 public:
  StorelibDrive(const StorelibPhysicalDriveDescription& description, const std::shared_ptr<const Clock>& clock);

  std::uint16_t DeviceId() const { return deviceId_; }
  std::uint8_t ScsiDeviceType() const { return scsiDeviceType_; }

  /// What the controller noted when it found the drive; it needs no answer of the drive.
  void FillInformation(std::span<std::uint8_t> block) const;
  StorelibStatus ScsiPassThrough(const StorelibRequest& request) const;
  StorelibStatus SataPassThrough(const StorelibRequest& request) const;

 private:
  std::optional<ScsiCompletion> Execute(std::span<const std::uint8_t> cdb, std::span<std::uint8_t> data) const;

  std::uint16_t deviceId_;
  std::uint8_t scsiDeviceType_;
  Drive drive_;
  std::uint8_t interface_;
  // The drive itself, or what the controller shows of a SATA drive to SCSI commands; null for other drives.
  std::shared_ptr<ScsiDrive> scsi_;
};

}  // namespace orvik::simulation
