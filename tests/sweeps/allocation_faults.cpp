#include "tests/sweeps/allocation_faults.h"

#include <cstdlib>
#include <new>

#include "tests/sweeps/callers.h"

namespace orvik::sweeps {

namespace {

struct State {
  bool armed = false;
  Shortage shortage = Shortage::None;
  std::uint64_t first = 0;
  std::uint64_t counted = 0;
};

thread_local State state;

bool FailsNow() {
  if (!state.armed) return false;
  ++state.counted;
  if (state.shortage == Shortage::None || state.counted < state.first) return false;
  const Shortage shortage = state.shortage;
  state.armed = false;  // inspecting the callers allocates too
  const bool fails = !CalledFromOutside();
  state.armed = true;
  if (fails && shortage == Shortage::Once) state.shortage = Shortage::None;
  return fails;
}

void* AllocateOrNull(std::size_t size) {
  return FailsNow() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* Allocate(std::size_t size) {
  void* const memory = AllocateOrNull(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

AllocationFaults::AllocationFaults(Shortage shortage, std::uint64_t first) {
  state = {.armed = true, .shortage = shortage, .first = first};
}

AllocationFaults::~AllocationFaults() {
  state.armed = false;
}

std::uint64_t AllocationFaults::Counted() {
  return state.counted;
}

}  // namespace orvik::sweeps

// Replaces all of the unaligned forms: a sanitizer's remaining ones would not match them.
void* operator new(std::size_t size) {
  return orvik::sweeps::Allocate(size);
}
void* operator new[](std::size_t size) {
  return orvik::sweeps::Allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return orvik::sweeps::AllocateOrNull(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return orvik::sweeps::AllocateOrNull(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
