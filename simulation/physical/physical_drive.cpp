#include "simulation/physical/physical_drive.h"

#include <algorithm>
#include <array>
#include <optional>
#include <variant>

#include "simulation/bytes.h"
#include "simulation/io_device.h"

namespace orvik::simulation {

namespace {

// STORAGE_PREDICT_FAILURE.
namespace predict_failure {
constexpr Le32 kPredicted{0};
constexpr Block kVendorData{4, 512};
constexpr std::size_t kSize = 516;
}  // namespace predict_failure

// A drive's own failure prediction; nothing when it has none.
struct Prediction {
  bool failing{};
  std::array<std::uint8_t, 512> vendorData{};
};

std::optional<Prediction> PredictionOf(AtaDrive& drive) {
  constexpr std::uint64_t kSmartKey = 0xC24F00;
  constexpr std::uint64_t kThresholdExceeded = 0x2CF400;
  constexpr std::uint8_t kErrorBit = 0x01;
  Prediction prediction;
  const auto data =
      drive.Execute({.features = 0xD0, .count = 1, .lba = kSmartKey, .command = 0xB0}, prediction.vendorData);
  const auto status = drive.Execute({.features = 0xDA, .lba = kSmartKey, .command = 0xB0}, {});
  if (!data || !status || (status->status & kErrorBit) != 0) return std::nullopt;
  prediction.failing = status->lba == kThresholdExceeded;
  return prediction;
}

std::optional<Prediction> PredictionOf(ScsiDrive& drive) {
  constexpr std::array<std::uint8_t, 10> kInformationalExceptions = {0x4D, 0, 0x6F, 0, 0, 0, 0, 2, 0, 0};
  constexpr U8 kAsc{8};
  constexpr std::uint8_t kFailurePredictionThresholdExceeded = 0x5D;
  Prediction prediction;
  const auto page = drive.Execute(kInformationalExceptions, prediction.vendorData);
  if (!page || page->status != kScsiGood) return std::nullopt;
  prediction.failing =
      Get(std::span<const std::uint8_t>(prediction.vendorData), kAsc) == kFailurePredictionThresholdExceeded;
  return prediction;
}

std::optional<Prediction> PredictionOf(NvmeDrive& drive) {
  constexpr std::uint32_t kHealthLog = 0x007F0002;
  Prediction prediction;
  const auto log = drive.Execute({.opcode = 0x02, .nsid = 0xFFFFFFFF, .dwords = {kHealthLog}}, prediction.vendorData);
  if (!log || log->status != NvmeStatus::Success) return std::nullopt;
  prediction.failing = prediction.vendorData.front() != 0;  // critical warnings
  return prediction;
}

}  // namespace

PhysicalDrive::PhysicalDrive(const PhysicalDriveDescription& description, const std::shared_ptr<const Clock>& clock)
    : drive_(MakeDrive(description.drive, clock)), accessDenied_(description.accessDenied) {}

std::span<const PhysicalDrive::Request> PhysicalDrive::Requests() {
  static constexpr std::array<Request, 3> kRequests = {{
      {"IOCTL_ATA_PASS_THROUGH", 0x0004D02C, true, &PhysicalDrive::AtaPassThrough},
      {"IOCTL_SCSI_PASS_THROUGH", 0x0004D004, true, &PhysicalDrive::ScsiPassThrough},
      {"IOCTL_STORAGE_PREDICT_FAILURE", 0x002D1100, false, &PhysicalDrive::PredictFailure},
  }};
  return kRequests;
}

const PhysicalDrive::Request* PhysicalDrive::Find(std::uint32_t controlCode) {
  const auto requests = Requests();
  const auto found = std::ranges::find(requests, controlCode, &Request::controlCode);
  return found == requests.end() ? nullptr : &*found;
}

bool PhysicalDrive::HasRequest(std::string_view name) {
  return std::ranges::find(Requests(), name, &Request::name) != Requests().end();
}

std::string_view PhysicalDrive::PacketName(std::uint32_t controlCode,
                                           std::span<const std::uint8_t> /*buffer*/) const {
  const Request* request = Find(controlCode);
  return request == nullptr ? std::string_view() : request->name;
}

IoResult PhysicalDrive::Control(std::uint32_t controlCode, std::span<std::uint8_t> buffer, std::size_t inputSize,
                                std::size_t outputSize) {
  const Request* request = Find(controlCode);
  if (request == nullptr) return {.error = kErrorInvalidFunction};
  if (request->passesThrough && accessDenied_) return {.error = kErrorAccessDenied};
  return (this->*request->execute)(buffer, inputSize, outputSize);
}

// The system passes a command only to a drive that speaks its language.
IoResult PhysicalDrive::AtaPassThrough(Buffer buffer, std::size_t inputSize, std::size_t outputSize) {
  const auto* drive = std::get_if<std::shared_ptr<AtaDrive>>(&drive_);
  if (drive == nullptr) return {.error = kErrorInvalidFunction};
  return AnswerAtaPassThrough(**drive, buffer, inputSize, outputSize);
}

IoResult PhysicalDrive::ScsiPassThrough(Buffer buffer, std::size_t inputSize, std::size_t outputSize) {
  const auto* drive = std::get_if<std::shared_ptr<ScsiDrive>>(&drive_);
  if (drive == nullptr) return {.error = kErrorInvalidFunction};
  return AnswerScsiPassThrough(**drive, buffer, inputSize, outputSize);
}

IoResult PhysicalDrive::PredictFailure(Buffer buffer, std::size_t /*inputSize*/, std::size_t outputSize) {
  if (outputSize < predict_failure::kSize) return {.error = kErrorInsufficientBuffer};
  const auto prediction = std::visit([](const auto& drive) { return PredictionOf(*drive); }, drive_);
  if (!prediction) return {.error = kErrorInvalidFunction};
  Set(buffer, predict_failure::kPredicted, prediction->failing ? 1 : 0);
  SetBytes(buffer, predict_failure::kVendorData, prediction->vendorData);
  return {.returned = predict_failure::kSize};
}

}  // namespace orvik::simulation
