#include "benchmarks/heap_meter.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

bool metering = false;
std::atomic<std::ptrdiff_t> inUse = 0;
std::atomic<std::ptrdiff_t> peak = 0;

void Count(std::ptrdiff_t bytes) {
  const std::ptrdiff_t now = inUse += bytes;
  std::ptrdiff_t highest = peak;
  while (now > highest && !peak.compare_exchange_weak(highest, now)) {
  }
}

}  // namespace

void* operator new(std::size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  if (metering) Count(static_cast<std::ptrdiff_t>(malloc_usable_size(block)));
  return block;
}

void operator delete(void* block) noexcept {
  if (metering) Count(-static_cast<std::ptrdiff_t>(malloc_usable_size(block)));
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
  operator delete(block);
}

std::size_t orvik::benchmarks::PeakOf(const std::function<void()>& work) {
  inUse = 0;
  peak = 0;
  metering = true;
  work();
  metering = false;
  return static_cast<std::size_t>(peak.load());
}
