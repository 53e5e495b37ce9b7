#include "platform/hostkit/services.h"

#include <windows.h>

#include <array>
#include <charconv>
#include <filesystem>
#include <string>
#include <system_error>

namespace hostkit {

std::uint32_t MachineTimer::Now() const {
  return static_cast<std::uint32_t>(GetTickCount64());
}

// Unsigned arithmetic: a wrap between the two times does no harm.
double MachineTimer::Elapsed(std::uint32_t start, std::uint32_t end) const {
  return (end - start) / 1000.0;
}

void DecimalNumberHandler::NumberText(std::string& output, std::uint16_t number) const {
  output = std::to_string(number);
}

// Powers of ten, as on the labels of drives: a "4 TB" drive has "4.00 TB".
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

// The objects are created on first use and never destroyed: callers may use them until the process ends.

StringHandler* get_string_handler() {
  return OwnStringHandler();
}

hostkit::NumberHandler* get_number_handler() {
  static auto* const handler = new hostkit::DecimalNumberHandler;
  return handler;
}

hostkit::Timer* get_timer() {
  static auto* const timer = new hostkit::MachineTimer;
  return timer;
}

hostkit::FileSystem* get_filesystem() {
  static auto* const fileSystem = new hostkit::InstalledFileSystem;
  return fileSystem;
}

hostkit::LibraryLoader* get_module() {
  static auto* const loader = new hostkit::SystemLibraryLoader;
  return loader;
}

const char* get_temporary_path() {
  static const auto* const path = [] {
    std::error_code error;
    const std::u8string folder = std::filesystem::temp_directory_path(error).u8string();
    return new std::string(folder.begin(), folder.end());
  }();
  return path->c_str();
}
