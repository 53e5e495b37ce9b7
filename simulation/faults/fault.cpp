#include "simulation/faults/fault.h"

#include <algorithm>
#include <random>

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

void Garble(std::span<std::uint8_t> bytes, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::ranges::generate(bytes, [&random] { return static_cast<std::uint8_t>(random()); });
}

}  // namespace

void Distort(const FaultEffects& effects, std::size_t headerSize, std::span<const std::uint8_t> request,
             std::span<std::uint8_t> reply, std::size_t& returned) {
  if (effects.garbleSeed) Garble(reply.subspan(std::min(headerSize, reply.size())), *effects.garbleSeed);
  for (const BytePatch& patch : effects.patches) {
    SetBytes(reply, {patch.offset, patch.bytes.size()}, patch.bytes);
  }
  if (effects.truncateTo) {
    const std::size_t kept = std::min(*effects.truncateTo, reply.size());
    SetBytes(reply.subspan(kept), {0, reply.size() - kept}, request.subspan(std::min(kept, request.size())));
    returned = std::min(returned, kept);
  }
}

}  // namespace orvik::simulation
