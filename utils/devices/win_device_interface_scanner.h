#pragma once

#include <vector>

#include <windows.h>

#include <setupapi.h>

#include "utils/devices/device_interface_scanner.h"
#include "utils/windows/unique_handle.h"

/// Selects present devices by interface class (all zero: devices of every class) and setup class (all zero: any).
class WinDeviceScanFilter final : public DeviceScanFilter {
 public:
  WinDeviceScanFilter(const GUID& interfaceClass, const GUID& setupClass)
      : interfaceClass_(interfaceClass), setupClass_(setupClass) {}

  const GUID& GetInterfaceClass() const { return interfaceClass_; }
  const GUID& GetSetupClass() const { return setupClass_; }

 private:
  GUID interfaceClass_;
  GUID setupClass_;
};

/// Device interfaces through the Windows setup API.
class WinDeviceInterfaceScanner final : public DeviceInterfaceScanner {
 public:
  std::uint32_t EnumerateInterfaces(const DeviceScanFilter& filter, InterfacePaths& paths) override;
  std::uint32_t GetDeviceProperty(std::uint32_t index, std::uint32_t property, std::unique_ptr<char[]>& buffer,
                                  std::size_t& size) override;
  std::uint32_t OpenDevice(const std::string& path, HANDLE& handle) override;

 private:
  bool SelectDevices(const DeviceScanFilter& filter);
  std::vector<std::string> InterfacesOf(SP_DEVINFO_DATA& device) const;

  std::vector<SP_DEVINFO_DATA> devices_;
  orvik::utils::UniqueDeviceInfoSet set_;
  GUID interfaceClass_ = {};
  GUID setupClass_ = {};
};
