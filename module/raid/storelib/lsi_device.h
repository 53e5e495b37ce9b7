#pragma once

#include <cstdint>

#include "module/raid/device.h"

namespace orvik::module::raid {

/// A controller behind the vendor's library.
class LsiDevice : public Device {
 protected:
  explicit LsiDevice(std::uint32_t controllerId) : Device(controllerId) {}
};

}  // namespace orvik::module::raid
