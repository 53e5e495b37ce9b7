#pragma once

#include <QString>

#include "host/drives/drive_query.h"
#include "host/drives/self_test_run.h"
#include "host/terminal/palette.h"

namespace orvik::host {

/// The drives for people, controller by controller.
QString DrivesText(const DriveQueryList& queries, const Palette& palette);

/// What came of a self-test; empty without a verdict.
QString SelfTestText(const SelfTestRun& run, const Palette& palette);

}  // namespace orvik::host
