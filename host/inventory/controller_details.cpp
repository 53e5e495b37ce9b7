#include "host/inventory/controller_details.h"

#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <exception>
#include <string_view>

namespace orvik::host {
namespace {

using module::raid::ControllerInfo;
using module::raid::LogicalDrive;
using module::raid::PhysicalDrive;
using module::raid::RaidDevice;

std::string ValueOf(const core::KeyValueList& list, std::string_view key) {
  const auto entry = std::find_if(list.begin(), list.end(), [key](const auto& pair) { return pair.first == key; });
  return entry == list.end() ? std::string() : entry->second;
}

std::vector<core::KeyValueList> ResourcesOfType(const core::DeviceDescription& description, std::string_view type) {
  std::vector<core::KeyValueList> chosen;
  std::copy_if(description.resources.begin(), description.resources.end(), std::back_inserter(chosen),
               [type](const core::KeyValueList& resource) { return ValueOf(resource, "RESOURCE_TYPE") == type; });
  return chosen;
}

std::int64_t Number(const std::string& text, std::int64_t fallback) {
  std::int64_t number = fallback;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

LogicalDisk FromResource(const core::KeyValueList& resource, int index) {
  LogicalDisk disk;
  disk.index = static_cast<int>(Number(ValueOf(resource, "INDEX"), index));
  disk.raidLevel = ValueOf(resource, "RAID_LEVEL");
  disk.memberCount = Number(ValueOf(resource, "NUM_PHYSICAL_DEVICES"), 0);
  disk.size = ValueOf(resource, "SIZE");
  return disk;
}

PhysicalDisk PhysicalFromResource(const core::KeyValueList& resource, int index) {
  PhysicalDisk disk;
  disk.index = static_cast<int>(Number(ValueOf(resource, "INDEX"), index));
  disk.manufacturer = ValueOf(resource, "MANUFACTURER");
  disk.model = ValueOf(resource, "MODEL");
  disk.serial = ValueOf(resource, "SERIAL");
  disk.size = ValueOf(resource, "SIZE");
  return disk;
}

// The description gives a disk its number and size text, the controller everything that may have changed since.
void Fill(LogicalDisk& disk, const LogicalDrive& drive) {
  disk.name = drive.name;
  disk.raidLevel = drive.raidLevel;
  disk.state = drive.state;
  disk.memberCount = drive.memberCount;
  disk.sizeBytes = drive.sizeBytes;
  disk.failedMembers = drive.failedMembers;
}

void Fill(PhysicalDisk& disk, const PhysicalDrive& drive) {
  disk.protocol = drive.protocol;
  disk.manufacturer = drive.manufacturer;
  disk.model = drive.model;
  disk.serial = drive.serial;
  if (drive.sizeBytes != 0) disk.sizeBytes = drive.sizeBytes;
}

// `current` is null when the controller did not answer: then what the scan saw is all there is.
template <typename Disk, typename Drive>
std::vector<Disk> Merge(const std::vector<core::KeyValueList>& resources, const std::vector<Drive>* current,
                        Disk (*fromResource)(const core::KeyValueList&, int), int firstIndex) {
  const std::size_t count = current == nullptr ? resources.size() : current->size();
  std::vector<Disk> disks;
  for (std::size_t i = 0; i < count; ++i) {
    const int index = firstIndex + static_cast<int>(i);
    disks.push_back(fromResource(i < resources.size() ? resources[i] : core::KeyValueList(), index));
    if (current != nullptr) Fill(disks.back(), (*current)[i]);
  }
  return disks;
}

// Puts one question to the controller; `problem`, with the cause, goes into `errors` when there is no answer.
template <typename Question>
bool Ask(const QString& problem, QStringList& errors, const Question& question) {
  QString cause;
  try {
    const std::uint32_t status = question();
    if (status == 0) return true;
    cause = QCoreApplication::translate("orvik-diag", "status %1").arg(status);
  } catch (const std::exception& exception) {
    cause = QString::fromUtf8(exception.what()).simplified();
  }
  errors += problem.arg(cause);
  return false;
}

}  // namespace

ControllerDetails ReadControllerDetails(const ListedDevice& listed) {
  ControllerDetails details;
  std::vector<LogicalDrive> logicalDrives;
  std::vector<PhysicalDrive> physicalDrives;
  bool hasLogical = false;
  bool hasPhysical = false;

  if (const std::shared_ptr<core::Device> device = listed.device.lock()) {
    auto& raid = static_cast<RaidDevice&>(*device);
    ControllerInfo info;
    if (Ask(QCoreApplication::translate("orvik-diag", "The controller did not tell its properties (%1)"),
            details.errors, [&] { return raid.GetControllerInfo(info); })) {
      details.info = info;
    }
    hasLogical = Ask(QCoreApplication::translate("orvik-diag", "The controller did not tell its logical disks (%1)"),
                     details.errors, [&] { return raid.GetLogicalDrives(logicalDrives); });
    hasPhysical =
        Ask(QCoreApplication::translate("orvik-diag", "The controller did not tell its physical disks (%1)"),
            details.errors, [&] { return raid.GetPhysicalDrives(physicalDrives); });
  } else {
    details.errors += QCoreApplication::translate("orvik-diag", "The device has gone since the scan");
  }

  details.logicalDisks = Merge(ResourcesOfType(listed.description, "LOGICAL_DISK"),
                               hasLogical ? &logicalDrives : nullptr, FromResource, 0);
  details.physicalDisks =
      Merge(ResourcesOfType(listed.description, "PHYSICAL_DISK"), hasPhysical ? &physicalDrives : nullptr,
            PhysicalFromResource, static_cast<int>(details.logicalDisks.size()));
  return details;
}

}  // namespace orvik::host
