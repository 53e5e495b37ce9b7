#pragma once

#include <cstdint>

#include "simulation/drives/drive_descriptions.h"

namespace orvik::simulation {

/// The code by which SEND DIAGNOSTIC and the log know a background test; there is no conveyance test.
constexpr std::uint8_t ScsiSelfTestCode(SelfTestKind kind) {
  return kind == SelfTestKind::Short ? 1 : 2;
}

}  // namespace orvik::simulation
