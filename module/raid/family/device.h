#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/key_value.h"
#include "module/raid/device_records.h"
#include "module/storage/status.h"

namespace orvik::module::raid {

/// The `platform` of a controller whose driver reports no RAID capabilities.
inline constexpr std::string_view kCapabilitiesNotFound = "IMSM_CAPABILITIES_NOT_FOUND";

/// A RAID controller: what both controller families have in common. Built on the scanner's thread and unchanged from
/// then on; the operations of slots 9 to 12 talk to the controller afresh on every call and may run on any thread.
class Device : public RaidDevice {
 public:
  std::string GetId() const override { return identifier; }
  std::string GetName() const override { return displayName; }
  bool HasUdi() const override { return !udi.empty(); }
  std::string GetUdi() const override { return udi; }
  core::KeyValueList GetExtraProperties() const override { return {}; }
  std::vector<std::string> GetTags() const override { return {}; }
  bool IsTestable() const override { return true; }
  void Refresh() override {}

  core::KeyValueList GetProperties() const { return properties; }
  std::vector<core::KeyValueList> GetResources() const { return resources; }

  /// Fills the properties, the resources and the names from slots 9 to 11; called once, by the manager that made the
  /// device. Returns the code of `GetPhysicalDrives`: a device for which it is not 0 is dropped. Other failures only
  /// leave their own entries out.
  storage::Status BuildProperties();

 protected:
  explicit Device(std::uint64_t handle) : nativeHandle(handle) {}

  std::string identifier;
  std::string udi;
  std::string displayName;
  core::KeyValueList properties;
  std::vector<core::KeyValueList> resources;
  std::uint64_t nativeHandle;  ///< CSMI family: the handle of the SCSI port; storelib family: the controller id
  ControllerInfo controllerInfo;

 private:
  void AddControllerProperties();
  void AddLogicalDisks(const std::vector<LogicalDrive>& drives);
  void AddPhysicalDisks(std::vector<PhysicalDrive> drives);
};

}  // namespace orvik::module::raid
