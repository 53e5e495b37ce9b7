#pragma once

#include <cstdint>

#include "module/storage/scsi/scsi_cmd.h"

// The SCSI commands with which this layer asks a drive about itself (SPC-4, 6; SBC-3, 5). Sizes are in bytes.

namespace orvik::module::storage {

/// INQUIRY (SPC-4, 6.6): standard data, or the page `pageCode` of vital product data.
class Inquiry final : public ScsiCmd {
 public:
  Inquiry(std::uint8_t* data, std::int32_t size, bool vitalProductData, std::uint8_t pageCode);
};

/// READ CAPACITY (10) (SBC-3, 5.15): 8 bytes in.
class ReadCapacity10 final : public ScsiCmd {
 public:
  static constexpr std::uint8_t kDataSize = 8;

  explicit ReadCapacity10(std::uint8_t* data);
};

/// READ CAPACITY (16) (SBC-3, 5.16): SERVICE ACTION IN (16) with service action 10h, 32 bytes in.
class ReadCapacity16 final : public ScsiCmd {
 public:
  static constexpr std::uint8_t kDataSize = 32;

  explicit ReadCapacity16(std::uint8_t* data);
};

/// REQUEST SENSE (SPC-4, 6.39).
class RequestSense final : public ScsiCmd {
 public:
  RequestSense(std::uint8_t* data, std::uint8_t size);
};

/// LOG SENSE (SPC-4, 6.9) of the informational exceptions page.
class LogSenseIECPage final : public ScsiCmd {
 public:
  LogSenseIECPage(std::uint8_t* data, std::uint16_t size);
};

/// LOG SENSE of the self-test results page.
class LogSenseSelfTestPage final : public ScsiCmd {
 public:
  LogSenseSelfTestPage(std::uint8_t* data, std::uint16_t size);
};

/// LOG SENSE of the temperature page.
class LogSenseTemperaturePage final : public ScsiCmd {
 public:
  LogSenseTemperaturePage(std::uint8_t* data, std::uint16_t size);
};

/// MODE SENSE (6) (SPC-4, 6.13) of the informational exceptions control page, without block descriptors.
class ModeSense6IECPage final : public ScsiCmd {
 public:
  ModeSense6IECPage(std::uint8_t* data, std::uint8_t size);
};

/// MODE SENSE (10) (SPC-4, 6.14) of the informational exceptions control page, without block descriptors.
class ModeSense10IECPage final : public ScsiCmd {
 public:
  ModeSense10IECPage(std::uint8_t* data, std::uint16_t size);
};

/// MODE SELECT (6) (SPC-4, 6.11) of what MODE SENSE (6) returned; saved when the page can be.
class ModeSelect6IecPage final : public ScsiCmd {
 public:
  static constexpr std::uint8_t kDataSize = 16;

  explicit ModeSelect6IecPage(std::uint8_t* data);
};

/// MODE SELECT (10) (SPC-4, 6.12) of what MODE SENSE (10) returned; saved when the page can be.
class ModeSelect10IecPage final : public ScsiCmd {
 public:
  static constexpr std::uint8_t kDataSize = 20;

  explicit ModeSelect10IecPage(std::uint8_t* data);
};

/// SEND DIAGNOSTIC (SPC-4, 6.42): self-test `code` (1 to 7), or the default self-test for 0.
class SendDiagnostic final : public ScsiCmd {
 public:
  static constexpr std::uint8_t kAbortBackground = 4;
  static constexpr std::uint8_t kHighestCode = 7;

  explicit SendDiagnostic(std::uint8_t code);
};

}  // namespace orvik::module::storage
