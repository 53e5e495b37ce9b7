#include <algorithm>
#include <set>

#include "simulation/json/node.h"
#include "simulation/json/readers.h"
#include "simulation/storelib/storelib_layout.h"

namespace orvik::simulation {

namespace {

using Level = std::pair<std::uint8_t, std::uint8_t>;  // primary, secondary

constexpr std::array<Named<StorelibInstallation>, 4> kInstallations = {{
    {"installed", StorelibInstallation::Installed},
    {"missing", StorelibInstallation::Missing},
    {"without entry point", StorelibInstallation::WithoutEntryPoint},
    {"failing init", StorelibInstallation::FailingInit},
}};

constexpr std::array<Named<std::uint8_t>, 5> kInterfaces = {{
    {"SPI", kStorelibSpi},
    {"SAS 3G", kStorelibSas3G},
    {"SATA 1.5G", kStorelibSata15G},
    {"SATA 3G", kStorelibSata3G},
    {"SAS 6G", kStorelibSas6G},
}};

constexpr std::array<Named<std::uint32_t>, 7> kRaidLevels = {{
    {"RAID 0", 0x01},
    {"RAID 1", 0x02},
    {"RAID 5", 0x04},
    {"RAID 6", 0x10},
    {"RAID 10", 0x20},
    {"RAID 50", 0x40},
    {"RAID 60", 0x80},
}};

constexpr std::array<Named<Level>, 9> kLevels = {{
    {"RAID 0", {0, 0}},
    {"RAID 1", {1, 0}},
    {"RAID 3", {3, 0}},
    {"RAID 4", {4, 0}},
    {"RAID 5", {5, 0}},
    {"RAID 6", {6, 0}},
    {"RAID 10", {1, 3}},
    {"RAID 50", {5, 3}},
    {"RAID 60", {6, 3}},
}};

constexpr std::array<Named<StorelibDriveState>, 4> kStates = {{
    {"offline", StorelibDriveState::Offline},
    {"partially degraded", StorelibDriveState::PartiallyDegraded},
    {"degraded", StorelibDriveState::Degraded},
    {"optimal", StorelibDriveState::Optimal},
}};

constexpr std::array<Named<std::uint8_t>, 2> kDeviceTypes = {{{"disk", kScsiDisk}, {"enclosure", kScsiEnclosure}}};

constexpr std::size_t kMostDigits = 18;

// The ids of one kind, each of which can be used once.
class Ids {
 public:
  explicit Ids(std::string what) : what_(std::move(what)) {}

  /// False, after a complaint, when the id is taken.
  bool Claim(const Node& node, std::size_t id) {
    if (taken_.insert(id).second) return true;
    node.Reject("a unique " + what_, "the " + what_ + " " + std::to_string(id) + " again");
    return false;
  }

 private:
  std::string what_;
  std::set<std::size_t> taken_;
};

// A serial number with its trailing digits counted up; empty when they are too few.
std::string CountedUp(const std::string& serial, std::size_t by) {
  const std::size_t digits = serial.size() - (serial.find_last_not_of("0123456789") + 1);
  if (digits == 0 || digits > kMostDigits) return {};
  const std::string start = serial.substr(serial.size() - digits);
  const std::string number = std::to_string(std::stoull(start) + by);
  if (number.size() > digits) return {};
  return serial.substr(0, serial.size() - digits) + std::string(digits - number.size(), '0') + number;
}

// How many times an element is repeated in its list.
std::size_t ReadCount(ObjectReader& object, std::size_t most) {
  std::size_t count = 1;
  object.Optional("count").Read(count, 1, most);
  return count;
}

DriveDescription Copy(const DriveDescription& drive, std::size_t number, const Node& node) {
  DriveDescription copy = drive;
  if (number == 0) return copy;
  std::visit(
      [&](auto& each) {
        each.serial = CountedUp(each.serial, number);
        if (each.serial.empty()) node.Reject("a serial number that can be counted up");
      },
      copy);
  return copy;
}

// Reads at most one drive more than a controller can list.
void ReadDrives(const Node& node, Ids& deviceIds, std::vector<StorelibPhysicalDriveDescription>& drives) {
  StorelibPhysicalDriveDescription drive;
  ObjectReader object(node);
  const Node id = object.Required("deviceId", "a whole number");
  id.Read(drive.deviceId);
  object.Optional("deviceType").ReadNameOrByte(drive.scsiDeviceType, kDeviceTypes);
  object.Optional("interfaceByte").Read(drive.interfaceByte);
  const Node inner = object.Required("drive", "an object");
  drive.drive = ReadDrive(inner);
  if (std::holds_alternative<NvmeDriveDescription>(drive.drive)) inner.Reject("a SATA or SAS drive", "an NVMe drive");
  const std::size_t count = ReadCount(object, physical_drive_list::kMost);
  object.End();
  const DriveDescription first = drive.drive;
  for (std::size_t i = 0; i < count && drives.size() <= physical_drive_list::kMost; ++i, ++drive.deviceId) {
    drive.drive = Copy(first, i, inner);
    if (!deviceIds.Claim(id, drive.deviceId)) return;
    drives.push_back(drive);
  }
}

void ReadLevel(const Node& node, StorelibLogicalDriveDescription& drive) {
  Level level{drive.primaryLevel, drive.secondaryLevel};
  if (node.IsList()) {
    std::vector<std::uint8_t> bytes;
    node.ForEach([&](const Node& each) { each.Read(bytes.emplace_back()); });
    if (bytes.size() != 2) return node.Reject("a list of 2 numbers");
    level = {bytes[0], bytes[1]};
  } else {
    node.ReadName(level, kLevels);
  }
  drive.primaryLevel = level.first;
  drive.secondaryLevel = level.second;
}

StorelibCheckDescription ReadCheck(const Node& node) {
  StorelibCheckDescription check;
  ObjectReader object(node);
  object.Optional("seconds").Read(check.seconds);
  object.Optional("runningAt").Read(check.runningAt);
  object.Optional("endsConsistent").Read(check.endsConsistent);
  object.Optional("startStatus").Read(check.startStatus);
  object.End();
  return check;
}

void CheckMembers(const Node& node, const StorelibLogicalDriveDescription& drive,
                  const std::vector<StorelibPhysicalDriveDescription>& drives) {
  for (const std::uint16_t member : drive.members) {
    const auto found = std::ranges::find(drives, member, &StorelibPhysicalDriveDescription::deviceId);
    if (found != drives.end() && found->scsiDeviceType == kScsiDisk) continue;
    node.Reject("device ids of disks of this controller", "the device id " + std::to_string(member));
  }
}

// Each repetition has the members that follow those of the one before.
void ReadLogicalDrives(const Node& node, Ids& targetIds, StorelibControllerDescription& controller) {
  StorelibLogicalDriveDescription drive;
  ObjectReader object(node);
  const Node id = object.Required("targetId", "a whole number");
  id.Read(drive.targetId);
  object.Optional("sequenceNumber").Read(drive.sequenceNumber);
  ReadLevel(object.Required("level", "a RAID level such as \"RAID 5\""), drive);
  object.Optional("state").ReadNameOrByte(drive.state, kStates);
  object.Optional("consistent").Read(drive.consistent);
  object.Required("blocks", "a whole number").Read(drive.blocks);
  const Node members = object.Required("members", "a list");
  members.ForEach([&](const Node& each) { each.Read(drive.members.emplace_back()); }, member_list::kMost);
  if (const Node check = object.Optional("check"); check.Present()) drive.check = ReadCheck(check);
  const std::size_t count = ReadCount(object, logical_drive_list::kMost - drive.targetId);
  object.End();
  for (std::size_t i = 0; i < count; ++i, ++drive.targetId) {
    if (!targetIds.Claim(id, drive.targetId)) return;
    CheckMembers(members, drive, controller.drives);
    controller.logicalDrives.push_back(drive);
    for (std::uint16_t& member : drive.members) member = static_cast<std::uint16_t>(member + drive.members.size());
  }
}

StorelibEnclosureDescription ReadEnclosure(const Node& node, Ids& enclosureIds) {
  StorelibEnclosureDescription enclosure;
  ObjectReader object(node);
  const Node id = object.Required("enclosureId", "a whole number");
  id.Read(enclosure.enclosureId);
  enclosureIds.Claim(id, enclosure.enclosureId);
  object.Optional("faultByte").Read(enclosure.faultByte);
  object.End();
  return enclosure;
}

StorelibBatteryDescription ReadBattery(const Node& node) {
  StorelibBatteryDescription battery;
  ObjectReader object(node);
  object.Optional("type").Read(battery.type);
  object.Optional("packMissing").Read(battery.packMissing);
  object.Optional("lowVoltage").Read(battery.lowVoltage);
  object.Optional("temperatureHigh").Read(battery.temperatureHigh);
  object.End();
  return battery;
}

void ReadParts(ObjectReader& object, StorelibControllerDescription& controller) {
  Ids deviceIds("device id");
  Ids targetIds("target id");
  Ids enclosureIds("enclosure id");
  const Node drives = object.Optional("drives");
  drives.ForEach([&](const Node& each) { ReadDrives(each, deviceIds, controller.drives); });
  if (controller.drives.size() > physical_drive_list::kMost) {
    drives.Reject("at most " + std::to_string(physical_drive_list::kMost) + " drives, repetitions included", "more");
  }
  object.Optional("logicalDrives").ForEach([&](const Node& each) { ReadLogicalDrives(each, targetIds, controller); });
  object.Optional("enclosures")
      .ForEach([&](const Node& each) { controller.enclosures.push_back(ReadEnclosure(each, enclosureIds)); },
               enclosure_list::kMost);
}

StorelibControllerDescription ReadController(const Node& node, Ids& controllerIds) {
  // Texts are zero-terminated within their fields.
  constexpr std::size_t kLongestProduct = controller_info::kProduct.size - 1;
  constexpr std::size_t kLongestSerial = controller_info::kSerial.size - 1;
  StorelibControllerDescription controller;
  ObjectReader object(node);
  const Node id = object.Required("controllerId", "a whole number");
  id.Read(controller.controllerId);
  controllerIds.Claim(id, controller.controllerId);
  object.Required("product", "a text").Read(controller.product, kLongestProduct);
  object.Optional("serial").Read(controller.serial, kLongestSerial);
  object.Optional("interfaces").ReadBits(controller.interfaces, kInterfaces);
  object.Optional("raidLevels").ReadBits(controller.raidLevels, kRaidLevels);
  object.Optional("batterySupported").Read(controller.batterySupported);
  if (const Node battery = object.Optional("battery"); battery.Present()) controller.battery = ReadBattery(battery);
  ReadParts(object, controller);
  object.End();
  return controller;
}

}  // namespace

StorelibDescription ReadStorelib(const Node& node) {
  StorelibDescription storelib;
  Ids controllerIds("controller id");
  ObjectReader object(node);
  object.Optional("installation").ReadName(storelib.installation, kInstallations);
  object.Optional("controllers")
      .ForEach([&](const Node& each) { storelib.controllers.push_back(ReadController(each, controllerIds)); },
               controller_list::kMost);
  object.End();
  return storelib;
}

}  // namespace orvik::simulation
