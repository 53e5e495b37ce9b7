#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "module/raid/family/device.h"
#include "module/raid/storelib/storelib_transport.h"

namespace orvik::module::raid {

/// The state of a controller's battery backup unit.
struct BatteryStatus {
  bool notPresent = false;
  bool packMissing = false;
  bool lowVoltage = false;
  bool temperatureHigh = false;
};

struct EnclosureInfo {
  std::uint16_t enclosureId = 0;
  bool faulty = false;
};

/// A controller behind the vendor's library. Operations keep no state between calls and may run on several threads.
/// Each returns kFailure when one of its commands fails, and writes its outputs on success only.
class LsiDevice final : public Device {
 public:
  LsiDevice(std::uint32_t id, std::shared_ptr<LsiSender> librarySender);

  [[nodiscard]] std::uint32_t GetControllerInfo(ControllerInfo& info) override;
  /// Empties the list first. A drive whose own commands fail is left out.
  [[nodiscard]] std::uint32_t GetLogicalDrives(std::vector<LogicalDrive>& drives) override;
  /// Empties the list first. A drive whose own command fails is left out; the result is that of the last drive.
  [[nodiscard]] std::uint32_t GetPhysicalDrives(std::vector<PhysicalDrive>& drives) override;
  [[nodiscard]] std::uint32_t GetStorageDevices(std::vector<StorageDeviceEntry>& devices) override;

  storage::Status GetBatteryStatus(BatteryStatus& battery);
  /// Appends to the list.
  storage::Status GetEnclosures(std::vector<EnclosureInfo>& enclosures);

  storage::Status StartConsistencyCheck(std::uint8_t targetId, std::uint16_t sequenceNumber);
  /// `percent` (0 to 100) does not change while the controller reports no progress.
  storage::Status GetConsistencyCheckProgress(std::uint8_t targetId, bool& running, double& percent);
  storage::Status CancelConsistencyCheck(std::uint8_t targetId, std::uint16_t sequenceNumber);
  storage::Status GetConsistencyCheckResult(std::uint8_t targetId, std::uint16_t sequenceNumber, bool& consistent);

 private:
  storage::Status Send(LsiCommand& command) const;
  bool DescribeLogicalDrive(std::uint8_t targetId, std::uint16_t sequenceNumber, LogicalDrive& drive) const;
  storage::Status DescribePhysicalDrive(std::uint16_t deviceId, PhysicalDrive& drive) const;
  StorageDeviceEntry ReachDrive(const PhysicalDrive& drive) const;

  std::shared_ptr<LsiSender> sender_;
  std::uint32_t controllerId_;
};

}  // namespace orvik::module::raid
