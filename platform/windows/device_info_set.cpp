#include "platform/windows/device_info_set.h"

#include <algorithm>
#include <utility>

#include "simulation/identifiers.h"

namespace orvik::platform::windows {

namespace {

// A device query names the enumerator ("PCI"), an interface query the device instance.
bool MatchesEnumerator(const simulation::AdapterDescription& adapter, const DeviceQuery& query) {
  if (query.enumerator.empty()) return true;
  const std::string instance = simulation::FoldCase(adapter.instanceId);
  const std::string wanted = simulation::FoldCase(query.enumerator);
  if ((query.flags & DIGCF_DEVICEINTERFACE) != 0) return instance == wanted;
  return instance.starts_with(wanted + "\\");
}

bool MatchesClass(const simulation::Guid& guid, const DeviceQuery& query) {
  return (query.flags & DIGCF_ALLCLASSES) != 0 || query.classGuid == guid;
}

}  // namespace

DeviceInfoSet::DeviceInfoSet(std::shared_ptr<simulation::Machine> machine, const DeviceQuery& query)
    : machine_(std::move(machine)) {
  DWORD device = 0;
  for (const auto& adapter : machine_->Adapters()) Select(++device, adapter->Description(), query);
}

void DeviceInfoSet::Select(DWORD device, const simulation::AdapterDescription& adapter, const DeviceQuery& query) {
  if ((query.flags & DIGCF_PRESENT) != 0 && !adapter.present) return;
  if (!MatchesEnumerator(adapter, query)) return;
  if ((query.flags & DIGCF_DEVICEINTERFACE) == 0) {
    if (MatchesClass(adapter.setupClass, query)) devices_.push_back(device);
    return;
  }
  const std::size_t before = interfaces_.size();
  for (const simulation::InterfaceDescription& each : adapter.interfaces) {
    if (MatchesClass(each.interfaceClass, query)) interfaces_.push_back({device, &each});
  }
  if (interfaces_.size() > before) devices_.push_back(device);
}

const simulation::AdapterDescription* DeviceInfoSet::Find(DWORD device) const {
  if (std::ranges::find(devices_, device) == devices_.end()) return nullptr;
  return &machine_->Adapters()[device - 1]->Description();
}

simulation::Guid FromWindows(const GUID& guid) {
  simulation::Guid result{static_cast<std::uint32_t>(guid.Data1), guid.Data2, guid.Data3, {}};
  std::ranges::copy(guid.Data4, result.data4.begin());
  return result;
}

GUID ToWindows(const simulation::Guid& guid) {
  GUID result{guid.data1, guid.data2, guid.data3, {}};
  std::ranges::copy(guid.data4, result.Data4);
  return result;
}

}  // namespace orvik::platform::windows
