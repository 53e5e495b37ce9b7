#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

namespace orvik::benchmarks {

/// The calls that a piece of work makes to Windows, to the vendor's library and for texts of sizes to the host's, to
/// be made again without the work: the same calls in the same order with the same bytes. This program stands between
/// the module and the stand-ins and sees them all. One thread at a time.
class OutsideCalls {
 public:
  using Call = std::function<void(OutsideCalls&)>;

  void Record(const std::function<void()>& work);
  void Replay();
  std::size_t Size() const { return calls_.size(); }

  // For the calls themselves. What a recorded call gave out has a number, by which its successors know it.
  void Add(Call call) { calls_.push_back(std::move(call)); }
  std::size_t NewObject(void* recorded);
  std::size_t Object(void* recorded) const;
  void*& Live(std::size_t number) { return live_[number]; }
  /// Room for the bytes of a call, which start as `bytes`.
  std::uint8_t* Room(const std::vector<std::uint8_t>& bytes, std::size_t size);

 private:
  std::vector<Call> calls_;
  std::unordered_map<void*, std::size_t> numbers_;
  std::vector<void*> live_;
  std::vector<std::uint8_t> room_;
};

/// From now on each request to a driver or to the vendor's library takes at least this long, as one does that has to
/// go through a system.
void SetRequestTime(std::chrono::nanoseconds least);

}  // namespace orvik::benchmarks
