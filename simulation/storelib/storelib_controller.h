#pragma once

// A RAID controller that is managed through the vendor's library: it fills the data blocks of the commands to it.

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "simulation/storelib/consistency_check.h"
#include "simulation/storelib/storelib_description.h"
#include "simulation/storelib/storelib_drive.h"
#include "simulation/storelib/storelib_request.h"

namespace orvik::simulation {

/// Thread-safe.
class StorelibController {
 public:
  StorelibController(StorelibControllerDescription description, const std::shared_ptr<const Clock>& clock);

  std::uint32_t Id() const { return description_.controllerId; }

  // The commands. A block has at least the size that its command needs and is unchanged on failure.
  StorelibStatus Information(const StorelibRequest& request);
  StorelibStatus PhysicalDriveList(const StorelibRequest& request);
  StorelibStatus EnclosureList(const StorelibRequest& request);
  StorelibStatus LogicalDriveList(const StorelibRequest& request);
  StorelibStatus BatteryStatus(const StorelibRequest& request);
  StorelibStatus PhysicalDriveInformation(const StorelibRequest& request);
  StorelibStatus LogicalDriveInformation(const StorelibRequest& request);
  StorelibStatus MemberList(const StorelibRequest& request);
  StorelibStatus StartCheck(const StorelibRequest& request);
  StorelibStatus CancelCheck(const StorelibRequest& request);
  StorelibStatus CheckProgress(const StorelibRequest& request);
  StorelibStatus ScsiPassThrough(const StorelibRequest& request);
  StorelibStatus SataPassThrough(const StorelibRequest& request);

  // Changes without a command from the host. False when the controller has no such drive.
  bool SetState(std::uint8_t targetId, StorelibDriveState state);
  void SetBattery(const StorelibBatteryDescription& battery);
  /// Whether a check of the logical drive is running.
  bool IsChecking(std::uint8_t targetId);

 private:
  struct LogicalDrive {
    StorelibLogicalDriveDescription description;
    ConsistencyCheck check;
  };

  // Null when no drive has this id.
  const StorelibDrive* FindDrive(std::uint16_t deviceId) const;
  LogicalDrive* FindLogicalDrive(std::uint8_t targetId);
  /// The drive that a start or cancel command names; null, and `refusal`, when it names none.
  LogicalDrive* FindForCheck(const StorelibRequest& request, StorelibStatus& refusal);

  std::vector<StorelibDrive> drives_;

  std::mutex mutex_;  // guards what follows, but for the description's constant part
  StorelibControllerDescription description_;
  std::vector<LogicalDrive> logicalDrives_;
};

}  // namespace orvik::simulation
