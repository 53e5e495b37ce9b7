#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <vector>

#include "host/inventory/controller_details.h"
#include "host/inventory/inventory.h"
#include "host/text/words.h"

namespace orvik::host {

/// A device as the scan described it.
QJsonObject DeviceJson(const ListedDevice& device);

/// The same with "controller", "logicalDrives" and "physicalDrives".
QJsonObject DeviceJson(const ListedDevice& device, const ControllerDetails& details);

QJsonArray DevicesJson(const std::vector<ListedDevice>& devices);

/// One line for people: index, name, id.
QString DeviceHeading(const ListedDevice& device, const Palette& palette);

/// A tree for people: heading, properties, errors, logical drives, physical drives.
QString DeviceTree(const ListedDevice& device, const ControllerDetails& details, const Palette& palette);

}  // namespace orvik::host
