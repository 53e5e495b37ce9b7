#pragma once

// Memory that runs out: this program's allocation functions can be told to fail.

#include <cstdint>

namespace orvik::sweeps {

enum class Shortage : std::uint8_t { None, Once, ForGood };

/// While it lives, the calling thread's allocations are counted from 1, and the one of number `first` fails (with
/// `ForGood`, every one from there on). Those of the outside are passed over: what runs out is the module's memory.
class AllocationFaults {
 public:
  explicit AllocationFaults(Shortage shortage = Shortage::None, std::uint64_t first = 0);
  AllocationFaults(const AllocationFaults&) = delete;
  AllocationFaults& operator=(const AllocationFaults&) = delete;
  ~AllocationFaults();

  static std::uint64_t Counted();
};

}  // namespace orvik::sweeps
