#pragma once

// The informational exceptions mode page: whether and how a SCSI drive reports that it is about to fail (SPC-4).

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

/// For one thread at a time.
class ExceptionsPage {
 public:
  static constexpr std::uint8_t kCode = 0x1C;
  static constexpr std::size_t kSize = 12;
  using Bytes = std::array<std::uint8_t, kSize>;

  /// The values that a MODE SENSE command may ask for.
  enum class Values : std::uint8_t { Current, Changeable, Default, Saved };

  explicit ExceptionsPage(FailurePrediction prediction);

  Bytes Read(Values values) const;
  /// Takes over the page; the number of the first byte that the drive does not accept, if any.
  std::optional<std::uint16_t> Write(std::span<const std::uint8_t> page, bool save);
  /// Whether a failure that is predicted shows in the log page.
  bool Watches() const;
  /// Whether it shows in sense data, too.
  bool ReportsInSense() const;

 private:
  Bytes default_{};
  Bytes current_;
  Bytes saved_;
};

}  // namespace orvik::simulation
