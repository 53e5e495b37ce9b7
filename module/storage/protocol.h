#pragma once

#include <cstdint>
#include <memory>

#include "module/storage/protocol_properties.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

/// What a protocol object speaks, for `Protocol::SetInterfaceKind`.
namespace interface_kind {
inline constexpr std::uint32_t kAta = 1;
inline constexpr std::uint32_t kScsi = 2;
inline constexpr std::uint32_t kNvme = 4;
}  // namespace interface_kind

/// A drive, whatever it speaks and however it is reached. Hosts hold these objects and call them by virtual slot, so
/// the order of the operations is a binary contract. Each operation blocks until the drive has answered; an object
/// serves one thread at a time. An operation that a protocol hasn't got succeeds and leaves its output as it was.
class Protocol {
 public:
  Protocol(const Protocol&) = delete;
  Protocol& operator=(const Protocol&) = delete;

  virtual ~Protocol();  // slot 0

  /// Slot 1: the native handle of the preferred bridge, or null.
  virtual void* GetHandle() const = 0;
  /// Slot 2: identifies the drive. `interfaceHint` of the record is an input and kept.
  virtual Status GetProperties(ProtocolProperties* properties) = 0;
  /// Slot 3: reads `count` sectors; the timeout is in seconds. For ATA and SCSI the buffer must hold `count` sectors
  /// of the `logicalSectorSize` found by the last identification, which must have been made; NVMe fills `length`
  /// bytes.
  virtual Status Read(std::uint64_t lba, std::uint16_t count, std::uint32_t timeout, std::uint8_t* buffer,
                      std::uint32_t length) = 0;
  /// Slot 4: degrees Celsius.
  virtual Status GetTemperature(std::uint8_t& degrees) = 0;
  /// Slot 5: starts a self-test by its ATA subcommand or SCSI self-test code; ATA takes `count` in the count
  /// register.
  virtual Status StartSelfTest(std::uint8_t code, std::uint8_t count) = 0;
  /// Slot 6: percent done.
  virtual Status GetSelfTestProgress(std::uint8_t& percent) = 0;
  /// Slot 7: the 4-bit result of the latest self-test, by its standard.
  virtual Status GetSelfTestResult(std::uint8_t& result) = 0;
  /// Slot 8: aborts a self-test that runs in the background.
  virtual Status AbortSelfTest() = 0;
  /// Slot 9: where the latest self-test failed. A SCSI self-test without a failure gives status 1 and an LBA of all
  /// ones.
  virtual Status GetSelfTestFailingLba(std::uint64_t& lba) = 0;
  /// Slot 10: 1 healthy, 0 a threshold is exceeded.
  virtual Status GetHealthStatus(std::uint8_t& healthy) = 0;
  /// Slot 11: switches failure prediction.
  virtual Status SetSmartEnabled(std::uint8_t enable) = 0;
  /// Slot 12: the drive can be identified.
  virtual bool IsSupported();
  /// Slot 13: makes a sector unreadable until it is written again.
  virtual Status WriteUncorrectable(std::uint64_t lba) = 0;
  /// Slot 14: writes `count` sectors of the `logicalSectorSize` found by the last identification.
  virtual Status Write(std::uint64_t lba, std::uint16_t count, std::uint64_t ignored, std::uint8_t* buffer) = 0;
  /// Slot 15: percent of the drive's life that remain.
  virtual Status GetLifeRemaining(std::uint32_t& percent) = 0;
  /// Slot 16: 0 standby, 1 idle, 2 active or idle, 3 other.
  virtual Status GetPowerMode(std::uint32_t& mode) = 0;
  /// Slot 17: puts the drive into idle mode at once.
  virtual Status Idle() = 0;

  /// One of `interface_kind`; stored for the holder of the object.
  void SetInterfaceKind(std::uint32_t kind) { interfaceKind_ = kind; }

  /// Asks the operating system whether the drive predicts its failure: 1 healthy, 0 not. 0, or 34.
  Status QueryPredictFailure(std::uint8_t& healthy) const;

 protected:
  Protocol();

  /// Hands the drive's record out; the caller's hint stays.
  void CopyProperties(ProtocolProperties& properties) const;

  std::shared_ptr<ProtocolProperties> properties_;
  std::uint32_t interfaceHint_ = 4;
  std::uint32_t interfaceKind_ = 0;
};

}  // namespace orvik::module::storage
