#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "module/raid/csmi/csmi_adapter.h"
#include "module/raid/csmi/csmi_packet.h"
#include "module/raid/family/device.h"

namespace orvik::module::raid {

/// A RAID controller that speaks CSMI. Every call sends its own packets on the adapter's handle, which the device
/// owns.
class CsmiDevice final : public Device {
 public:
  explicit CsmiDevice(CsmiAdapter adapter);

  std::uint32_t GetControllerInfo(ControllerInfo& info) override;
  std::uint32_t GetLogicalDrives(std::vector<LogicalDrive>& drives) override;
  std::uint32_t GetPhysicalDrives(std::vector<PhysicalDrive>& drives) override;
  std::uint32_t GetStorageDevices(std::vector<StorageDeviceEntry>& devices) override;

  /// The controller's status (1 good, 2 failed, 3 offline, 4 powered off) and why it is offline. 0, 34 or 66.
  storage::Status GetControllerStatus(std::uint32_t& status, std::uint32_t& offlineReason);

 private:
  using SetVisitor = std::function<void(std::uint32_t index, const RaidConfigurationPacket& set)>;

  /// Asks for one set after the other until the last one or the first that the controller doesn't know. 0, 34 or 66;
  /// the sets before a failure have been visited.
  storage::Status VisitRaidSets(const RaidInformationPacket& information, const SetVisitor& visit);

  void AddNvmeMembers(std::vector<PhysicalDrive>& drives);
  storage::Status AddNvmeStorageDevices(std::vector<StorageDeviceEntry>& devices);

  utils::UniqueHandle port_;
};

}  // namespace orvik::module::raid
