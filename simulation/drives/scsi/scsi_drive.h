#pragma once

// A SCSI block device (a SAS drive): takes a CDB, moves data and answers with status and sense data.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "simulation/bytes.h"
#include "simulation/clock.h"
#include "simulation/drives/base/drive_descriptions.h"
#include "simulation/drives/base/sector_store.h"
#include "simulation/drives/base/self_tests.h"
#include "simulation/drives/scsi/exceptions_page.h"
#include "simulation/drives/scsi/sense_data.h"

namespace orvik::simulation {

inline constexpr std::uint8_t kScsiGood = 0x00;
inline constexpr std::uint8_t kScsiCheckCondition = 0x02;

struct ScsiCompletion {
  std::uint8_t status = kScsiGood;
  std::vector<std::uint8_t> sense{};
  /// Bytes that the drive moved.
  std::size_t transferred{};
};

/// Thread-safe; executes one command at a time.
class ScsiDrive {
 public:
  explicit ScsiDrive(SasDriveDescription description,
                     std::shared_ptr<const Clock> clock = std::make_shared<const Clock>(1));

  /// Executes `cdb` on `data`, the bytes that come in or go out. Nothing when the drive does not answer.
  std::optional<ScsiCompletion> Execute(std::span<const std::uint8_t> cdb, std::span<std::uint8_t> data);
  /// The direction of a command's data.
  static DataDirection DirectionOf(std::span<const std::uint8_t> cdb);

  const SasDriveDescription& Description() const { return description_; }

 private:
  using Cdb = std::span<const std::uint8_t>;
  using Data = std::span<std::uint8_t>;

  struct Command {
    std::uint8_t operation;
    DataDirection direction;
    ScsiCompletion (ScsiDrive::*execute)(Cdb, Data);
  };
  static std::span<const Command> Commands();
  static const Command* Find(Cdb cdb);

  ScsiCompletion TestUnitReady(Cdb cdb, Data data);
  ScsiCompletion RequestSense(Cdb cdb, Data data);
  ScsiCompletion SendDiagnostic(Cdb cdb, Data data);
  ScsiCompletion DefaultSelfTest();
  ScsiCompletion StartBackgroundTest(SelfTestKind kind);
  /// Sense data without a failed command.
  Sense PendingSense();

  ScsiCompletion Inquiry(Cdb cdb, Data data);
  std::vector<std::uint8_t> StandardInquiry() const;
  ScsiCompletion ReadCapacity10(Cdb cdb, Data data);
  ScsiCompletion ServiceActionIn16(Cdb cdb, Data data);

  ScsiCompletion ReadBlocks(Cdb cdb, Data data);
  ScsiCompletion WriteBlocks(Cdb cdb, Data data);

  ScsiCompletion LogSense(Cdb cdb, Data data);
  std::vector<std::uint8_t> LogPage(std::uint8_t page);
  std::vector<std::uint8_t> SelfTestResults();
  std::vector<std::uint8_t> InformationalExceptions() const;
  ScsiCompletion ModeSense(Cdb cdb, Data data);
  ScsiCompletion ModeSelect(Cdb cdb, Data data);
  bool HasExceptions() const { return description_.informationalExceptions != FailurePrediction::Missing; }

  ScsiCompletion Refuse(const Sense& sense) const;
  ScsiCompletion RefuseField(U8 field) const;

  SasDriveDescription description_;
  std::shared_ptr<const Clock> clock_;
  SectorStore store_;

  std::mutex mutex_;  // guards what follows
  ExceptionsPage exceptions_;
  SelfTests selfTests_;
};

/// Takes vendor, product and revision of the drive from its `inquiry` bytes.
void DescribeByInquiry(SasDriveDescription& drive);

/// Hands `reply` over, or as much of it as the command and the host take.
ScsiCompletion Deliver(std::span<const std::uint8_t> reply, std::size_t allocation, std::span<std::uint8_t> data);

/// The code by which SEND DIAGNOSTIC and the log know a background test; there is no conveyance test.
constexpr std::uint8_t ScsiSelfTestCode(SelfTestKind kind) {
  return kind == SelfTestKind::Short ? 1 : 2;
}

}  // namespace orvik::simulation
