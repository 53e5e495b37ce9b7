#pragma once

// A SCSI block device (a SAS drive): takes a CDB, moves data and answers with status and sense data.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "simulation/drives/drive_descriptions.h"

namespace orvik::simulation {

inline constexpr std::uint8_t kScsiGood = 0x00;
inline constexpr std::uint8_t kScsiCheckCondition = 0x02;

struct ScsiCompletion {
  std::uint8_t status = kScsiGood;
  std::vector<std::uint8_t> sense{};
  /// Bytes that the drive moved.
  std::size_t transferred{};
};

class ScsiDrive {
 public:
  explicit ScsiDrive(SasDriveDescription description);

  /// Executes `cdb` on `data`, the bytes that come in or go out. Nothing when the drive does not answer.
  std::optional<ScsiCompletion> Execute(std::span<const std::uint8_t> cdb, std::span<std::uint8_t> data);

  const SasDriveDescription& Description() const { return description_; }

 private:
  SasDriveDescription description_;
};

}  // namespace orvik::simulation
