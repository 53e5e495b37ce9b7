#pragma once

#include <QString>
#include <optional>
#include <utility>

namespace orvik::host {

/// Why an operation failed, in one line for the user.
struct Error {
  QString text;
};

/// The value of an operation, or the error that kept it from producing one. It does not convert to `bool`, because a
/// `Result<bool>` would then be read the wrong way.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : value_(std::move(value)) {}            // NOLINT(google-explicit-constructor)
  Result(host::Error error) : error_(std::move(error)) {}  // NOLINT(google-explicit-constructor)

  bool Ok() const { return value_.has_value(); }

  /// Only if `Ok()`.
  const T& Value() const& { return *value_; }
  T& Value() & { return *value_; }
  T&& Value() && { return *std::move(value_); }

  /// Ready to be returned as another function's result; empty if `Ok()`.
  const host::Error& Error() const { return error_; }

 private:
  std::optional<T> value_;
  host::Error error_;
};

/// Of an operation without a value.
template <>
class [[nodiscard]] Result<void> {
 public:
  Result() = default;
  Result(host::Error error) : error_(std::move(error)) {}  // NOLINT(google-explicit-constructor)

  bool Ok() const { return !error_.has_value(); }
  host::Error Error() const { return error_.value_or(host::Error()); }

 private:
  std::optional<host::Error> error_;
};

}  // namespace orvik::host
