#pragma once

#include <QString>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "host/text/words.h"
#include "module/raid/device_records.h"
#include "module/storage/protocol.h"

namespace orvik::host {

/// One value read from a drive. Success without a value means that the drive does not report it.
template <typename Value>
struct Reading {
  module::storage::Status status;
  std::optional<Value> value;
  bool isAta = false;  ///< read through an ATA object; some values have another meaning in SCSI
};

/// A member drive and what was read from it. Only `index` and `entry` are set before `ReadDrive` or `Identify`.
struct Drive {
  int index = 0;  ///< position in the controller's list
  module::raid::StorageDeviceEntry entry;

  /// Of the identification, which may fill a part of `properties` even if it fails.
  std::optional<module::storage::Status> status;
  module::storage::ProtocolProperties properties;
  bool isAtaIdentified = false;  ///< whether some of `properties` came from ATA identify data
  bool isAtaRefused = false;     ///< whether the entry's ATA object reaches another drive and must not be used
  QString problem;               ///< why reading stopped early; empty otherwise

  Reading<std::uint8_t> temperature;     ///< degrees Celsius
  Reading<std::uint8_t> health;          ///< 1 healthy, 0 a threshold is exceeded
  Reading<std::uint32_t> lifeRemaining;  ///< percent
  Reading<std::uint32_t> powerMode;
  Reading<std::uint8_t> selfTestResult;                   ///< of the latest one
  std::optional<Reading<std::uint8_t>> selfTestProgress;  ///< percent; read only while one is running
  std::optional<Reading<std::uint64_t>> failingLba;       ///< read only if the latest one failed

  bool IsIdentified() const { return status && status->Ok(); }

  /// Whether the drive has reported anything, so that reading more is worthwhile.
  bool Answers() const {
    return IsIdentified() || !properties.model.empty() || !properties.serialNumber.empty() ||
           !properties.vendor.empty() || !properties.firmwareRevision.empty();
  }

  /// 0: not reported, or more than fits 64 bits.
  std::uint64_t CapacityBytes() const {
    const std::uint64_t size = properties.logicalSectorSize;
    const bool fits = size != 0 && properties.sectorCount <= std::numeric_limits<std::uint64_t>::max() / size;
    return fits ? properties.sectorCount * size : 0;
  }
};

/// One of the protocol objects that reach a drive, owned by the drive's entry.
struct DriveAccess {
  module::storage::Protocol* protocol = nullptr;
  bool isAta = false;
};

/// Identifies the drive: fills `status` and `properties`. Blocks until the drive has answered.
void Identify(Drive& drive);

/// Identifies the drive and reads everything else. Blocks until the drive has answered.
void ReadDrive(Drive& drive);

/// The drive's protocol objects, the preferred one first, without an ATA object that reaches another drive. Call
/// after `Identify`, which finds out what they speak and reach.
std::vector<DriveAccess> AccessesOf(const Drive& drive);

/// Reads one value. An operation that the protocol does not have succeeds and leaves the output untouched, so the
/// output starts with a value that no drive reports.
template <typename Value, typename Code>
Reading<Value> Read(const DriveAccess& access, Code (module::storage::Protocol::*operation)(Value&)) {
  constexpr Value kUntouched = std::numeric_limits<Value>::max();
  Value value = kUntouched;
  Reading<Value> reading{module::storage::Status((access.protocol->*operation)(value)), std::nullopt, access.isAta};
  if (reading.status.Ok() && value != kUntouched) reading.value = value;
  return reading;
}

/// Progress of a self-test in percent; a value above 100 counts as not reported.
Reading<std::uint8_t> ReadSelfTestProgress(const DriveAccess& access);

/// How a self-test ended, as far as the result codes of ATA and SCSI agree.
enum class SelfTestEnd { Passed, Aborted, Failed, InProgress, Unknown };

/// Of a 4-bit result code.
SelfTestEnd EndOf(std::uint8_t code, bool isAta);

Word ProtocolWord(module::raid::DriveProtocol protocol);
Word HealthWord(std::uint8_t health);
Word PowerModeWord(std::uint32_t mode);

/// Of a self-test's 4-bit result code.
Word SelfTestWord(std::uint8_t code, bool isAta);

}  // namespace orvik::host
