// The setup API: device information sets over the adapters of the machine.

#include <windows.h>
#include <setupapi.h>

#include <algorithm>
#include <cstddef>

#include "platform/windows/device_info_set.h"
#include "platform/windows/handle_table.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;
namespace simulation = orvik::simulation;

namespace {

constexpr DWORD kKnownFlags = DIGCF_PRESENT | DIGCF_ALLCLASSES | DIGCF_DEVICEINTERFACE;

windows::HandleTable<windows::DeviceInfoSet>& Sets() {
  static auto& sets = *new windows::HandleTable<windows::DeviceInfoSet>(0x40000000);
  return sets;
}

HDEVINFO FailToQuery(DWORD error) {
  SetLastError(error);
  return INVALID_HANDLE_VALUE;
}

// The set behind a handle, for a call of `function`; null, with the last error set, when the call must fail.
std::shared_ptr<windows::DeviceInfoSet> Enter(HDEVINFO handle, std::string_view function) {
  auto set = Sets().Find(handle);
  if (set == nullptr) {
    SetLastError(ERROR_INVALID_HANDLE);
    return nullptr;
  }
  if (const auto error = windows::InjectedError(set->Machine(), function)) {
    SetLastError(*error);
    return nullptr;
  }
  return set;
}

// The adapter of `device`; null, with the last error set, when the set does not have it.
const simulation::AdapterDescription* Resolve(const windows::DeviceInfoSet& set, const SP_DEVINFO_DATA* device) {
  const bool valid = device != nullptr && device->cbSize == sizeof(SP_DEVINFO_DATA);
  const auto* adapter = valid ? set.Find(device->DevInst) : nullptr;
  if (adapter == nullptr) SetLastError(valid ? ERROR_INVALID_PARAMETER : ERROR_INVALID_USER_BUFFER);
  return adapter;
}

void FillDevice(const windows::DeviceInfoSet& set, DWORD instance, SP_DEVINFO_DATA& device) {
  device.ClassGuid = windows::ToWindows(set.Find(instance)->setupClass);
  device.DevInst = instance;
  device.Reserved = instance;
}

// Copies `text` and its terminating zero when `room` units hold them; `required` counts `unit` bytes each.
BOOL CopyText(const std::string& utf8, WCHAR* target, std::size_t room, std::size_t unit, PDWORD required) {
  const windows::WideString text = windows::ToWide(utf8);
  if (required != nullptr) *required = static_cast<DWORD>((text.size() + 1) * sizeof(WCHAR) / unit);
  if (target == nullptr || room < text.size() + 1) return windows::Fail(ERROR_INSUFFICIENT_BUFFER);
  std::copy_n(text.c_str(), text.size() + 1, target);
  return TRUE;
}

}  // namespace

HDEVINFO WINAPI SetupDiGetClassDevsW(const GUID* classGuid, PCWSTR enumerator, HWND /*parent*/, DWORD flags) {
  auto machine = simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "SetupDiGetClassDevsW")) return FailToQuery(*error);
  if ((flags & ~kKnownFlags) != 0) return FailToQuery(ERROR_INVALID_FLAGS);
  if (classGuid == nullptr && (flags & DIGCF_ALLCLASSES) == 0) return FailToQuery(ERROR_INVALID_PARAMETER);
  windows::DeviceQuery query{.classGuid = {}, .enumerator = {}, .flags = flags};
  if (classGuid != nullptr) query.classGuid = windows::FromWindows(*classGuid);
  if (enumerator != nullptr) query.enumerator = windows::ToUtf8(enumerator);
  machine->Ledger().Take(simulation::Resource::DeviceInformationSet);
  return Sets().Add(std::make_shared<windows::DeviceInfoSet>(std::move(machine), query));
}

BOOL WINAPI SetupDiDestroyDeviceInfoList(HDEVINFO set) {
  const auto removed = Sets().Remove(set);
  if (removed == nullptr) {
    simulation::CurrentMachine()->Ledger().InvalidRelease(simulation::Resource::DeviceInformationSet);
    return windows::Fail(ERROR_INVALID_HANDLE);
  }
  removed->Machine().Ledger().Return(simulation::Resource::DeviceInformationSet);
  return TRUE;
}

BOOL WINAPI SetupDiEnumDeviceInfo(HDEVINFO set, DWORD index, PSP_DEVINFO_DATA device) {
  const auto found = Enter(set, "SetupDiEnumDeviceInfo");
  if (found == nullptr) return FALSE;
  if (device == nullptr || device->cbSize != sizeof(SP_DEVINFO_DATA)) return windows::Fail(ERROR_INVALID_USER_BUFFER);
  if (index >= found->Devices().size()) return windows::Fail(ERROR_NO_MORE_ITEMS);
  FillDevice(*found, found->Devices()[index], *device);
  return TRUE;
}

BOOL WINAPI SetupDiEnumDeviceInterfaces(HDEVINFO set, PSP_DEVINFO_DATA device, const GUID* interfaceClass,
                                        DWORD index, PSP_DEVICE_INTERFACE_DATA found) {
  const auto entered = Enter(set, "SetupDiEnumDeviceInterfaces");
  if (entered == nullptr) return FALSE;
  if (found == nullptr || found->cbSize != sizeof(SP_DEVICE_INTERFACE_DATA)) {
    return windows::Fail(ERROR_INVALID_USER_BUFFER);
  }
  if (interfaceClass == nullptr) return windows::Fail(ERROR_INVALID_PARAMETER);
  if (device != nullptr && Resolve(*entered, device) == nullptr) return FALSE;

  const simulation::Guid wanted = windows::FromWindows(*interfaceClass);
  DWORD passed = 0;
  ULONG_PTR number = 0;
  for (const auto& each : entered->Interfaces()) {
    ++number;
    if (device != nullptr && each.device != device->DevInst) continue;
    if (each.description->interfaceClass != wanted || passed++ != index) continue;
    found->InterfaceClassGuid = *interfaceClass;
    found->Flags = entered->Find(each.device)->present ? SPINT_ACTIVE : 0;
    found->Reserved = number;
    return TRUE;
  }
  return windows::Fail(ERROR_NO_MORE_ITEMS);
}

BOOL WINAPI SetupDiGetDeviceInterfaceDetailW(HDEVINFO set, PSP_DEVICE_INTERFACE_DATA found,
                                             PSP_DEVICE_INTERFACE_DETAIL_DATA_W detail, DWORD detailSize,
                                             PDWORD requiredSize, PSP_DEVINFO_DATA device) {
  const auto entered = Enter(set, "SetupDiGetDeviceInterfaceDetailW");
  if (entered == nullptr) return FALSE;
  constexpr std::size_t kPathOffset = offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_W, DevicePath);
  const bool badInterface = found == nullptr || found->cbSize != sizeof(SP_DEVICE_INTERFACE_DATA);
  const bool badDetail =
      detail == nullptr ? detailSize != 0 : detailSize < sizeof(*detail) || detail->cbSize != sizeof(*detail);
  const bool badDevice = device != nullptr && device->cbSize != sizeof(SP_DEVINFO_DATA);
  if (badInterface || badDetail || badDevice) return windows::Fail(ERROR_INVALID_USER_BUFFER);
  if (found->Reserved == 0 || found->Reserved > entered->Interfaces().size()) {
    return windows::Fail(ERROR_INVALID_PARAMETER);
  }

  const auto& chosen = entered->Interfaces()[found->Reserved - 1];
  if (device != nullptr) FillDevice(*entered, chosen.device, *device);
  WCHAR* path = detail == nullptr ? nullptr : detail->DevicePath;
  const std::size_t room = detail == nullptr ? 0 : (detailSize - kPathOffset) / sizeof(WCHAR);
  const BOOL copied = CopyText(chosen.description->path, path, room, 1, requiredSize);
  if (requiredSize != nullptr) *requiredSize += static_cast<DWORD>(kPathOffset);
  return copied;
}

BOOL WINAPI SetupDiGetDeviceRegistryPropertyW(HDEVINFO set, PSP_DEVINFO_DATA device, DWORD property, PDWORD type,
                                              PBYTE buffer, DWORD bufferSize, PDWORD requiredSize) {
  const auto found = Enter(set, "SetupDiGetDeviceRegistryPropertyW");
  if (found == nullptr) return FALSE;
  const auto* adapter = Resolve(*found, device);
  if (adapter == nullptr) return FALSE;
  if (property != SPDRP_DEVICEDESC || !adapter->description) return windows::Fail(ERROR_INVALID_DATA);
  if (buffer == nullptr && bufferSize != 0) return windows::Fail(ERROR_INVALID_PARAMETER);
  if (type != nullptr) *type = REG_SZ;

  const windows::WideString text = windows::ToWide(*adapter->description);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(WCHAR));
  if (requiredSize != nullptr) *requiredSize = size;
  if (bufferSize < size) return windows::Fail(ERROR_INSUFFICIENT_BUFFER);
  const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
  std::copy_n(bytes, size, buffer);
  return TRUE;
}

BOOL WINAPI SetupDiGetDeviceInstanceIdW(HDEVINFO set, PSP_DEVINFO_DATA device, PWSTR instanceId, DWORD size,
                                        PDWORD requiredSize) {
  const auto found = Enter(set, "SetupDiGetDeviceInstanceIdW");
  if (found == nullptr) return FALSE;
  const auto* adapter = Resolve(*found, device);
  if (adapter == nullptr) return FALSE;
  return CopyText(adapter->instanceId, instanceId, size, sizeof(WCHAR), requiredSize);
}
