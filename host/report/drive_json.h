#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "host/drives/drive_query.h"
#include "host/drives/self_test_run.h"

namespace orvik::host {

/// The drives of every controller, in one list.
QJsonArray DrivesJson(const DriveQueryList& queries);

/// What came of a self-test.
QJsonObject SelfTestJson(const SelfTestRun& run);

}  // namespace orvik::host
