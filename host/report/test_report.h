#pragma once

#include <QJsonArray>
#include <QString>

#include "host/inventory/test_list.h"
#include "host/terminal/palette.h"

namespace orvik::host {

/// The tests for programs, each with the indexes of the devices that it applies to.
QJsonArray TestsJson(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices);

/// The tests for people, as a table.
QString TestsText(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices,
                  const Palette& palette);

}  // namespace orvik::host
