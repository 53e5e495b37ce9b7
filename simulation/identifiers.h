#pragma once

// GUIDs, and the comparison of names without regard to case.

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvik::simulation {

struct Guid {
  std::uint32_t data1{};
  std::uint16_t data2{};
  std::uint16_t data3{};
  std::array<std::uint8_t, 8> data4{};

  friend bool operator==(const Guid&, const Guid&) = default;
};

/// Reads "{4d36e97b-e325-11ce-bfc1-08002be10318}", in any case; nothing for other texts.
std::optional<Guid> ParseGuid(std::string_view text);

/// Setup class of SCSI and RAID controllers.
inline constexpr Guid kScsiAdapterClass{0x4D36E97B, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};
/// Interface class of storage ports.
inline constexpr Guid kStoragePortInterface{
    0x2ACCFE60, 0xC130, 0x11D2, {0xB0, 0x82, 0x00, 0xA0, 0xC9, 0x1E, 0xFB, 0x8B}};

/// `text` with ASCII letters in lower case: the form in which names, keys and paths of the machine are compared.
inline std::string FoldCase(std::string_view text) {
  std::string folded(text);
  std::ranges::transform(folded, folded.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return folded;
}

}  // namespace orvik::simulation
