#include "simulation/csmi/nvme_paths.h"

#include <algorithm>
#include <limits>
#include <string>

#include "simulation/csmi/csmi_layout.h"
#include "simulation/io_device.h"

namespace orvik::simulation {

namespace {

constexpr std::string_view kSignature = "IntelNvm";
constexpr std::uint32_t kControlCode = 0xF0002808;
constexpr std::uint8_t kVersion = 1;
constexpr std::uint32_t kCommandFailed = 1;

// The request behind the header.
namespace nvme_pass_through {
constexpr U8 kVersionField{28};
constexpr U8 kPathId{29};
constexpr Le16 kTargetAndLun{30};
constexpr Block kSubmission{32, 64};
constexpr U8 kIoCommand{96};
constexpr Block kCompletion{100, 16};
constexpr Le32 kDataOffset{116};
constexpr Le32 kDataLength{120};
constexpr std::size_t kSize = 168;
}  // namespace nvme_pass_through

namespace submission {
constexpr U8 kOpcode{0};
constexpr Le32 kNsid{4};
constexpr std::size_t kDword10 = 40;
}  // namespace submission

namespace completion {
constexpr Le16 kStatus{14};
}  // namespace completion

NvmeCommand CommandIn(std::span<const std::uint8_t> packet) {
  const auto entry = Inside(packet, nvme_pass_through::kSubmission);
  NvmeCommand command{.opcode = Get(entry, submission::kOpcode),
                      .nsid = Get(entry, submission::kNsid),
                      .io = Get(packet, nvme_pass_through::kIoCommand) != 0};
  std::size_t offset = submission::kDword10;
  for (std::uint32_t& dword : command.dwords) {
    dword = Get(entry, Le32{offset});
    offset += sizeof(dword);
  }
  return command;
}

// The lowest bit of the status field is the phase of the queue.
void WriteCompletion(std::span<std::uint8_t> packet, NvmeStatus status) {
  const auto entry = Inside(packet, nvme_pass_through::kCompletion);
  Set(entry, completion::kStatus, static_cast<std::uint16_t>(static_cast<std::uint16_t>(status) << 1));
}

}  // namespace

std::optional<std::uint8_t> NvmePathId(const DriveDescription& drive, std::span<const DriveDescription> before) {
  const auto* nvme = std::get_if<NvmeDriveDescription>(&drive);
  if (nvme == nullptr) return std::nullopt;
  if (nvme->pathId) return nvme->pathId;
  const auto number = std::ranges::count_if(
      before, [](const auto& each) { return std::holds_alternative<NvmeDriveDescription>(each); });
  if (number > std::numeric_limits<std::uint8_t>::max()) return std::nullopt;
  return static_cast<std::uint8_t>(number);
}

NvmePaths::NvmePaths(std::span<const DriveDescription> descriptions, const std::vector<Drive>& drives) {
  for (std::size_t i = 0; i < drives.size(); ++i) {
    const auto pathId = NvmePathId(descriptions[i], descriptions.first(i));
    if (pathId) drives_.emplace(*pathId, std::get<std::shared_ptr<NvmeDrive>>(drives[i]));
  }
}

bool NvmePaths::Recognises(std::span<const std::uint8_t> packet) {
  const auto bytes = Inside(packet, srb_io_control::kSignature);
  return std::ranges::equal(bytes, kSignature) && Get(packet, srb_io_control::kControlCode) == kControlCode;
}

std::uint32_t NvmePaths::Answer(std::span<std::uint8_t> packet) const {
  if (packet.size() < nvme_pass_through::kSize) return kErrorInvalidParameter;
  if (Get(packet, nvme_pass_through::kVersionField) != kVersion) return kErrorRevisionMismatch;
  const Block area{Get(packet, nvme_pass_through::kDataOffset), Get(packet, nvme_pass_through::kDataLength)};
  if (area.offset < nvme_pass_through::kSize || !Holds(packet.size(), area)) return kErrorInvalidParameter;

  const auto drive = drives_.find(Get(packet, nvme_pass_through::kPathId));
  if (drive == drives_.end() || Get(packet, nvme_pass_through::kTargetAndLun) != 0) return kErrorDeviceNotExist;
  const auto completion = drive->second->Execute(CommandIn(packet), Inside(packet, area));
  if (!completion) return kErrorTimeout;
  WriteCompletion(packet, completion->status);
  if (completion->status == NvmeStatus::Success) return 0;
  Set(packet, srb_io_control::kReturnCode, kCommandFailed);
  return kErrorIoDevice;
}

}  // namespace orvik::simulation
