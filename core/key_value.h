#pragma once

#include <string>
#include <utility>
#include <vector>

namespace orvik::core {

/// An ordered list of (upper-case key, value) texts: device properties, or one resource of a device.
using KeyValueList = std::vector<std::pair<std::string, std::string>>;

}  // namespace orvik::core
