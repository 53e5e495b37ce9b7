#pragma once

#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "host/drives/drive.h"
#include "host/run/run.h"

namespace orvik::host {

/// Lists the member drives of a controller and, if wanted, reads each of them. Drives are read in sequence, because
/// they share the controller. Stops between drives once the abort flag is set.
struct DriveQuery final : Run {
  enum class Depth { List, Read };

  DriveQuery(const ListedDevice& onDevice, Depth withDepth, const core::AbortFlag& onAbort);

  QString Name() const override;
  RunOutcome Perform() override;

  Depth depth;
  const core::AbortFlag* abortFlag;
  module::storage::Status status;  ///< of the list, which may be incomplete on failure
  std::vector<Drive> drives;
};

using DriveQueryList = std::vector<std::unique_ptr<DriveQuery>>;

/// A query for each of the devices.
DriveQueryList PlanQueries(const std::vector<const ListedDevice*>& devices, DriveQuery::Depth depth,
                           const core::AbortFlag& abortFlag);

/// What kept a finished query from listing or reading its drives: one line per problem.
QStringList ProblemsOf(const DriveQuery& query);

/// What the user must know about an identified drive that is no error: one line each.
QStringList NotesOn(const Drive& drive);

struct ChosenDrive {
  const ListedDevice* device = nullptr;
  const Drive* drive = nullptr;
};

/// The drive named `wanted`: by its id or, if no drive has that id, as "DEVICEINDEX:DRIVEINDEX". If none or several
/// match, the error lists the drives to choose from. Points into `lists`.
Result<ChosenDrive> ChooseDrive(const DriveQueryList& lists, const std::string& wanted);

}  // namespace orvik::host
