#pragma once

// An NVMe drive with one namespace: takes a submission entry, moves data to the host and answers with a status.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "simulation/clock.h"
#include "simulation/drives/base/drive_descriptions.h"
#include "simulation/drives/base/sector_store.h"

namespace orvik::simulation {

struct NvmeCommand {
  std::uint8_t opcode{};
  std::uint32_t nsid{};
  /// Command dwords 10 to 15.
  std::array<std::uint32_t, 6> dwords{};
  /// Of the NVM command set; else an admin command.
  bool io{};
};

/// Status code type in bits 8 to 10, status code in bits 0 to 7.
enum class NvmeStatus : std::uint16_t {
  Success = 0x000,
  InvalidOpcode = 0x001,
  InvalidField = 0x002,
  InvalidNamespace = 0x00B,
  LbaOutOfRange = 0x080,
  InvalidLogPage = 0x109,
  UnrecoveredReadError = 0x281,
};

struct NvmeCompletion {
  NvmeStatus status = NvmeStatus::Success;
  /// Bytes that the drive moved.
  std::size_t transferred{};
};

/// Thread-safe; executes one command at a time.
class NvmeDrive {
 public:
  explicit NvmeDrive(NvmeDriveDescription description,
                     std::shared_ptr<const Clock> clock = std::make_shared<const Clock>(1));

  /// Executes `command`, whose data come into `data`. Nothing when the drive does not answer.
  std::optional<NvmeCompletion> Execute(const NvmeCommand& command, std::span<std::uint8_t> data);

  const NvmeDriveDescription& Description() const { return description_; }

 private:
  using Data = std::span<std::uint8_t>;

  NvmeCompletion Identify(const NvmeCommand& command, Data data) const;
  NvmeCompletion GetLogPage(const NvmeCommand& command, Data data) const;
  NvmeCompletion Read(const NvmeCommand& command, Data data) const;
  std::uint32_t PowerOnHours() const;

  NvmeDriveDescription description_;
  std::shared_ptr<const Clock> clock_;
  SectorStore store_;
  std::mutex mutex_;  // held while a command runs
};

}  // namespace orvik::simulation
