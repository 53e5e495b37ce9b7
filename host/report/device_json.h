#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "host/inventory/controller_details.h"
#include "host/inventory/device_list.h"

namespace orvik::host {

/// A device as the scan described it.
QJsonObject DeviceJson(const ListedDevice& device);

/// The same with "controller", "logicalDrives" and "physicalDrives".
QJsonObject DeviceJson(const ListedDevice& device, const ControllerDetails& details);

QJsonArray DevicesJson(const std::vector<ListedDevice>& devices);

}  // namespace orvik::host
