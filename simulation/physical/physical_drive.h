#pragma once

// A drive without a controller: the device behind `\\.\PhysicalDriveN`.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "simulation/drives/ata/ata_drive.h"
#include "simulation/drives/drive.h"
#include "simulation/drives/scsi/scsi_drive.h"
#include "simulation/io_device.h"

namespace orvik::simulation {

class PhysicalDrive : public IoDevice {
 public:
  PhysicalDrive(const PhysicalDriveDescription& description, const std::shared_ptr<const Clock>& clock);

  /// True when a fault rule knows a request by this name.
  static bool HasRequest(std::string_view name);

  std::string_view PacketName(std::uint32_t controlCode, std::span<const std::uint8_t> buffer) const override;
  IoResult Control(std::uint32_t controlCode, std::span<std::uint8_t> buffer, std::size_t inputSize,
                   std::size_t outputSize) override;

 private:
  using Buffer = std::span<std::uint8_t>;

  struct Request {
    std::string_view name;
    std::uint32_t controlCode;
    /// Sends the host's own command to the drive.
    bool passesThrough;
    IoResult (PhysicalDrive::*execute)(Buffer, std::size_t, std::size_t);
  };
  static std::span<const Request> Requests();
  static const Request* Find(std::uint32_t controlCode);

  IoResult AtaPassThrough(Buffer buffer, std::size_t inputSize, std::size_t outputSize);
  IoResult ScsiPassThrough(Buffer buffer, std::size_t inputSize, std::size_t outputSize);
  IoResult PredictFailure(Buffer buffer, std::size_t inputSize, std::size_t outputSize);

  Drive drive_;
  bool accessDenied_;
};

// The pass-through requests of Windows, as its disk and port drivers check and answer them. `buffer` is the system
// buffer of a METHOD_BUFFERED request: it holds `inputSize` bytes of request and takes up to `outputSize` of answer.
IoResult AnswerAtaPassThrough(AtaDrive& drive, std::span<std::uint8_t> buffer, std::size_t inputSize,
                              std::size_t outputSize);
IoResult AnswerScsiPassThrough(ScsiDrive& drive, std::span<std::uint8_t> buffer, std::size_t inputSize,
                               std::size_t outputSize);

}  // namespace orvik::simulation
