#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "simulation/faults/fault.h"

namespace orvik::simulation {

/// Damages `reply`, the answer to `request`, as `effects` say: first garbles what follows the first `headerSize`
/// bytes, then patches, then truncates. `returned` is the count of bytes that come back.
void Distort(const FaultEffects& effects, std::size_t headerSize, std::span<const std::uint8_t> request,
             std::span<std::uint8_t> reply, std::size_t& returned);

}  // namespace orvik::simulation
