#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <windows.h>

/// Tells a scanner which devices to consider.
class DeviceScanFilter {
 public:
  DeviceScanFilter() = default;
  DeviceScanFilter(const DeviceScanFilter&) = delete;
  DeviceScanFilter& operator=(const DeviceScanFilter&) = delete;
  virtual ~DeviceScanFilter() = default;
};

/// Finds device interfaces, reads their devices' properties and opens them.
class DeviceInterfaceScanner {
 public:
  /// Interface paths (UTF-8) by index of the device; a device without a usable interface has no entry.
  using InterfacePaths = std::map<std::uint32_t, std::vector<std::string>>;

  DeviceInterfaceScanner() = default;
  DeviceInterfaceScanner(const DeviceInterfaceScanner&) = delete;
  DeviceInterfaceScanner& operator=(const DeviceInterfaceScanner&) = delete;
  virtual ~DeviceInterfaceScanner() = default;

  /// Replaces the device list and the paths. 0, or 1 on failure with no path.
  virtual std::uint32_t EnumerateInterfaces(const DeviceScanFilter& filter, InterfacePaths& paths) = 0;

  /// A property of a device of the last enumeration as zero-terminated UTF-8 in a new buffer, `size` bytes long.
  /// 0, or 1 on failure with no buffer.
  virtual std::uint32_t GetDeviceProperty(std::uint32_t index, std::uint32_t property,
                                          std::unique_ptr<char[]>& buffer, std::size_t& size) = 0;

  /// Opens an interface for input and output; the caller closes the handle. 0, or the system's error code.
  virtual std::uint32_t OpenDevice(const std::string& path, HANDLE& handle) = 0;
};
