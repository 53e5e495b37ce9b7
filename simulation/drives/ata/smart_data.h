#pragma once

// The data structures that an ATA drive hands out about its health (ACS-3).

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "simulation/drives/base/self_tests.h"

namespace orvik::simulation {

inline constexpr std::size_t kAtaPage = 512;
inline constexpr std::size_t kExtendedSelfTestLogPages = 2;

// Addresses of logs.
inline constexpr std::uint8_t kLogDirectory = 0x00;
inline constexpr std::uint8_t kSelfTestLog = 0x06;
inline constexpr std::uint8_t kExtendedSelfTestLog = 0x07;

struct SmartReport {
  bool failing{};
  int temperatureCelsius{};
  std::uint32_t powerOnHours{};
  std::size_t unreadableSectors{};
  std::optional<unsigned> lifeRemainingPercent{};
  std::uint8_t selfTestStatus{};
  std::uint16_t shortMinutes{};
  std::uint16_t extendedMinutes{};
  std::uint16_t conveyanceMinutes{};
};

/// SMART READ DATA.
std::vector<std::uint8_t> MakeSmartData(const SmartReport& report);

/// The number by which SMART EXECUTE OFF-LINE IMMEDIATE and the logs know a test.
std::uint8_t AtaSelfTestNumber(SelfTestKind kind);
/// Self-test execution status: how the latest test ended, or how far the running one is.
std::uint8_t AtaSelfTestStatus(SelfTests& selfTests);

/// Log 06h, one page; `ended` has the oldest first.
std::vector<std::uint8_t> MakeSelfTestLog(std::span<const SelfTestEntry> ended);
/// Log 07h.
std::vector<std::uint8_t> MakeExtendedSelfTestLog(std::span<const SelfTestEntry> ended);

struct LogSize {
  std::uint8_t address;
  std::uint16_t pages;
};

/// Log 00h: the sizes of the others.
std::vector<std::uint8_t> MakeLogDirectory(std::span<const LogSize> sizes);

}  // namespace orvik::simulation
