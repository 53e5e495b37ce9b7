#include "host/inventory/controller_details.h"

#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <exception>
#include <string_view>

#include "host/result.h"
#include "host/text/text.h"
#include "host/text/words.h"

namespace orvik::host {
namespace {

using module::raid::ControllerInfo;
using module::raid::LogicalDrive;
using module::raid::PhysicalDrive;
using module::raid::RaidDevice;
using module::storage::Status;

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

LogicalDisk LogicalFromResource(const core::KeyValueList& resource, int index) {
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

// The index and the size text come from the description, everything that may have changed from the controller.
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

// Without `current`, the result is what the scan saw.
template <typename Disk, typename Drive>
std::vector<Disk> Merge(const std::vector<core::KeyValueList>& resources,
                        const std::optional<std::vector<Drive>>& current,
                        Disk (*fromResource)(const core::KeyValueList&, int), int firstIndex) {
  const std::size_t count = current ? current->size() : resources.size();
  std::vector<Disk> disks;
  for (std::size_t i = 0; i < count; ++i) {
    const int index = firstIndex + static_cast<int>(i);
    disks.push_back(fromResource(i < resources.size() ? resources[i] : core::KeyValueList(), index));
    if (current) Fill(disks.back(), (*current)[i]);
  }
  return disks;
}

// Calls one slot of the device. `problem` is the error text with a place for the cause.
template <typename Record>
Result<Record> Read(RaidDevice& device, std::uint32_t (RaidDevice::*slot)(Record&), const QString& problem) {
  try {
    Record record;
    const Status status((device.*slot)(record));
    if (status.Ok()) return record;
    return Error{problem.arg(StatusText(status))};
  } catch (const std::exception& exception) {
    return Error{problem.arg(CauseOf(exception))};
  }
}

// The value; on failure nothing, and the error is added to `errors`.
template <typename Record>
std::optional<Record> ValueOrNote(Result<Record> result, QStringList& errors) {
  if (result.Ok()) return std::move(result).Value();
  errors += result.Error().text;
  return std::nullopt;
}

}  // namespace

ControllerDetails ReadControllerDetails(const ListedDevice& listed) {
  ControllerDetails details;
  std::optional<std::vector<LogicalDrive>> logicalDrives;
  std::optional<std::vector<PhysicalDrive>> physicalDrives;

  if (const std::shared_ptr<core::Device> device = listed.device.lock()) {
    auto& raid = static_cast<RaidDevice&>(*device);
    details.info = ValueOrNote(
        Read(raid, &RaidDevice::GetControllerInfo,
             QCoreApplication::translate("orvik-diag", "Could not read the controller's properties (%1)")),
        details.errors);
    logicalDrives = ValueOrNote(
        Read(raid, &RaidDevice::GetLogicalDrives,
             QCoreApplication::translate("orvik-diag", "Could not read the controller's logical drives (%1)")),
        details.errors);
    physicalDrives = ValueOrNote(
        Read(raid, &RaidDevice::GetPhysicalDrives,
             QCoreApplication::translate("orvik-diag", "Could not read the controller's physical drives (%1)")),
        details.errors);
  } else {
    details.errors += DeviceGone().text;
  }

  details.logicalDisks =
      Merge(ResourcesOfType(listed.description, "LOGICAL_DISK"), logicalDrives, LogicalFromResource, 0);
  details.physicalDisks = Merge(ResourcesOfType(listed.description, "PHYSICAL_DISK"), physicalDrives,
                                PhysicalFromResource, static_cast<int>(details.logicalDisks.size()));
  return details;
}

}  // namespace orvik::host
