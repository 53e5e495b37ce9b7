#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/device.h"
#include "core/key_value.h"

namespace orvik::core {

/// What a scan tells the host about one device.
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

/// The host's ear during a scan or a presence check; called on the thread that asked.
class ScanListener {
 public:
  ScanListener() = default;
  ScanListener(const ScanListener&) = delete;
  ScanListener& operator=(const ScanListener&) = delete;

  virtual ~ScanListener() = default;                                     // slot 0
  virtual void OnDeviceFound(const DeviceDescription& description) = 0;  // slot 1: valid for the call only
  virtual void ReservedSlot2() {}                                        // slot 2: the host's own business
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

  /// Slot 1: looks for devices anew, reports each to the listener, then the end of the scan.
  virtual void Scan(std::shared_ptr<ScanListener> listener) = 0;

  /// Slot 2: tells the listener whether there is any device, without building one.
  virtual void CheckPresence(std::shared_ptr<ScanListener> listener) = 0;

  /// Slot 3: the first device of the last scan with exactly this id; empty when there is none.
  virtual std::weak_ptr<Device> FindDevice(std::string id) const = 0;

  /// Slot 4: every device of the last scan, in scan order.
  virtual std::vector<std::weak_ptr<Device>> GetDevices() const = 0;
};

}  // namespace orvik::core
