#include "host/drives/drive_query.h"

#include <QCoreApplication>
#include <exception>
#include <utility>

#include "host/drives/drive_questions.h"
#include "host/report/drive_words.h"

namespace orvik::host {

DriveQuery::DriveQuery(const ListedDevice& onDevice, Depth withDepth, const core::AbortFlag& onAbort)
    : Run(onDevice, core::DispatchRequest::kSharedMode, nullptr), depth(withDepth), abortFlag(&onAbort) {}

QString DriveQuery::Name() const {
  return QCoreApplication::translate("orvik-diag", "Device %1: %2")
      .arg(QString::number(device->index), QCoreApplication::translate("orvik-diag", "drives"));
}

core::TestResult DriveQuery::Perform() {
  const std::shared_ptr<core::Device> locked = device->device.lock();
  if (locked == nullptr) return core::TestResult::Invalid;
  std::vector<module::raid::StorageDeviceEntry> entries;
  status = static_cast<module::raid::RaidDevice&>(*locked).GetStorageDevices(entries);
  for (module::raid::StorageDeviceEntry& entry : entries) {
    Drive drive;
    drive.index = static_cast<int>(drives.size());
    drive.entry = std::move(entry);
    drives.push_back(std::move(drive));
  }
  if (depth == Depth::List) return core::TestResult::Passed;

  for (Drive& drive : drives) {
    if (abortFlag->load() != 0) return core::TestResult::Aborted;
    recorder.SetProgress(static_cast<std::uint8_t>(100 * static_cast<std::size_t>(drive.index) / drives.size()));
    try {
      AskEverything(drive);
    } catch (const std::exception& exception) {
      drive.problem = QString::fromUtf8(exception.what()).simplified();
    }
  }
  return core::TestResult::Passed;
}

QStringList ProblemsOf(const DriveQuery& query) {
  QStringList problems;
  if (!query.outcome.error.isEmpty()) problems += query.outcome.error;
  if (query.outcome.result == core::TestResult::Invalid) {
    problems += QCoreApplication::translate("orvik-diag", "The device has gone since the scan");
  }
  if (query.status != module::storage::status::kSuccess) {
    problems += QCoreApplication::translate("orvik-diag", "The controller did not tell all its drives (%1)")
                    .arg(StatusText(query.status));
  }
  return problems;
}

DriveQueryList PlanQueries(const std::vector<const ListedDevice*>& devices, DriveQuery::Depth depth,
                           const core::AbortFlag& abortFlag) {
  DriveQueryList queries;
  for (const ListedDevice* const device : devices) {
    queries.push_back(std::make_unique<DriveQuery>(*device, depth, abortFlag));
  }
  return queries;
}

}  // namespace orvik::host
