#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/device.h"

namespace orvik::core {

/// What a scan reports about one device.
struct DeviceDescription {
  std::string id;
  std::string udi;
  std::string name;
  KeyValueList extraProperties;
  KeyValueList properties;
  std::vector<KeyValueList> resources;
  std::vector<std::string> tags;
  bool testable = false;
};

/// Receives the results of a scan or a presence check, on the thread that called the scanner.
class ScanListener {
 public:
  ScanListener() = default;
  ScanListener(const ScanListener&) = delete;
  ScanListener& operator=(const ScanListener&) = delete;

  virtual ~ScanListener() = default;                                     // slot 0
  virtual void OnDeviceFound(const DeviceDescription& description) = 0;  // slot 1: valid for the call only
  virtual void ReservedSlot2() {}                                        // slot 2: reserved for the host
  virtual void OnScanFinished() = 0;                                     // slot 3
  virtual void OnPresenceChecked(bool present) = 0;                      // slot 4
};

/// Finds the devices of a module. Takes no lock: a scan must not overlap with any other call.
class DeviceScanner {
 public:
  DeviceScanner() = default;
  DeviceScanner(const DeviceScanner&) = delete;
  DeviceScanner& operator=(const DeviceScanner&) = delete;

  virtual ~DeviceScanner() = default;  // slot 0

  /// Slot 1: searches for devices and reports each to the listener, then the end of the scan.
  virtual void Scan(std::shared_ptr<ScanListener> listener) = 0;

  /// Slot 2: reports to the listener whether there is any device, without building one.
  virtual void CheckPresence(std::shared_ptr<ScanListener> listener) = 0;

  /// Slot 3: the first device of the last scan with exactly this id; empty when there is none.
  virtual std::weak_ptr<Device> FindDevice(std::string id) const = 0;

  /// Slot 4: every device of the last scan, in scan order.
  virtual std::vector<std::weak_ptr<Device>> GetDevices() const = 0;
};

}  // namespace orvik::core
