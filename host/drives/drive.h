#pragma once

#include <QString>
#include <cstdint>
#include <limits>
#include <optional>

#include "module/raid/device_records.h"
#include "module/storage/protocol.h"

namespace orvik::host {

/// One answer of a drive. Without a value, status 0 says that the drive does not report it.
template <typename Value>
struct Reading {
  module::storage::Status status = module::storage::status::kSuccess;
  std::optional<Value> value;
  bool isAta = false;  ///< who answered speaks ATA: some values mean something else in SCSI
};

/// A member drive and what it has told. Nothing but `index` and `entry` is there before it was asked.
struct Drive {
  int index = 0;  ///< place in the controller's list
  module::raid::StorageDeviceEntry entry;

  /// Of the identification, which may tell a part of `properties` even when it fails.
  std::optional<module::storage::Status> status;
  module::storage::ProtocolProperties properties;
  bool isAtaIdentified = false;  ///< whether some of `properties` came from ATA identify data
  QString problem;               ///< why asking broke off

  Reading<std::uint8_t> temperature;     ///< degrees Celsius
  Reading<std::uint8_t> health;          ///< 1 healthy, 0 a threshold is exceeded
  Reading<std::uint32_t> lifeRemaining;  ///< percent
  Reading<std::uint32_t> powerMode;
  Reading<std::uint8_t> selfTestResult;                   ///< of the latest one
  std::optional<Reading<std::uint8_t>> selfTestProgress;  ///< percent; asked only while one runs
  std::optional<Reading<std::uint64_t>> failingLba;       ///< asked only when the latest one failed

  bool IsIdentified() const { return status == module::storage::status::kSuccess; }

  /// The drive has told something, so that asking it more is worth while.
  bool Answers() const {
    return IsIdentified() || !properties.model.empty() || !properties.serialNumber.empty() ||
           !properties.vendor.empty() || !properties.firmwareRevision.empty();
  }

  /// 0: not reported, or more than 64 bits can tell.
  std::uint64_t CapacityBytes() const {
    const std::uint64_t size = properties.logicalSectorSize;
    const bool fits = size != 0 && properties.sectorCount <= std::numeric_limits<std::uint64_t>::max() / size;
    return fits ? properties.sectorCount * size : 0;
  }
};

}  // namespace orvik::host
