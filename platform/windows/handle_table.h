#pragma once

#include <windows.h>

#include <bit>
#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace orvik::platform::windows {

/// The objects behind handles of one kind. A closed handle's value is given out again first, as Windows does, so that
/// a command on a closed handle reaches another object. May be used from several threads.
template <typename Object>
class HandleTable {
 public:
  /// `first`: the value of the first handle; the ranges of two tables must not overlap.
  explicit HandleTable(ULONG_PTR first) : next_(first) {}

  HANDLE Add(std::shared_ptr<Object> object) {
    const std::scoped_lock lock(mutex_);
    ULONG_PTR value = next_;
    if (closed_.empty()) {
      next_ += 4;
    } else {
      value = closed_.back();
      closed_.pop_back();
    }
    objects_.emplace(value, std::move(object));
    return std::bit_cast<HANDLE>(value);
  }

  std::shared_ptr<Object> Find(HANDLE handle) const {
    const std::scoped_lock lock(mutex_);
    const auto found = objects_.find(std::bit_cast<ULONG_PTR>(handle));
    return found == objects_.end() ? nullptr : found->second;
  }

  /// Null when there is no such handle.
  std::shared_ptr<Object> Remove(HANDLE handle) {
    const std::scoped_lock lock(mutex_);
    const auto node = objects_.extract(std::bit_cast<ULONG_PTR>(handle));
    if (node.empty()) return nullptr;
    closed_.push_back(node.key());
    return node.mapped();
  }

 private:
  mutable std::mutex mutex_;
  ULONG_PTR next_;
  std::vector<ULONG_PTR> closed_;
  std::map<ULONG_PTR, std::shared_ptr<Object>> objects_;
};

}  // namespace orvik::platform::windows
