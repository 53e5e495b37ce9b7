#include "simulation/bytes.h"
#include "simulation/io_device.h"
#include "simulation/physical/physical_drive.h"

namespace orvik::simulation {

namespace {

// ATA_PASS_THROUGH_EX on 64-bit Windows.
namespace ata_request {
constexpr Le16 kLength{0};
constexpr Le16 kFlags{2};
constexpr Le32 kDataLength{8};
constexpr Le64 kDataOffset{24};
constexpr Block kPreviousTaskFile{32, 8};
constexpr Block kCurrentTaskFile{40, 8};
constexpr std::size_t kSize = 48;

constexpr std::uint16_t kDataIn = 0x02;
constexpr std::uint16_t kDataOut = 0x04;
constexpr std::uint16_t k48Bit = 0x08;
}  // namespace ata_request

namespace task_file {
constexpr U8 kFeaturesOrError{0};
constexpr U8 kCount{1};
constexpr U8 kLba[] = {{2}, {3}, {4}};
constexpr U8 kDevice{5};
constexpr U8 kCommandOrStatus{6};
}  // namespace task_file

std::uint32_t LbaRegisters(std::span<const std::uint8_t> registers) {
  unsigned lba = 0;
  for (std::size_t i = 0; i < 3; ++i) lba |= unsigned{Get(registers, task_file::kLba[i])} << (8 * i);
  return lba;
}

void SetRegisters(std::span<std::uint8_t> registers, std::uint8_t count, std::uint32_t lba) {
  Set(registers, task_file::kCount, count);
  for (std::size_t i = 0; i < 3; ++i) {
    Set(registers, task_file::kLba[i], static_cast<std::uint8_t>(lba >> (8 * i)));
  }
}

// Only a 48-bit command has previous contents of the registers.
AtaTaskFile CommandIn(std::span<const std::uint8_t> request) {
  const auto current = Inside(request, ata_request::kCurrentTaskFile);
  AtaTaskFile command{.features = Get(current, task_file::kFeaturesOrError),
                      .count = Get(current, task_file::kCount),
                      .lba = LbaRegisters(current),
                      .device = Get(current, task_file::kDevice),
                      .command = Get(current, task_file::kCommandOrStatus)};
  if ((Get(request, ata_request::kFlags) & ata_request::k48Bit) != 0) {
    const auto previous = Inside(request, ata_request::kPreviousTaskFile);
    command.features = static_cast<std::uint16_t>(command.features | Get(previous, task_file::kFeaturesOrError) << 8);
    command.count = static_cast<std::uint16_t>(command.count | Get(previous, task_file::kCount) << 8);
    command.lba |= std::uint64_t{LbaRegisters(previous)} << 24;
  }
  return command;
}

void WriteCompletion(std::span<std::uint8_t> request, const AtaCompletion& completion) {
  const auto current = Inside(request, ata_request::kCurrentTaskFile);
  Set(current, task_file::kFeaturesOrError, completion.error);
  SetRegisters(current, static_cast<std::uint8_t>(completion.count), static_cast<std::uint32_t>(completion.lba));
  Set(current, task_file::kDevice, completion.device);
  Set(current, task_file::kCommandOrStatus, completion.status);
  if ((Get(request, ata_request::kFlags) & ata_request::k48Bit) == 0) return;
  SetRegisters(Inside(request, ata_request::kPreviousTaskFile), static_cast<std::uint8_t>(completion.count >> 8),
               static_cast<std::uint32_t>(completion.lba >> 24));
}

// Which way the request has its data go; 0 on success.
std::uint32_t Check(std::span<const std::uint8_t> request, std::size_t inputSize, std::size_t outputSize,
                    DataDirection& direction) {
  if (inputSize < ata_request::kSize || outputSize < ata_request::kSize) return kErrorInvalidParameter;
  if (Get(request, ata_request::kLength) != ata_request::kSize) return kErrorInvalidParameter;
  const bool in = (Get(request, ata_request::kFlags) & ata_request::kDataIn) != 0;
  const bool out = (Get(request, ata_request::kFlags) & ata_request::kDataOut) != 0;
  if (in && out) return kErrorInvalidParameter;
  const Block area{Get(request, ata_request::kDataOffset), Get(request, ata_request::kDataLength)};
  if (area.size != 0) {
    if (!in && !out) return kErrorInvalidParameter;
    if (area.offset < ata_request::kSize || !Holds(in ? outputSize : inputSize, area)) return kErrorInvalidParameter;
  }
  direction = in ? DataDirection::In : out ? DataDirection::Out : DataDirection::None;
  return 0;
}

}  // namespace

IoResult AnswerAtaPassThrough(AtaDrive& drive, std::span<std::uint8_t> buffer, std::size_t inputSize,
                              std::size_t outputSize) {
  DataDirection direction{};
  if (const auto error = Check(buffer, inputSize, outputSize, direction); error != 0) return {.error = error};
  const AtaTaskFile command = CommandIn(buffer);
  const Block area{Get(buffer, ata_request::kDataOffset), Get(buffer, ata_request::kDataLength)};
  const bool moves = direction != DataDirection::None && direction == AtaDrive::DirectionOf(command);
  const auto completion = drive.Execute(command, moves ? Inside(buffer, area) : std::span<std::uint8_t>());
  if (!completion) return {.error = kErrorTimeout};
  WriteCompletion(buffer, *completion);
  Set(buffer, ata_request::kDataLength, static_cast<std::uint32_t>(completion->transferred));
  const bool comesBack = direction == DataDirection::In && completion->transferred != 0;
  return {.returned = comesBack ? area.offset + completion->transferred : ata_request::kSize};
}

}  // namespace orvik::simulation
