#include "module/raid/family/driver_version.h"

#include <optional>
#include <vector>

#include <setupapi.h>

#include "utils/text/text_conversion.h"
#include "utils/windows/unique_handle.h"

namespace orvik::module::raid {

namespace {

/// A REG_SZ value of HKEY_LOCAL_MACHINE; nothing when it is missing or of another type.
std::optional<WideString> RegistryText(const WideString& key, const WCHAR* value) {
  DWORD size = 0;
  if (RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), value, RRF_RT_REG_SZ, nullptr, nullptr, &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  // One unit more than reported, so that the text is always terminated.
  std::vector<WCHAR> text(size / sizeof(WCHAR) + 1);
  if (RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), value, RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  return WideString(text.data());
}

std::optional<WideString> InstanceId(HDEVINFO set, SP_DEVINFO_DATA& device) {
  DWORD size = 0;
  SetupDiGetDeviceInstanceIdW(set, &device, nullptr, 0, &size);
  std::vector<WCHAR> id(size + 1);
  if (!SetupDiGetDeviceInstanceIdW(set, &device, id.data(), size, nullptr)) return std::nullopt;
  return WideString(id.data());
}

/// The version of the adapter's driver, unless its provider is "Microsoft" or a registry value is missing.
std::optional<std::string> VendorDriverVersion(const WideString& instanceId) {
  const auto driver = RegistryText(TEXT("SYSTEM\\CurrentControlSet\\Enum\\") + instanceId, TEXT("Driver"));
  if (!driver) return std::nullopt;
  const WideString classKey = TEXT("SYSTEM\\CurrentControlSet\\Control\\Class\\") + *driver;
  const auto provider = RegistryText(classKey, TEXT("ProviderName"));
  if (!provider || *provider == TEXT("Microsoft")) return std::nullopt;
  const auto version = RegistryText(classKey, TEXT("DriverVersion"));
  if (!version) return std::nullopt;
  return ToUtf8(version->c_str());
}

}  // namespace

storage::Status ReadDriverVersion(std::string& version) {
  const utils::UniqueDeviceInfoSet set(SetupDiGetClassDevsW(&kScsiAdapterClass, nullptr, nullptr, 0));
  if (!set) return storage::status::kNoVendorDriver;

  SP_DEVINFO_DATA device = {};
  device.cbSize = sizeof(device);
  for (DWORD index = 0; SetupDiEnumDeviceInfo(set.Get(), index, &device); ++index) {
    const auto instanceId = InstanceId(set.Get(), device);
    if (!instanceId) return storage::status::kFailure;
    if (const auto found = VendorDriverVersion(*instanceId)) {
      version = *found;
      return storage::status::kSuccess;
    }
    device = {};
    device.cbSize = sizeof(device);
  }
  return storage::status::kNoVendorDriver;
}

}  // namespace orvik::module::raid
