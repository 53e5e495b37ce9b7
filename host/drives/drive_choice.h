#pragma once

#include <QString>
#include <optional>
#include <string>

#include "host/drives/drive_query.h"

namespace orvik::host {

struct ChosenDrive {
  const ListedDevice* device = nullptr;
  const Drive* drive = nullptr;
};

/// The drive that `wanted` names: by its id, or else as "DEVICEINDEX:DRIVEINDEX". Nothing, and one line in `error`
/// that lists the drives to choose from, when it names none or several.
std::optional<ChosenDrive> ChooseDrive(const DriveQueryList& lists, const std::string& wanted, QString& error);

}  // namespace orvik::host
