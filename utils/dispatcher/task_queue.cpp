#include "utils/dispatcher/task_queue.h"

#include <stdexcept>
#include <thread>
#include <utility>

namespace {

// About as long as it takes to put a thread to sleep and to wake it again.
constexpr int kLooksBeforeSleep = 30;
constexpr int kTriesBeforeLock = 100;

}  // namespace

void TaskQueue::Push(orvik::utils::QueuedTask task) {
  bool call = false;
  {
    const auto lock = Lock();
    if (invalidated_) return;
    entries_.push_back(std::move(task));
    filled_.store(true, std::memory_order_relaxed);
    call = CallsSleeper();
  }
  if (call) available_.notify_one();
}

orvik::utils::QueuedTask TaskQueue::Pop() {
  auto lock = Lock();
  if (entries_.empty()) WaitForEntry(lock);
  if (entries_.empty()) throw std::logic_error("Invalidated queue!");
  auto task = std::move(entries_.front());
  entries_.pop_front();
  if (entries_.empty()) filled_.store(false, std::memory_order_relaxed);
  const bool call = CallsSleeper();
  lock.unlock();
  if (call) available_.notify_one();
  return task;
}

bool TaskQueue::CallsSleeper() {
  if (sleeping_ == 0 || called_ || entries_.size() <= seeking_) return false;
  --sleeping_;
  ++seeking_;
  called_ = true;
  return true;
}

bool TaskQueue::IsValid() const {
  return !invalidated_;
}

void TaskQueue::Invalidate() {
  {
    const auto lock = Lock();
    invalidated_ = true;
  }
  available_.notify_all();
}

std::unique_lock<std::mutex> TaskQueue::Lock() {
  // The mutex is held for nanoseconds, so that a few tries are cheaper than a sleep.
  std::unique_lock lock(mutex_, std::try_to_lock);
  for (int i = 0; !lock && i < kTriesBeforeLock; ++i) static_cast<void>(lock.try_lock());
  if (!lock) lock.lock();
  return lock;
}

void TaskQueue::WaitForEntry(std::unique_lock<std::mutex>& lock) {
  const auto isOver = [this] { return invalidated_ || !entries_.empty(); };
  ++seeking_;
  while (!isOver()) {
    lock.unlock();
    for (int i = 0; i < kLooksBeforeSleep && !filled_.load(std::memory_order_relaxed); ++i) std::this_thread::yield();
    lock.lock();
    if (isOver()) break;
    --seeking_;
    ++sleeping_;
    available_.wait(lock, [this] { return invalidated_ || called_; });
    if (invalidated_) return;
    called_ = false;  // whoever called has moved this consumer from the sleeping to the seeking
  }
  --seeking_;
}
