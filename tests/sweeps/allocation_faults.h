#pragma once

// Replaces this program's allocation functions with ones that can fail.

#include <cstdint>

namespace orvik::sweeps {

enum class Shortage : std::uint8_t { None, Once, ForGood };

/// During its lifetime, counts the calling thread's allocations from 1 and fails number `first` (with `ForGood`,
/// every one from there on). Skips allocations made outside the module.
class AllocationFaults {
 public:
  explicit AllocationFaults(Shortage shortage = Shortage::None, std::uint64_t first = 0);
  AllocationFaults(const AllocationFaults&) = delete;
  AllocationFaults& operator=(const AllocationFaults&) = delete;
  ~AllocationFaults();

  static std::uint64_t Counted();
};

}  // namespace orvik::sweeps
