#include "module/storage/ata/ata_protocol.h"

#include <array>
#include <optional>
#include <span>

#include "module/storage/ata/smart_data.h"

namespace orvik::module::storage {

namespace {

constexpr std::uint32_t kSmallestSectorSize = 512;

constexpr std::uint64_t kSectors28 = std::uint64_t{1} << 28;
constexpr std::uint16_t kMaximumCount28 = 0xFF;
constexpr std::uint64_t kSectors48 = std::uint64_t{1} << 48;

constexpr std::uint8_t kAbortSelfTest = 0x7F;

/// The LBA mid and high registers after SMART RETURN STATUS.
constexpr std::uint8_t kHealthyMid = 0x4F;
constexpr std::uint8_t kHealthyHigh = 0xC2;
constexpr std::uint8_t kThresholdExceededMid = 0xF4;
constexpr std::uint8_t kThresholdExceededHigh = 0x2C;

/// What a bit of the ERROR register means for a command; the first match counts.
struct ErrorMeaning {
  std::uint8_t bit;
  Status meaning;
};
constexpr std::array<ErrorMeaning, 2> kReadErrors = {
    {{ata_error::kUncorrectable, status::kMediumError}, {ata_error::kInterfaceCrc, status::kInterfaceError}}};
constexpr std::array<ErrorMeaning, 2> kSelfTestErrors = {
    {{ata_error::kAbort, status::kSelfTestAborted}, {ata_error::kIdNotFound, status::kSelfTestRejected}}};

bool EndedWithError(const AtaCmd& command) {
  return (command.command & kAtaStatusError) != 0;
}

Status Verdict(const AtaCmd& command, std::span<const ErrorMeaning> meanings) {
  if (!EndedWithError(command)) return status::kSuccess;
  for (const auto& [bit, meaning] : meanings) {
    if ((Current(command.features) & bit) != 0) return meaning;
  }
  return status::kDeviceError;
}

std::optional<bool> SmartVerdict(const SmartReturnStatus& command) {
  const std::uint8_t mid = Current(command.lbaMid);
  const std::uint8_t high = Current(command.lbaHigh);
  if (mid == kHealthyMid && high == kHealthyHigh) return true;
  if (mid == kThresholdExceededMid && high == kThresholdExceededHigh) return false;
  return std::nullopt;
}

}  // namespace

Status AtaProtocol::Execute(AtaCmd& command) {
  const Status sent = bridges_.Send(command);
  return sent == status::kSuccess ? Verdict(command, {}) : sent;
}

Status AtaProtocol::ReadSmartData(Page& data) {
  SmartReadData command(data.data());
  return Execute(command);
}

bool AtaProtocol::CanTransfer(std::uint64_t lba, std::uint16_t count, const std::uint8_t* buffer) const {
  // A count of 0 is what the registers use for their maximum, and not meant.
  const bool lba48 = properties_->lba48Supported;
  const std::uint64_t sectors = lba48 ? kSectors48 : kSectors28;
  if (count == 0 || lba >= sectors || count > sectors - lba) return false;
  if (!lba48 && count > kMaximumCount28) return false;
  return IsTransferable(buffer, std::uint64_t{count} * properties_->logicalSectorSize);
}

Status AtaProtocol::Read(std::uint64_t lba, std::uint16_t count, std::uint32_t timeout, std::uint8_t* buffer,
                         std::uint32_t /*length*/) {
  const std::uint32_t size = properties_->logicalSectorSize;
  if (size < kSmallestSectorSize || !CanTransfer(lba, count, buffer)) return status::kBadArgument;
  std::unique_ptr<AtaCmd> command;
  if (properties_->lba48Supported) {
    command = std::make_unique<ReadSectorsExt>(lba, count, size, buffer, timeout);
  } else {
    command = std::make_unique<ReadSectors>(lba, static_cast<std::uint8_t>(count), size, buffer, timeout);
  }
  const Status sent = bridges_.Send(*command);
  if (sent != status::kSuccess && sent != status::kNoDataTransferred) return sent;
  return Verdict(*command, kReadErrors);
}

Status AtaProtocol::Write(std::uint64_t lba, std::uint16_t count, std::uint64_t /*ignored*/, std::uint8_t* buffer) {
  if (!CanTransfer(lba, count, buffer)) return status::kBadArgument;
  const std::uint32_t size = properties_->logicalSectorSize;
  std::unique_ptr<AtaCmd> command;
  if (properties_->lba48Supported) {
    command = std::make_unique<WriteSectorsExt>(lba, count, size, buffer);
  } else {
    command = std::make_unique<WriteSectors>(lba, static_cast<std::uint8_t>(count), size, buffer);
  }
  return Execute(*command);
}

Status AtaProtocol::WriteUncorrectable(std::uint64_t lba) {
  if (lba >= kSectors48) return status::kBadArgument;
  WriteUncorrectableExt command(lba, 1, true);
  return Execute(command);
}

Status AtaProtocol::GetTemperature(std::uint8_t& degrees) {
  Page data{};
  if (const Status read = ReadSmartData(data); read != status::kSuccess) return read;
  degrees = SmartData(utils::ByteView(data)).Temperature().value_or(degrees);
  return status::kSuccess;
}

Status AtaProtocol::StartSelfTest(std::uint8_t code, std::uint8_t count) {
  SmartExecuteOffline command(code, count);
  const Status sent = bridges_.Send(command);
  return sent == status::kSuccess ? Verdict(command, kSelfTestErrors) : sent;
}

Status AtaProtocol::GetSelfTestProgress(std::uint8_t& percent) {
  Page data{};
  if (const Status read = ReadSmartData(data); read != status::kSuccess) return read;
  percent = SmartData(utils::ByteView(data)).SelfTestProgress();
  return status::kSuccess;
}

Status AtaProtocol::GetSelfTestResult(std::uint8_t& result) {
  Page data{};
  if (const Status read = ReadSmartData(data); read != status::kSuccess) return read;
  result = SmartData(utils::ByteView(data)).SelfTestResult();
  return status::kSuccess;
}

Status AtaProtocol::AbortSelfTest() {
  SmartExecuteOffline command(kAbortSelfTest, 0);
  return Execute(command);
}

Status AtaProtocol::GetHealthStatus(std::uint8_t& healthy) {
  if (bridges_.IsEmpty()) return AtaSendRule::kNoBridge;
  SmartReturnStatus command;
  if (Execute(command) == status::kSuccess) {
    if (const auto verdict = SmartVerdict(command)) {
      healthy = *verdict ? 1 : 0;
      return status::kSuccess;
    }
  }
  return QueryPredictFailure(healthy);
}

Status AtaProtocol::SetSmartEnabled(std::uint8_t enable) {
  SmartEnable command(enable);
  return Execute(command);
}

Status AtaProtocol::GetLifeRemaining(std::uint32_t& percent) {
  // Only the transport's failure counts here: a drive without SMART has no such attribute either.
  Page data{};
  SmartReadData command(data.data());
  if (const Status sent = bridges_.Send(command); sent != status::kSuccess) return sent;
  if (const auto remaining = SmartData(utils::ByteView(data)).LifeRemaining()) percent = *remaining;
  return status::kSuccess;
}

Status AtaProtocol::GetPowerMode(std::uint32_t& mode) {
  AtaCheckPowerMode command;
  if (const Status executed = Execute(command); executed != status::kSuccess) return executed;
  // Count register of CHECK POWER MODE (ACS-3, 7.3).
  switch (Current(command.sectorCount)) {
    case 0x00:
    case 0x01: mode = 0; break;
    case 0x80:
    case 0x81:
    case 0x82:
    case 0x83: mode = 1; break;
    case 0xFF: mode = 2; break;
    default: mode = 3; break;
  }
  return status::kSuccess;
}

Status AtaProtocol::Idle() {
  AtaIdleImmediate command;
  return Execute(command);
}

}  // namespace orvik::module::storage
