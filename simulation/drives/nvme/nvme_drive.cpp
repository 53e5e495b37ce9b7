#include "simulation/drives/nvme/nvme_drive.h"

#include <algorithm>
#include <utility>

#include "simulation/drives/base/drive_descriptions.h"
#include "simulation/drives/nvme/nvme_data.h"

namespace orvik::simulation {

namespace {

namespace admin_opcode {
constexpr std::uint8_t kGetLogPage = 0x02;
constexpr std::uint8_t kIdentify = 0x06;
}  // namespace admin_opcode

constexpr std::uint8_t kReadOpcode = 0x02;
constexpr std::uint8_t kHealthLog = 0x02;

// The structure that IDENTIFY asks for.
constexpr std::uint32_t kIdentifyNamespace = 0;
constexpr std::uint32_t kIdentifyController = 1;
constexpr std::uint32_t kIdentifyNamespaceList = 2;

constexpr std::uint64_t kMillisecondsPerHour = 3600000;

NvmeCompletion Deliver(std::span<const std::uint8_t> reply, std::span<std::uint8_t> data) {
  const std::size_t size = std::min(reply.size(), data.size());
  std::copy_n(reply.begin(), size, data.begin());
  return {.transferred = size};
}

// GET LOG PAGE counts dwords from 0, in two parts.
std::size_t LogBytes(const NvmeCommand& command) {
  const std::uint64_t dwords = command.dwords[0] >> 16 | std::uint64_t{command.dwords[1] & 0xFFFF} << 16;
  return 4 * (dwords + 1);
}

}  // namespace

NvmeDrive::NvmeDrive(NvmeDriveDescription description, std::shared_ptr<const Clock> clock)
    : description_(std::move(description)),
      clock_(std::move(clock)),
      store_(description_.sectors, description_.sectorSize, description_.unreadableSectors) {}

std::optional<NvmeCompletion> NvmeDrive::Execute(const NvmeCommand& command, std::span<std::uint8_t> data) {
  if (description_.silent) return std::nullopt;
  const std::scoped_lock lock(mutex_);
  clock_->Wait(description_.commandMilliseconds);
  if (command.io) {
    if (command.opcode == kReadOpcode) return Read(command, data);
  } else if (command.opcode == admin_opcode::kIdentify) {
    return Identify(command, data);
  } else if (command.opcode == admin_opcode::kGetLogPage) {
    return GetLogPage(command, data);
  }
  return NvmeCompletion{.status = NvmeStatus::InvalidOpcode};
}

NvmeCompletion NvmeDrive::Identify(const NvmeCommand& command, Data data) const {
  const bool allAtOnce = command.nsid == kEveryNamespace && description_.namespaceManagement;
  switch (command.dwords[0] & 0xFF) {
    case kIdentifyNamespace:
      if (command.nsid != kFirstNamespace && !allAtOnce) return {.status = NvmeStatus::InvalidNamespace};
      return Deliver(MakeIdentifyNamespace(description_), data);
    case kIdentifyController: return Deliver(MakeIdentifyController(description_), data);
    case kIdentifyNamespaceList: return Deliver(MakeNamespaceList(command.nsid), data);
    default: return {.status = NvmeStatus::InvalidField};
  }
}

NvmeCompletion NvmeDrive::GetLogPage(const NvmeCommand& command, Data data) const {
  // Logs are those of the whole drive.
  if (command.nsid != kEveryNamespace && command.nsid != 0) return {.status = NvmeStatus::InvalidNamespace};
  std::vector<std::uint8_t> log;
  switch (command.dwords[0] & 0xFF) {
    case kHealthLog: log = MakeHealthLog(description_, PowerOnHours()); break;
    case kLabelLog:
      if (!description_.label.empty()) log = MakeLabelLog(description_.label);
      break;
    default: break;
  }
  if (log.empty()) return {.status = NvmeStatus::InvalidLogPage};
  log.resize(std::min(LogBytes(command), log.size()));
  return Deliver(log, data);
}

NvmeCompletion NvmeDrive::Read(const NvmeCommand& command, Data data) const {
  const std::uint64_t lba = command.dwords[0] | std::uint64_t{command.dwords[1]} << 32;
  const std::uint64_t count = (command.dwords[2] & 0xFFFF) + std::uint64_t{1};
  if (command.nsid != kFirstNamespace) return {.status = NvmeStatus::InvalidNamespace};
  if (!store_.Holds(lba, count)) return {.status = NvmeStatus::LbaOutOfRange};
  const std::uint64_t readable = store_.Read(lba, count, data);
  const bool complete = readable == count;
  return {.status = complete ? NvmeStatus::Success : NvmeStatus::UnrecoveredReadError,
          .transferred = std::min<std::size_t>(data.size(), readable * store_.SectorSize())};
}

std::uint32_t NvmeDrive::PowerOnHours() const {
  return description_.powerOnHours + static_cast<std::uint32_t>(clock_->Milliseconds() / kMillisecondsPerHour);
}

}  // namespace orvik::simulation
