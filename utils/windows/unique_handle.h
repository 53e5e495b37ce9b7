#pragma once

#include <utility>

#include <windows.h>

#include <setupapi.h>

namespace orvik::utils {

/// Owns what `Traits::Release` gives back. Empty: `Traits::Empty()`.
template <typename Traits>
class UniqueResource {
 public:
  using Value = typename Traits::Value;

  UniqueResource() = default;
  explicit UniqueResource(Value value) : value_(value) {}
  UniqueResource(UniqueResource&& other) noexcept : value_(std::exchange(other.value_, Traits::Empty())) {}
  UniqueResource& operator=(UniqueResource&& other) noexcept {
    if (this != &other) Reset(std::exchange(other.value_, Traits::Empty()));
    return *this;
  }
  ~UniqueResource() { Reset(); }

  Value Get() const { return value_; }
  explicit operator bool() const { return value_ != Traits::Empty(); }

  void Reset(Value value = Traits::Empty()) {
    const Value old = std::exchange(value_, value);
    if (old != Traits::Empty()) Traits::Release(old);
  }

 private:
  Value value_ = Traits::Empty();
};

struct FileHandleTraits {
  using Value = HANDLE;
  static Value Empty() { return INVALID_HANDLE_VALUE; }
  static void Release(Value handle) { CloseHandle(handle); }
};

struct DeviceInfoSetTraits {
  using Value = HDEVINFO;
  static Value Empty() { return INVALID_HANDLE_VALUE; }
  static void Release(Value set) { SetupDiDestroyDeviceInfoList(set); }
};

/// An open file or device; closed with its owner.
using UniqueHandle = UniqueResource<FileHandleTraits>;

/// A device information set; destroyed with its owner.
using UniqueDeviceInfoSet = UniqueResource<DeviceInfoSetTraits>;

}  // namespace orvik::utils
