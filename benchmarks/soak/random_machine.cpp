#include "benchmarks/soak/random_machine.h"

#include <string>

namespace orvik::benchmarks {

namespace {

using namespace simulation;

constexpr double kSpeed = 100'000;

class Dice {
 public:
  explicit Dice(std::minstd_rand& random) : random_(random) {}

  /// One of 0 to `sides` - 1.
  template <typename Number = std::uint8_t>
  Number Roll(unsigned sides) {
    return static_cast<Number>(random_() % sides);
  }
  bool Seldom() { return Roll(6) == 0; }

  DriveDescription Drive(bool nvme) {
    const std::string serial = "SER-" + std::to_string(Roll<unsigned>(1000));
    const unsigned kind = Roll(nvme ? 3 : 2);
    if (kind == 0) {
      return SataDriveDescription{.model = "WDC WD10ORVK-08M2NA0",
                                  .serial = serial,
                                  .firmware = "01.01A01",
                                  .sectors = 1'953'525'168,
                                  .silent = Seldom(),
                                  .generalPurposeLogs = !Seldom(),
                                  .failing = Seldom()};
    }
    if (kind == 1) {
      return SasDriveDescription{.vendor = "ORVIK",
                                 .product = "OVS9000",
                                 .revision = "0001",
                                 .serial = serial,
                                 .sectors = 17'578'328'064,
                                 .silent = Seldom(),
                                 .failing = Seldom(),
                                 .unreadableSectors = {0, 1}};
    }
    return NvmeDriveDescription{
        .model = "NVMe ORVK SSD 512GB", .serial = serial, .firmware = "OV10", .sectors = 1'000'215'216};
  }

  AdapterDescription Adapter(unsigned unit) {
    auto adapter = PciRaidAdapter(Seldom() ? "A000" : "2822", unit);
    if (Seldom()) return adapter;
    CsmiControllerDescription& controller = adapter.csmi.emplace();
    controller.status = static_cast<CsmiStatus>(1 + Roll(4));
    CsmiRaidSetDescription set{.type = static_cast<CsmiRaidType>(Roll(10)),
                               .status = static_cast<CsmiRaidStatus>(Roll(8)),
                               .capacityMiB = 953'867};
    const unsigned drives = Roll(6);
    for (unsigned i = 0; i < drives; ++i) {
      controller.drives.push_back(Drive(true));
      set.members.push_back({.drive = i});
    }
    controller.raidSets.push_back(set);
    return adapter;
  }

  StorelibControllerDescription Controller(std::uint32_t id) {
    StorelibControllerDescription controller{
        .controllerId = id,
        .product = "ORVK RAID 8i",
        .serial = "OV C" + std::to_string(id),
        .battery = {.type = Roll<std::uint16_t>(2), .packMissing = Seldom(), .lowVoltage = Seldom()}};
    const unsigned drives = Roll(8);
    for (std::uint16_t i = 0; i < drives; ++i) controller.drives.push_back({.deviceId = i, .drive = Drive(false)});
    for (std::uint8_t i = 0; i < Roll(3); ++i) {
      StorelibLogicalDriveDescription drive{.targetId = i,
                                            .primaryLevel = Roll(7),
                                            .state = static_cast<StorelibDriveState>(Roll(4)),
                                            .consistent = !Seldom(),
                                            .blocks = 1'953'525'168};
      if (Seldom()) drive.check.runningAt = 30'000;
      if (Seldom()) drive.check.startStatus = 0x1B;
      controller.logicalDrives.push_back(drive);
    }
    controller.enclosures = {{.enclosureId = 1, .faultByte = Roll(2)}};
    return controller;
  }

 private:
  std::minstd_rand& random_;
};

}  // namespace

MachineDescription RandomMachine(std::minstd_rand& random) {
  Dice dice(random);
  MachineDescription machine{.speed = kSpeed};
  const unsigned adapters = dice.Roll(4);
  for (unsigned i = 0; i < adapters; ++i) machine.adapters.push_back(dice.Adapter(20 + i));
  const unsigned controllers = dice.Roll(4);
  for (std::uint32_t i = 0; i < controllers; ++i) machine.storelib.controllers.push_back(dice.Controller(i));
  for (unsigned i = dice.Roll(3); i > 0; --i) {
    machine.faults.push_back({.operation = "*", .call = 1 + dice.Roll<unsigned>(500), .effects = {.error = 31}});
  }
  return machine;
}

}  // namespace orvik::benchmarks
