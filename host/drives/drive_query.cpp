#include "host/drives/drive_query.h"

#include <QCoreApplication>
#include <exception>
#include <utility>

#include "host/text/text.h"
#include "host/text/words.h"

namespace orvik::host {
namespace {

using module::storage::Status;

QString PlaceOf(const ChosenDrive& chosen) {
  return QStringLiteral("%1:%2").arg(chosen.device->index).arg(chosen.drive->index);
}

template <typename Matches>
std::vector<ChosenDrive> Matching(const DriveQueryList& lists, const Matches& matches) {
  std::vector<ChosenDrive> found;
  for (const auto& list : lists) {
    for (const Drive& drive : list->drives) {
      const ChosenDrive candidate{list->device, &drive};
      if (matches(candidate)) found.push_back(candidate);
    }
  }
  return found;
}

QStringList Names(const std::vector<ChosenDrive>& drives) {
  QStringList names;
  for (const ChosenDrive& each : drives) {
    names += QStringLiteral("%1 (%2, %3)")
                 .arg(PlaceOf(each), DisplayText(each.drive->entry.id), DisplayText(each.device->description.name));
  }
  return names;
}

}  // namespace

DriveQuery::DriveQuery(const ListedDevice& onDevice, Depth withDepth, const core::AbortFlag& onAbort)
    : Run(onDevice, core::DispatchRequest::kSharedMode, nullptr), depth(withDepth), abortFlag(&onAbort) {}

QString DriveQuery::Name() const {
  return QCoreApplication::translate("orvik-diag", "Device %1: %2")
      .arg(QString::number(device->index), QCoreApplication::translate("orvik-diag", "drives"));
}

RunOutcome DriveQuery::Perform() {
  const std::shared_ptr<core::Device> locked = device->device.lock();
  if (locked == nullptr) return DeviceGone();
  std::vector<module::raid::StorageDeviceEntry> entries;
  status = Status(static_cast<module::raid::RaidDevice&>(*locked).GetStorageDevices(entries));
  for (module::raid::StorageDeviceEntry& entry : entries) {
    Drive drive;
    drive.index = static_cast<int>(drives.size());
    drive.entry = std::move(entry);
    drives.push_back(std::move(drive));
  }
  if (depth == Depth::List) return core::TestResult::Passed;

  for (Drive& drive : drives) {
    if (abortFlag->load() != 0) return core::TestResult::Aborted;
    log.SetProgress(static_cast<std::uint8_t>(100 * static_cast<std::size_t>(drive.index) / drives.size()));
    try {
      ReadDrive(drive);
    } catch (const std::exception& exception) {
      drive.problem = CauseOf(exception);
    }
  }
  return core::TestResult::Passed;
}

DriveQueryList PlanQueries(const std::vector<const ListedDevice*>& devices, DriveQuery::Depth depth,
                           const core::AbortFlag& abortFlag) {
  DriveQueryList queries;
  for (const ListedDevice* const device : devices) {
    queries.push_back(std::make_unique<DriveQuery>(*device, depth, abortFlag));
  }
  return queries;
}

QStringList ProblemsOf(const DriveQuery& query) {
  QStringList problems;
  if (!query.outcome.Ok()) problems += query.outcome.Error().text;
  if (!query.status.Ok()) {
    problems += QCoreApplication::translate("orvik-diag", "Could not read all drives of the controller (%1)")
                    .arg(StatusText(query.status));
  }
  return problems;
}

QStringList NotesOn(const Drive& drive) {
  if (!drive.isAtaRefused) return {};
  return {QCoreApplication::translate("orvik-diag",
                                      "ATA commands reach a drive with another serial number; only SCSI is used")};
}

Result<ChosenDrive> ChooseDrive(const DriveQueryList& lists, const std::string& wanted) {
  std::vector<ChosenDrive> found =
      Matching(lists, [&wanted](const ChosenDrive& each) { return each.drive->entry.id == wanted; });
  if (found.empty()) {
    found = Matching(lists, [&wanted](const ChosenDrive& each) { return PlaceOf(each).toStdString() == wanted; });
  }
  if (found.size() == 1) return found.front();

  const QString problem = found.empty() ? QCoreApplication::translate("orvik-diag", "No drive \"%1\"")
                                        : QCoreApplication::translate("orvik-diag", "Several drives match \"%1\"");
  const auto all = [](const ChosenDrive&) { return true; };
  return Error{WithChoices(problem.arg(DisplayText(wanted)), Names(found.empty() ? Matching(lists, all) : found))};
}

}  // namespace orvik::host
