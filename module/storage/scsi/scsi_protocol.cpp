#include "module/storage/scsi/scsi_protocol.h"

#include "module/storage/scsi/scsi_pages.h"
#include "module/storage/scsi/sense_data.h"

namespace orvik::module::storage {

namespace {

using utils::ByteView;

/// What is asked of log pages and sense data: no byte count of a 6-byte CDB is larger.
constexpr std::uint8_t kReplySize = 252;
using ReplyBuffer = std::array<std::uint8_t, kReplySize>;

/// The progress indication in sense-key specific bytes: parts of 65536.
constexpr utils::Be16 kProgress{1};
constexpr std::uint32_t kProgressRange = 65536;

}  // namespace

Status ScsiProtocol::Send(ScsiCmd& command) {
  const Status sent = bridges_.Send(command);
  if (sent != status::kSuccess || command.senseLength == 0) return sent;
  SenseData sense;
  if (const Status decoded = sense.Decode(ByteView(command.sense)); decoded != status::kSuccess) return decoded;
  const bool refused = sense.senseKey == sense_key::kIllegalRequest || sense.senseKey == sense_key::kDataProtect;
  return refused ? status::kCommandRefused : status::kSuccess;
}

Status ScsiProtocol::Fetch(ScsiCmd& command, ByteView& reply) {
  if (const Status sent = Send(command); sent != status::kSuccess) return sent;
  if (command.status != kScsiStatusGood) return status::kScsiStatusNotGood;
  reply = ByteView(DataOf(command));
  return status::kSuccess;
}

Status ScsiProtocol::GetTemperature(std::uint8_t& degrees) {
  ReplyBuffer data{};
  LogSenseTemperaturePage command(data.data(), kReplySize);
  ByteView page;
  if (Fetch(command, page) != status::kSuccess) return status::kFailure;
  const std::uint8_t temperature = page.Get(temperature_page::kTemperature);
  if (!page.Holds({temperature_page::kTemperature.offset, 1}) || temperature == temperature_page::kNotAvailable) {
    return status::kFailure;
  }
  degrees = temperature;
  return status::kSuccess;
}

Status ScsiProtocol::StartSelfTest(std::uint8_t code, std::uint8_t /*count*/) {
  if (code > SendDiagnostic::kHighestCode) return status::kBadArgument;
  SendDiagnostic command(code);
  if (const Status sent = Send(command); sent != status::kSuccess) return sent;
  lastSelfTestStatus_ = command.status;
  return status::kSuccess;
}

Status ScsiProtocol::GetSelfTestProgress(std::uint8_t& percent) {
  ReplyBuffer data{};
  RequestSense command(data.data(), kReplySize);
  ByteView reply;
  SenseData sense;
  if (Fetch(command, reply) != status::kSuccess || sense.Decode(reply) != status::kSuccess) return status::kFailure;
  if (sense.senseKey != sense_key::kNoSense && sense.senseKey != sense_key::kNotReady) return status::kFailure;
  const auto specific = sense.descriptors.find(kSenseKeySpecific);
  if (specific == sense.descriptors.end()) return status::kFailure;
  const std::uint32_t progress = ByteView(specific->second).Get(kProgress);
  percent = static_cast<std::uint8_t>(progress * 100 / kProgressRange);
  return status::kSuccess;
}

Status ScsiProtocol::GetSelfTestResult(std::uint8_t& result) {
  ReplyBuffer data{};
  LogSenseSelfTestPage command(data.data(), kReplySize);
  ByteView page;
  if (Fetch(command, page) != status::kSuccess) return status::kFailure;
  if (!page.Holds({self_test_page::kResult.offset, 1})) return status::kFailure;
  result = page.Get(self_test_page::kResult) & 0x0F;
  return status::kSuccess;
}

Status ScsiProtocol::AbortSelfTest() {
  SendDiagnostic command(SendDiagnostic::kAbortBackground);
  if (const Status sent = Send(command); sent != status::kSuccess) return sent;
  return command.status == kScsiStatusGood ? status::kSuccess : status::kFailure;
}

Status ScsiProtocol::GetSelfTestFailingLba(std::uint64_t& lba) {
  ReplyBuffer data{};
  LogSenseSelfTestPage command(data.data(), kReplySize);
  ByteView page;
  if (Fetch(command, page) != status::kSuccess) return status::kFailure;
  if (!page.Holds({self_test_page::kFirstFailure.offset, 8})) return status::kFailure;
  lba = page.Get(self_test_page::kFirstFailure);
  return lba == self_test_page::kNoFailure ? status::kFailure : status::kSuccess;
}

}  // namespace orvik::module::storage
