#include <array>
#include <charconv>

#include "platform/hostkit/services.h"

namespace hostkit {

void DecimalNumberHandler::NumberText(std::string& output, std::uint16_t number) const {
  output = std::to_string(number);
}

// Drive makers count in powers of ten, so that a drive of "4.00 TB" is the one whose label says 4 TB.
void DecimalNumberHandler::SizeText(std::string& output, std::uint64_t bytes) const {
  static constexpr std::array kUnits = {"B", "kB", "MB", "GB", "TB", "PB", "EB"};
  if (bytes < 1000) {
    output = std::to_string(bytes) + " B";
    return;
  }
  auto value = static_cast<double>(bytes);
  std::size_t unit = 0;
  // 999.995 would be rounded up to "1000.00".
  while (value >= 999.995 && unit + 1 < kUnits.size()) {
    value /= 1000;
    ++unit;
  }
  std::array<char, 32> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 2).ptr;
  output.assign(digits.data(), end);
  output += ' ';
  output += kUnits.at(unit);
}

}  // namespace hostkit
