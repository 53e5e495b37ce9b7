#include "utils/devices/win_device_interface_scanner.h"

#include <span>
#include <utility>

#include "utils/bytes/byte_view.h"
#include "utils/text/text_conversion.h"

namespace {

constexpr std::uint32_t kSuccess = 0;
constexpr std::uint32_t kFailure = 1;
constexpr GUID kAnyClass = {};

/// UTF-8 path of an interface; empty when its detail can't be read.
std::string InterfacePath(HDEVINFO set, SP_DEVICE_INTERFACE_DATA& found) {
  DWORD size = 0;
  if (SetupDiGetDeviceInterfaceDetailW(set, &found, nullptr, 0, &size, nullptr) ||
      GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
    return {};
  }
  // One unit more than asked for, so that the path ends whatever the call leaves in the buffer.
  std::vector<std::uint8_t> buffer(size + sizeof(WCHAR));
  auto* const detail = orvik::utils::RecordIn<SP_DEVICE_INTERFACE_DETAIL_DATA_W>(buffer);
  if (detail == nullptr) return {};
  detail->cbSize = sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W);
  if (!SetupDiGetDeviceInterfaceDetailW(set, &found, detail, size, nullptr, nullptr)) return {};
  return ToUtf8(detail->DevicePath);
}

}  // namespace

bool WinDeviceInterfaceScanner::SelectDevices(const DeviceScanFilter& filter) {
  const auto* const windowsFilter = dynamic_cast<const WinDeviceScanFilter*>(&filter);
  if (windowsFilter == nullptr) return false;
  interfaceClass_ = windowsFilter->GetInterfaceClass();
  setupClass_ = windowsFilter->GetSetupClass();

  set_.Reset();
  set_.Reset(interfaceClass_ == kAnyClass
                 ? SetupDiGetClassDevsW(nullptr, nullptr, nullptr, DIGCF_PRESENT | DIGCF_ALLCLASSES)
                 : SetupDiGetClassDevsW(&interfaceClass_, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE));
  if (!set_) return false;

  devices_.clear();
  SP_DEVINFO_DATA device = {};
  device.cbSize = sizeof(device);
  for (DWORD index = 0; SetupDiEnumDeviceInfo(set_.Get(), index, &device); ++index) {
    if (setupClass_ == kAnyClass || device.ClassGuid == setupClass_) devices_.push_back(device);
    device = {};
    device.cbSize = sizeof(device);
  }
  return true;
}

std::vector<std::string> WinDeviceInterfaceScanner::InterfacesOf(SP_DEVINFO_DATA& device) const {
  std::vector<std::string> paths;
  SP_DEVICE_INTERFACE_DATA found = {};
  found.cbSize = sizeof(found);
  for (DWORD index = 0; SetupDiEnumDeviceInterfaces(set_.Get(), &device, &interfaceClass_, index, &found); ++index) {
    if (std::string path = InterfacePath(set_.Get(), found); !path.empty()) paths.push_back(std::move(path));
  }
  return paths;
}

std::uint32_t WinDeviceInterfaceScanner::EnumerateInterfaces(const DeviceScanFilter& filter, InterfacePaths& paths) {
  paths.clear();
  if (!SelectDevices(filter)) return kFailure;
  for (std::uint32_t index = 0; index < devices_.size(); ++index) {
    if (auto found = InterfacesOf(devices_[index]); !found.empty()) paths.emplace(index, std::move(found));
  }
  return kSuccess;
}

std::uint32_t WinDeviceInterfaceScanner::GetDeviceProperty(std::uint32_t index, std::uint32_t property,
                                                           std::unique_ptr<char[]>& buffer, std::size_t& size) {
  if (index >= devices_.size()) return kFailure;
  DWORD required = 0;
  if (SetupDiGetDeviceRegistryPropertyW(set_.Get(), &devices_[index], property, nullptr, nullptr, 0, &required) ||
      GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
    return kFailure;
  }
  std::vector<WCHAR> wide(required / sizeof(WCHAR) + 1);
  if (!SetupDiGetDeviceRegistryPropertyW(set_.Get(), &devices_[index], property, nullptr,
                                         orvik::utils::WritableBytesOf(wide), required, nullptr)) {
    return kFailure;
  }
  auto narrow = std::make_unique<char[]>(required);
  if (!ToUtf8(wide.data(), std::span(narrow.get(), required))) return kFailure;
  buffer = std::move(narrow);
  size = required;
  return kSuccess;
}

std::uint32_t WinDeviceInterfaceScanner::OpenDevice(const std::string& path, HANDLE& handle) {
  handle = CreateFileW(Widen(path).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                       OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr);
  return handle == INVALID_HANDLE_VALUE ? GetLastError() : kSuccess;
}
