#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "module/raid/csmi/csmi_packet.h"
#include "module/raid/family/device.h"
#include "utils/windows/unique_handle.h"

namespace orvik::module::raid {

/// One open storage-port interface of a SCSI adapter.
struct CsmiAdapter {
  std::string interfacePath;
  utils::UniqueHandle handle;
  std::string description;
  std::string pciVendorId;  ///< four hexadecimal digits, spelled as in the path
  std::string pciDeviceId;  ///< four hexadecimal digits, spelled as in the path
};

/// The open handle of a controller's SCSI port. The device and every bridge to its drives share it, so a drive object
/// keeps working after its device was destroyed; the last owner closes it.
using SharedPort = std::shared_ptr<const utils::UniqueHandle>;

/// A RAID controller that speaks CSMI. Every call builds its own packets, so calls may run on several threads.
class CsmiDevice final : public Device {
 public:
  explicit CsmiDevice(CsmiAdapter adapter);

  [[nodiscard]] std::uint32_t GetControllerInfo(ControllerInfo& info) override;
  [[nodiscard]] std::uint32_t GetLogicalDrives(std::vector<LogicalDrive>& drives) override;
  /// Identifies each drive with commands of its own: a scan needs no drive objects, and a drive that fails to
  /// identify is left out.
  [[nodiscard]] std::uint32_t GetPhysicalDrives(std::vector<PhysicalDrive>& drives) override;
  [[nodiscard]] std::uint32_t GetStorageDevices(std::vector<StorageDeviceEntry>& devices) override;

  /// Reads the controller's status (one of csmi::controller_status) and why it is offline. Returns kIoctlFailed or
  /// kCsmiReturnCode on failure.
  storage::Status GetControllerStatus(std::uint32_t& status, std::uint32_t& offlineReason);

 private:
  using SetVisitor = std::function<void(std::uint32_t index, const RaidConfigurationPacket& set)>;

  /// Visits the RAID sets in order, up to the first one that the controller does not have. Returns kIoctlFailed or
  /// kCsmiReturnCode on failure; the sets before it have been visited.
  storage::Status VisitRaidSets(const RaidInformationPacket& information, const SetVisitor& visit);

  void AddNvmeMembers(std::vector<PhysicalDrive>& drives);
  storage::Status AddNvmeStorageDevices(std::vector<StorageDeviceEntry>& devices);

  SharedPort port_;
};

}  // namespace orvik::module::raid
