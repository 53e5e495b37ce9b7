#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include "host/run/test_run.h"
#include "host/terminal/palette.h"

namespace orvik::host {

/// The runs for programs, in the order of the plan.
QJsonArray RunsJson(const TestRunList& runs);

/// How many runs ended in which way.
QJsonObject SummaryJson(const TestRunList& runs);

/// The runs for people, device by device, and a summary line.
QString RunsText(const TestRunList& runs, const Palette& palette);

}  // namespace orvik::host
