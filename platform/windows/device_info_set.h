#pragma once

// A device information set: the devices, and the interfaces of them, that a query of the setup API selected.

#include <windows.h>
#include <setupapi.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "simulation/machine/machine.h"

namespace orvik::platform::windows {

struct DeviceQuery {
  std::optional<simulation::Guid> classGuid;
  std::string enumerator;
  DWORD flags;
};

/// Does not change once it is made.
class DeviceInfoSet {
 public:
  DeviceInfoSet(std::shared_ptr<simulation::Machine> machine, const DeviceQuery& query);

  struct Interface {
    DWORD device;
    const simulation::InterfaceDescription* description;
  };

  simulation::Machine& Machine() const { return *machine_; }

  /// The device instances of the set, in order.
  const std::vector<DWORD>& Devices() const { return devices_; }
  const std::vector<Interface>& Interfaces() const { return interfaces_; }
  /// Null when the set has no such device instance.
  const simulation::AdapterDescription* Find(DWORD device) const;

 private:
  void Select(DWORD device, const simulation::AdapterDescription& adapter, const DeviceQuery& query);

  std::shared_ptr<simulation::Machine> machine_;
  std::vector<DWORD> devices_;
  std::vector<Interface> interfaces_;
};

simulation::Guid FromWindows(const GUID& guid);
GUID ToWindows(const simulation::Guid& guid);

}  // namespace orvik::platform::windows
