#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include "host/drives/drive_query.h"
#include "host/drives/self_test_run.h"
#include "host/text/words.h"

namespace orvik::host {

/// The drives of every controller for programs, in one list.
QJsonArray DrivesJson(const DriveQueryList& queries);

/// The drives for people, controller by controller.
QString DrivesText(const DriveQueryList& queries, const Palette& palette);

/// A self-test's outcome for programs.
QJsonObject SelfTestJson(const SelfTestRun& run);

/// A self-test's outcome for people; empty without a verdict.
QString SelfTestText(const SelfTestRun& run, const Palette& palette);

}  // namespace orvik::host
