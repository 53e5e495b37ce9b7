#include "fuzz/replies.h"

#include <algorithm>
#include <numeric>
#include <span>

namespace orvik::fuzz {

using namespace module::storage;

namespace {

constexpr std::uint8_t kFailed = 0x01;
constexpr std::uint8_t kShort = 0x02;   // no more comes back than there is in the input
constexpr std::uint8_t kSummed = 0x04;  // each page gets the last byte that makes it sum to 0
constexpr std::size_t kPage = 512;

template <typename Command>
std::span<std::uint8_t> Incoming(const Command& command) {
  if constexpr (requires { command.direction; }) {
    if (command.direction != Direction::kIn) return {};
  }
  return DataOf(command);
}

/// Fills the caller's buffer; returns the number of bytes that there were.
std::size_t TakeData(Input& input, std::span<std::uint8_t> data) {
  std::ranges::fill(data, std::uint8_t{0});
  const auto bytes = input.Bytes(std::min<std::size_t>(input.Word(), data.size()));
  std::ranges::copy(bytes, data.begin());
  return bytes.size();
}

void SumPages(std::span<std::uint8_t> data) {
  for (; data.size() >= kPage; data = data.subspan(kPage)) {
    data[kPage - 1] = 0;
    const unsigned sum = std::accumulate(data.begin(), data.begin() + kPage, 0U);
    data[kPage - 1] = static_cast<std::uint8_t>(0U - sum);
  }
}

// Zeros at the end need not be written: the buffer is cleared first.
template <typename Command>
void WriteData(Record& record, const Command& command) {
  std::span<const std::uint8_t> data = Incoming(command);
  while (!data.empty() && data.back() == 0) data = data.first(data.size() - 1);
  data = data.first(std::min<std::size_t>(data.size(), 0xFFFF));
  record.push_back(static_cast<std::uint8_t>(data.size() & 0xFF));
  record.push_back(static_cast<std::uint8_t>(data.size() >> 8));
  record.insert(record.end(), data.begin(), data.end());
}

std::uint8_t Flags(Status sent) {
  return sent == status::kSuccess ? std::uint8_t{0} : kFailed;
}

}  // namespace

Status TakeReply(Input& input, AtaCmd& command) {
  if (input.IsEmpty()) return status::kIoctlFailed;
  const std::uint8_t flags = input.Byte();
  SetCurrent(command.features, input.Byte());
  command.sectorCount = input.Byte();
  command.lbaLow = input.Byte();
  command.lbaMid = input.Byte();
  command.lbaHigh = input.Byte();
  command.command = input.Byte();
  const auto data = Incoming(command);
  const std::size_t taken = TakeData(input, data);
  if ((flags & kShort) != 0) command.length = taken;
  if ((flags & kSummed) != 0) SumPages(data);
  return (flags & kFailed) != 0 ? status::kIoctlFailed : status::kSuccess;
}

void WriteReply(Record& record, Status sent, const AtaCmd& command) {
  record.insert(record.end(),
                {Flags(sent), Current(command.features), Current(command.sectorCount), Current(command.lbaLow),
                 Current(command.lbaMid), Current(command.lbaHigh), command.command});
  WriteData(record, command);
}

Status TakeReply(Input& input, ScsiCmd& command) {
  if (input.IsEmpty()) return status::kIoctlFailed;
  const std::uint8_t flags = input.Byte();
  command.status = input.Byte();
  const auto sense = input.Bytes(input.Byte() % (command.sense.size() + 1));
  std::ranges::copy(sense, command.sense.begin());
  command.senseLength = sense.size();
  const std::size_t taken = TakeData(input, Incoming(command));
  if ((flags & kShort) != 0) command.length = taken;
  return (flags & kFailed) != 0 ? status::kIoctlFailed : status::kSuccess;
}

void WriteReply(Record& record, Status sent, const ScsiCmd& command) {
  const auto senseLength =
      static_cast<std::uint8_t>(std::min<std::size_t>(command.senseLength, command.sense.size()));
  record.insert(record.end(), {Flags(sent), command.status, senseLength});
  record.insert(record.end(), command.sense.begin(), command.sense.begin() + senseLength);
  WriteData(record, command);
}

Status TakeReply(Input& input, NvmeCmd& command) {
  if (input.IsEmpty()) return status::kFailure;
  const std::uint8_t flags = input.Byte();
  TakeData(input, Incoming(command));
  return (flags & kFailed) != 0 ? status::kFailure : status::kSuccess;
}

void WriteReply(Record& record, Status sent, const NvmeCmd& command) {
  record.push_back(Flags(sent));
  WriteData(record, command);
}

}  // namespace orvik::fuzz
