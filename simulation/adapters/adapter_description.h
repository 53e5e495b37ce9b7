#pragma once

// What an adapter of the simulated machine is made from. All texts are UTF-8.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/adapters/guid.h"
#include "simulation/csmi/csmi_description.h"

namespace orvik::simulation {

struct InterfaceDescription {
  /// "\\?\pci#ven_8086&dev_2822&...#{2accfe60-...}".
  std::string path{};
  Guid interfaceClass = kStoragePortInterface;
};

/// The adapter's driver in the registry. Values that are left out are not there.
struct DriverDescription {
  /// Below SYSTEM\CurrentControlSet\Control\Class: "{4d36e97b-e325-11ce-bfc1-08002be10318}\0001".
  std::optional<std::string> key{};
  std::optional<std::string> provider{};
  std::optional<std::string> version{};
};

struct AdapterDescription {
  std::string instanceId{};
  Guid setupClass = kScsiAdapterClass;
  std::optional<std::string> description{};
  bool present = true;
  DriverDescription driver{};
  std::vector<InterfaceDescription> interfaces{};
  std::optional<CsmiControllerDescription> csmi{};
};

/// A present adapter at PCI function `unit`, with one storage-port interface and the driver of a RAID controller.
/// `deviceId` is its four-digit PCI device id; the vendor id is 8086.
AdapterDescription PciRaidAdapter(std::string_view deviceId, unsigned unit);

}  // namespace orvik::simulation
