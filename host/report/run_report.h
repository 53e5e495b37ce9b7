#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <vector>

#include "host/inventory/inventory.h"
#include "host/run/run.h"
#include "host/text/words.h"

namespace orvik::host {

/// The tests for programs, each with the indexes of the devices that it applies to.
QJsonArray TestsJson(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices);

/// The tests for people, as a table.
QString TestsText(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices,
                  const Palette& palette);

/// The ended runs for programs, in the order of the plan.
QJsonArray RunsJson(const TestRunList& runs);

/// Number of runs by result.
QJsonObject SummaryJson(const TestRunList& runs);

/// The ended runs for people, device by device, and a summary line.
QString RunsText(const TestRunList& runs, const Palette& palette);

}  // namespace orvik::host
