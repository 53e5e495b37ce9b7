#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "host/drives/drive.h"
#include "host/run/run.h"

namespace orvik::host {

/// Lists the member drives of a controller and, where that is wanted, asks each of them. One after the other: a drive
/// may be slow, and they share the controller. Stops between drives once the abort flag is set.
struct DriveQuery final : Run {
  enum class Depth { List, Ask };

  DriveQuery(const ListedDevice& onDevice, Depth withDepth, const core::AbortFlag& onAbort);

  QString Name() const override;
  core::TestResult Perform() override;

  Depth depth;
  const core::AbortFlag* abortFlag;
  module::storage::Status status = module::storage::status::kSuccess;  ///< of the list, which may be short then
  std::vector<Drive> drives;
};

using DriveQueryList = std::vector<std::unique_ptr<DriveQuery>>;

/// What kept a query from listing all drives or asking them; at most one line each.
QStringList ProblemsOf(const DriveQuery& query);

/// A query for each of the devices.
DriveQueryList PlanQueries(const std::vector<const ListedDevice*>& devices, DriveQuery::Depth depth,
                           const core::AbortFlag& abortFlag);

}  // namespace orvik::host
