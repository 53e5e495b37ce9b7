#include "utils/dispatcher/thread_pool.h"

#include <system_error>

#include <windows.h>

ThreadPool::~ThreadPool() {
  Stop();
}

void ThreadPool::Start(std::size_t workerCount) {
  workers_.reserve(workerCount);
  try {
    for (std::size_t i = 0; i < workerCount; ++i) workers_.emplace_back(&ThreadPool::Work, this);
  } catch (const std::system_error&) {
    Stop();
    throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
  }
}

void ThreadPool::Stop() {
  if (stopping_.exchange(true)) return;
  queue_.Invalidate();
  for (auto& worker : workers_) {
    if (worker.joinable()) worker.join();
  }
}

void ThreadPool::Work() {
  // The contract uses the value itself as the mask; it is not a bit number.
  SetThreadAffinityMask(GetCurrentThread(), startCounter_++ % affinityModulus_ + 1);
  while (!stopping_ && queue_.IsValid()) {
    try {
      queue_.Pop()->Execute();
    } catch (...) {  // NOLINT(bugprone-empty-catch)
      // A task's exception is lost; the one of an ended queue ends the loop.
    }
  }
}
