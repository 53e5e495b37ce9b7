#pragma once

// The informational exceptions mode page: whether and how a SCSI drive reports that it is about to fail (SPC-4).

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

/// Not thread-safe.
class ExceptionsPage {
 public:
  static constexpr std::uint8_t kCode = 0x1C;
  static constexpr std::size_t kSize = 12;
  using Bytes = std::array<std::uint8_t, kSize>;

  /// The values that a MODE SENSE command may ask for.
  enum class Values : std::uint8_t { Current, Changeable, Default, Saved };

  explicit ExceptionsPage(FailurePrediction prediction);

  Bytes Read(Values values) const;
  /// Stores the page; returns the position of the first byte that the drive rejects, if any.
  std::optional<std::uint16_t> Write(std::span<const std::uint8_t> page, bool save);
  /// Whether a predicted failure shows in the log page.
  bool Watches() const;
  /// Whether it shows in sense data, too.
  bool ReportsInSense() const;

 private:
  Bytes default_{};
  Bytes current_;
  Bytes saved_;
};

}  // namespace orvik::simulation
