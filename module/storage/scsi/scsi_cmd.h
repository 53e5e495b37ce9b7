#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "module/storage/transfer.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

/// A SCSI command: its CDB, and after the send the status and sense data that the drive answered with. The buffer
/// belongs to the caller.
class ScsiCmd {
 public:
  ScsiCmd() = default;
  ScsiCmd(const ScsiCmd&) = default;
  ScsiCmd& operator=(const ScsiCmd&) = default;
  virtual ~ScsiCmd() = default;

  std::array<std::uint8_t, 16> cdb{};
  std::uint8_t cdbLength = 0;
  std::uint8_t status = 0;
  std::array<std::uint8_t, 32> sense{};
  std::uint64_t senseLength = 0;  ///< sense bytes delivered; 0: none
  std::uint64_t length = 0;       ///< bytes to transfer; after the send the bytes received
  std::uint8_t* buffer = nullptr;
  Direction direction = Direction::kNone;
  std::uint32_t timeout = kDefaultTimeoutSeconds;

 protected:
  /// Empties the CDB and gives it its operation code.
  utils::MutableByteView StartCdb(std::uint8_t operationCode, std::uint8_t size) {
    cdb.fill(0);
    cdb[0] = operationCode;
    cdbLength = size;
    return {cdb};
  }

  void Transfer(Direction way, std::uint8_t* data, std::uint64_t size) {
    direction = way;
    buffer = data;
    length = size;
  }

  void TakeIn(std::uint8_t* data, std::uint64_t size) {
    Transfer(size == 0 ? Direction::kNone : Direction::kIn, data, size);
  }
};

/// SCSI status GOOD (SAM-5, 5.3.1).
inline constexpr std::uint8_t kScsiStatusGood = 0x00;

}  // namespace orvik::module::storage
