#include "fuzz/faults_from_input.h"

#include <algorithm>

namespace orvik::fuzz {

namespace {

using simulation::FaultEffects;

bool Among(std::span<const std::string_view> names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

simulation::BytePatch Patch(Input& input, std::size_t offset, std::size_t count) {
  const auto bytes = input.Bytes(count);
  return {.offset = offset, .bytes = {bytes.begin(), bytes.end()}};
}

// In a seed a byte of 0 stands for a call that goes well.
FaultEffects Decide(Input& input, std::size_t headerSize) {
  switch (input.Byte() % 9) {
    case 3: {
      const std::size_t offset = input.Word();
      return {.patches = {Patch(input, offset, input.Byte())}};
    }
    case 4: return {.patches = {Patch(input, headerSize, input.Word())}};
    case 5: return {.garbleSeed = input.Byte()};
    case 6: return {.returnCode = input.Byte()};
    case 7: return {.error = 1 + input.Byte()};
    case 8: return {.truncateTo = input.Word()};
    default: return {};
  }
}

}  // namespace

simulation::FaultSource FaultsFrom(Input& input) {
  constexpr std::size_t kPacketHeader = 28;
  return [&input](std::span<const std::string_view> names) -> FaultEffects {
    if (Among(names, "DeviceIoControl")) return Decide(input, kPacketHeader);
    if (Among(names, "ProcessLibCommand")) return Decide(input, 0);
    return {};
  };
}

}  // namespace orvik::fuzz
