#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/device.h"
#include "module/raid/device_records.h"
#include "module/storage/status.h"

namespace orvik::module::raid {

/// The `platform` of a controller whose driver reports no RAID capabilities.
inline constexpr std::string_view kCapabilitiesNotFound = "IMSM_CAPABILITIES_NOT_FOUND";

/// A RAID controller of either family. Built on the scanner's thread and constant afterwards; the operations of slots
/// 9 to 12 send new requests to the controller on every call and may run on any thread.
class Device : public RaidDevice {
 public:
  std::string GetId() const override { return identifier_; }
  std::string GetName() const override { return displayName_; }
  bool HasUdi() const override { return !udi_.empty(); }
  std::string GetUdi() const override { return udi_; }
  core::KeyValueList GetExtraProperties() const override { return {}; }
  std::vector<std::string> GetTags() const override { return {}; }
  bool IsTestable() const override { return true; }
  void Refresh() override {}

  core::KeyValueList GetProperties() const { return properties_; }
  std::vector<core::KeyValueList> GetResources() const { return resources_; }

  /// Fills the properties, the resources and the names from slots 9 to 11; called once, by the manager that made the
  /// device. Returns the status of `GetPhysicalDrives`; the manager drops a device that fails. Other failures only
  /// leave their entries out.
  storage::Status BuildProperties();

 protected:
  Device() = default;

  std::string identifier_;
  std::string udi_;
  std::string displayName_;
  core::KeyValueList properties_;
  std::vector<core::KeyValueList> resources_;
  ControllerInfo controllerInfo_;

 private:
  void AddControllerProperties();
  void AddLogicalDisks(const std::vector<LogicalDrive>& drives);
  void AddPhysicalDisks(std::vector<PhysicalDrive> drives);
};

/// Finds the controllers of one family and owns their devices. Used on the scanner's thread only.
class DeviceManager {
 public:
  DeviceManager() = default;
  DeviceManager(const DeviceManager&) = delete;
  DeviceManager& operator=(const DeviceManager&) = delete;

  virtual ~DeviceManager() = default;  // slot 0

  /// Slot 1: checks for at least one controller of the family without building a device.
  virtual bool HasControllers() = 0;

  /// Slot 2: empties the device list and rebuilds it from the hardware.
  virtual void RefreshDevices() = 0;

  /// Shared owners of the devices, in the order in which they were found.
  std::vector<std::shared_ptr<core::Device>> GetDeviceList() const { return {devices_.begin(), devices_.end()}; }

 protected:
  std::vector<std::shared_ptr<Device>> devices_;
};

}  // namespace orvik::module::raid
