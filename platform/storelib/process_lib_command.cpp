#include <bit>
#include <cstdint>
#include <span>

#include "simulation/machine/current_machine.h"
#include "simulation/storelib/storelib_layout.h"

namespace simulation = orvik::simulation;

namespace {

// The packet's data block in the caller's memory. The only place where bytes of a packet become a pointer.
std::span<std::uint8_t> DataBlock(std::span<const std::uint8_t> packet) {
  const std::uint64_t address = Get(packet, simulation::command_packet::kDataAddress);
  if (address == 0) return {};
  return {std::bit_cast<std::uint8_t*>(address), Get(packet, simulation::command_packet::kDataSize)};
}

}  // namespace

extern "C" {

/// Executes the command packet (40 bytes) at `address`. 0 is success.
std::uint32_t ProcessLibCommand(void* address) {
  if (address == nullptr) return static_cast<std::uint32_t>(simulation::StorelibStatus::BadParameter);
  const std::span packet(static_cast<std::uint8_t*>(address), simulation::command_packet::kSize);
  return simulation::CurrentMachine()->ProcessLibCommand(packet, DataBlock(packet));
}
}
