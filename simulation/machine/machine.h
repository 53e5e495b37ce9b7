#pragma once

// The simulated machine: one model behind every front door (the Windows API, vendor libraries, tests).

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/adapters/adapter.h"
#include "simulation/clock.h"
#include "simulation/desktop/desktop.h"
#include "simulation/drives/base/drive_descriptions.h"
#include "simulation/faults/fault.h"
#include "simulation/faults/fault_book.h"
#include "simulation/io_device.h"
#include "simulation/machine/ledger.h"
#include "simulation/machine/registry.h"
#include "simulation/physical/physical_drive.h"
#include "simulation/storelib/storelib.h"
#include "simulation/storelib/storelib_description.h"

namespace orvik::simulation {

/// The parts of a machine; `registry` need not repeat the adapters' registry values.
struct MachineDescription {
  std::string name{};
  /// Machine time per real time.
  double speed = 1;
  std::vector<AdapterDescription> adapters{};
  /// `\\.\PhysicalDrive0` and those that follow it.
  std::vector<PhysicalDriveDescription> physicalDrives{};
  /// The controllers behind the vendor's library.
  StorelibDescription storelib{};
  DesktopDescription desktop{};
  std::vector<RegistryValue> registry{};
  std::vector<FaultRule> faults{};
};

/// Thread-safe.
class Machine {
 public:
  explicit Machine(const MachineDescription& description = {});
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;
  ~Machine() = default;

  const std::string& Name() const { return name_; }
  const std::vector<std::shared_ptr<Adapter>>& Adapters() const { return adapters_; }
  const std::vector<std::shared_ptr<PhysicalDrive>>& PhysicalDrives() const { return physicalDrives_; }
  simulation::Desktop& Desktop() { return desktop_; }
  simulation::Registry& Registry() { return registry_; }
  FaultBook& Faults() { return faults_; }
  simulation::Ledger& Ledger() { return ledger_; }
  simulation::Clock& Clock() { return *clock_; }
  simulation::Storelib& Storelib() { return storelib_; }

  /// The device with this file name, in any case; null when there is none.
  std::shared_ptr<IoDevice> Find(std::string_view fileName) const;
  /// Sends a request to `device` as `IoDevice::Control` does, as one outside call that the fault book may hit.
  IoResult Control(IoDevice& device, std::uint32_t controlCode, std::span<std::uint8_t> buffer, std::size_t inputSize,
                   std::size_t outputSize);
  /// Sends a command to the vendor's library as `Storelib::Execute` does, as one outside call that the fault book may
  /// hit.
  std::uint32_t ProcessLibCommand(std::span<std::uint8_t> packet, std::span<std::uint8_t> data);
  /// Counts a call from outside under each of `names` and applies its delay. The caller applies the other effects.
  FaultEffects OnCall(std::initializer_list<std::string_view> names);

 private:
  void RegisterDriver(const AdapterDescription& adapter);

  std::string name_;
  // Shared with the drives, which an open file may keep.
  std::shared_ptr<simulation::Clock> clock_;
  std::vector<std::shared_ptr<Adapter>> adapters_;
  std::vector<std::shared_ptr<PhysicalDrive>> physicalDrives_;
  simulation::Storelib storelib_;
  simulation::Desktop desktop_;
  simulation::Registry registry_;
  FaultBook faults_;
  simulation::Ledger ledger_;
};

}  // namespace orvik::simulation
