#pragma once

// Counts what the machine has handed out and not got back, so that tests can check for leaks.

#include <array>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

namespace orvik::simulation {

enum class Resource : std::uint8_t { FileHandle, DeviceInformationSet, Library, Buffer };
inline constexpr std::size_t kResourceKinds = 4;

/// Thread-safe.
class Ledger {
 public:
  void Take(Resource kind);
  void Return(Resource kind);
  /// Counts a release of something not handed out: closed twice or never opened.
  void InvalidRelease(Resource kind);
  /// Records a thread's request to run on the processors of `mask`.
  void RecordAffinityRequest(std::uint64_t mask);

  std::size_t Outstanding(Resource kind) const;
  std::size_t OutstandingTotal() const;
  std::size_t InvalidReleases() const;
  /// The masks asked for, in order.
  std::vector<std::uint64_t> AffinityRequests() const;

 private:
  struct Account {
    std::size_t taken = 0;
    std::size_t returned = 0;
    std::size_t invalid = 0;
  };

  mutable std::mutex mutex_;
  std::array<Account, kResourceKinds> accounts_{};
  std::vector<std::uint64_t> affinityRequests_;
};

}  // namespace orvik::simulation
