#pragma once

#include <cstdint>

namespace orvik::simulation {

/// Which way the data of a command goes, seen from the host.
enum class DataDirection : std::uint8_t { None, In, Out };

}  // namespace orvik::simulation
