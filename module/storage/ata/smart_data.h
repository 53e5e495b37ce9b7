#pragma once

#include <cstdint>
#include <optional>

#include "module/storage/protocol_properties.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

/// What SMART READ DATA returns (ACS-3, 7.48.6, and the attribute table that drives put into its vendor part).
class SmartData {
 public:
  explicit SmartData(utils::ByteView data) : data_(data) {}

  /// Degrees Celsius of the last temperature attribute; none without one.
  std::optional<std::uint8_t> Temperature() const;

  /// Percent of the first wear-out attribute whose value is in range; none without one.
  std::optional<std::uint8_t> LifeRemaining() const;

  /// Percent that the running self-test has done.
  std::uint8_t SelfTestProgress() const;

  /// The 4-bit status of the latest self-test.
  std::uint8_t SelfTestResult() const;

  /// Which off-line activities and self-tests the drive can do.
  void DescribeCapabilities(ProtocolProperties& properties) const;

 private:
  utils::ByteView data_;
};

}  // namespace orvik::module::storage
