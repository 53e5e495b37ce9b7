#include "simulation/identifiers.h"

#include <charconv>
#include <concepts>

namespace orvik::simulation {

namespace {

constexpr std::string_view kShape = "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";

bool HasShape(std::string_view text) {
  if (text.size() != kShape.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = std::string_view("0123456789abcdefABCDEF").find(text[i]) != std::string_view::npos;
    if (kShape[i] == 'x' ? !digit : text[i] != kShape[i]) return false;
  }
  return true;
}

template <std::unsigned_integral Value>
void ReadHex(std::string_view text, std::size_t position, Value& value) {
  const char* first = text.data() + position;
  std::from_chars(first, first + 2 * sizeof(Value), value, 16);
}

}  // namespace

std::optional<Guid> ParseGuid(std::string_view text) {
  if (!HasShape(text)) return std::nullopt;
  Guid guid;
  ReadHex(text, 1, guid.data1);
  ReadHex(text, 10, guid.data2);
  ReadHex(text, 15, guid.data3);
  for (std::size_t i = 0; i < guid.data4.size(); ++i) {
    ReadHex(text, i < 2 ? 20 + 2 * i : 25 + 2 * (i - 2), guid.data4.at(i));
  }
  return guid;
}

}  // namespace orvik::simulation
