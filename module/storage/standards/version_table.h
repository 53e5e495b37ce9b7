#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

namespace orvik::module::storage {

/// The name of a standard by the code that drives report for it.
struct VersionName {
  std::uint16_t code;
  std::string_view name;
};

template <std::size_t Size>
constexpr bool IsInCodeOrder(const std::array<VersionName, Size>& table) {
  return std::ranges::adjacent_find(table, std::ranges::greater_equal{}, &VersionName::code) == table.end();
}

/// The name in a table in code order; empty for a code that isn't in it.
template <std::size_t Size>
constexpr std::string_view FindVersion(const std::array<VersionName, Size>& table, std::uint16_t code) {
  const auto found = std::ranges::lower_bound(table, code, {}, &VersionName::code);
  return found != table.end() && found->code == code ? found->name : std::string_view();
}

}  // namespace orvik::module::storage
