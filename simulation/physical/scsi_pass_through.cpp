#include <algorithm>

#include "simulation/bytes.h"
#include "simulation/io_device.h"
#include "simulation/physical/physical_drive.h"

namespace orvik::simulation {

namespace {

// SCSI_PASS_THROUGH on 64-bit Windows.
namespace scsi_request {
constexpr Le16 kLength{0};
constexpr U8 kStatus{2};
constexpr U8 kCdbLength{6};
constexpr U8 kSenseLength{7};
constexpr U8 kDataIn{8};
constexpr Le32 kDataLength{12};
constexpr Le32 kTimeout{16};
constexpr Le64 kDataOffset{24};
constexpr Le32 kSenseOffset{32};
constexpr Block kCdb{36, 16};
constexpr std::size_t kSize = 56;

constexpr std::uint8_t kOut = 0;
constexpr std::uint8_t kIn = 1;
constexpr std::uint8_t kUnspecified = 2;
constexpr std::uint32_t kLongestTimeout = 30 * 60 * 60;
}  // namespace scsi_request

Block DataArea(std::span<const std::uint8_t> request) {
  return {Get(request, scsi_request::kDataOffset), Get(request, scsi_request::kDataLength)};
}

Block SenseArea(std::span<const std::uint8_t> request) {
  return {Get(request, scsi_request::kSenseOffset), Get(request, scsi_request::kSenseLength)};
}

bool HasPlace(Block area, std::size_t bufferSize) {
  return area.size == 0 || (area.offset >= scsi_request::kSize && Holds(bufferSize, area));
}

// Sense data go before the data, and neither over the request itself.
bool AreasFit(std::span<const std::uint8_t> request, std::size_t inputSize, std::size_t outputSize) {
  const Block data = DataArea(request);
  const Block sense = SenseArea(request);
  const bool out = Get(request, scsi_request::kDataIn) == scsi_request::kOut;
  if (!HasPlace(data, out ? inputSize : outputSize) || !HasPlace(sense, outputSize)) return false;
  return sense.size == 0 || data.size == 0 || sense.offset + sense.size <= data.offset;
}

std::uint32_t Check(std::span<const std::uint8_t> request, std::size_t inputSize, std::size_t outputSize) {
  if (inputSize < scsi_request::kSize || outputSize < scsi_request::kSize) return kErrorInvalidParameter;
  if (Get(request, scsi_request::kLength) != scsi_request::kSize) return kErrorRevisionMismatch;
  const std::size_t cdbLength = Get(request, scsi_request::kCdbLength);
  const std::uint32_t timeout = Get(request, scsi_request::kTimeout);
  if (cdbLength == 0 || cdbLength > scsi_request::kCdb.size) return kErrorInvalidParameter;
  if (timeout == 0 || timeout > scsi_request::kLongestTimeout) return kErrorInvalidParameter;
  if (Get(request, scsi_request::kDataIn) > scsi_request::kUnspecified) return kErrorInvalidParameter;
  return AreasFit(request, inputSize, outputSize) ? 0 : kErrorInvalidParameter;
}

// A request may leave the way open; then the command decides.
bool Moves(std::uint8_t wanted, DataDirection direction) {
  if (direction == DataDirection::None) return false;
  if (wanted == scsi_request::kUnspecified) return true;
  return (wanted == scsi_request::kIn) == (direction == DataDirection::In);
}

}  // namespace

// What comes back ends with the data that came in, else with the sense data.
IoResult AnswerScsiPassThrough(ScsiDrive& drive, std::span<std::uint8_t> buffer, std::size_t inputSize,
                               std::size_t outputSize) {
  if (const auto error = Check(buffer, inputSize, outputSize); error != 0) return {.error = error};
  const Block area = DataArea(buffer);
  const Block senseArea = SenseArea(buffer);
  const auto cdb = Inside(buffer, {scsi_request::kCdb.offset, Get(buffer, scsi_request::kCdbLength)});
  const DataDirection direction = ScsiDrive::DirectionOf(cdb);
  const bool moves = Moves(Get(buffer, scsi_request::kDataIn), direction);
  const auto completion = drive.Execute(cdb, moves ? Inside(buffer, area) : std::span<std::uint8_t>());
  if (!completion) return {.error = kErrorTimeout};

  const std::size_t senseSize = std::min(completion->sense.size(), senseArea.size);
  Set(buffer, scsi_request::kStatus, completion->status);
  Set(buffer, scsi_request::kSenseLength, static_cast<std::uint8_t>(senseSize));
  Set(buffer, scsi_request::kDataLength, static_cast<std::uint32_t>(completion->transferred));
  SetBytes(buffer, {senseArea.offset, senseSize}, completion->sense);
  std::size_t returned = scsi_request::kSize;
  if (senseSize != 0) returned = senseArea.offset + senseSize;
  if (direction == DataDirection::In && completion->transferred != 0)
    returned = area.offset + completion->transferred;
  return {.returned = returned};
}

}  // namespace orvik::simulation
