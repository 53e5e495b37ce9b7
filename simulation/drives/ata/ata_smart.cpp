// SMART and the logs of an ATA drive.

#include <algorithm>
#include <array>
#include <optional>

#include "simulation/drives/ata/ata_drive.h"
#include "simulation/drives/ata/ata_registers.h"
#include "simulation/drives/ata/smart_data.h"
#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

namespace {

// LBA mid and high: the signature in every SMART command, and their values when a threshold is exceeded.
constexpr std::uint64_t kKeyRegisters = 0xFFFF00;
constexpr std::uint64_t kKey = 0xC24F00;
constexpr std::uint64_t kThresholdExceeded = 0x2CF400;

// Subcommands of SMART EXECUTE OFF-LINE IMMEDIATE.
constexpr std::uint8_t kCollectOffline = 0x00;
constexpr std::uint8_t kAbortSelfTest = 0x7F;

std::uint8_t LbaLow(const AtaTaskFile& command) {
  return static_cast<std::uint8_t>(command.lba);
}

// The page number of READ LOG EXT: LBA mid, its previous contents above the current ones.
std::size_t PageNumber(const AtaTaskFile& command) {
  return (command.lba >> 8 & 0xFF) | (command.lba >> 32 & 0xFF) << 8;
}

// Captive tests, which block the drive until they end, are not supported.
std::optional<SelfTestKind> SelfTestOf(std::uint8_t subcommand) {
  for (const auto kind : {SelfTestKind::Short, SelfTestKind::Extended, SelfTestKind::Conveyance}) {
    if (AtaSelfTestNumber(kind) == subcommand) return kind;
  }
  return std::nullopt;
}

}  // namespace

AtaCompletion AtaDrive::Smart(const AtaTaskFile& command, Data data) {
  const std::uint8_t feature = SmartFeature(command);
  if (!features_.smartSupported || (command.lba & kKeyRegisters) != kKey) return Aborted(command);
  if (feature == smart_feature::kEnable || feature == smart_feature::kDisable) {
    // While SMART is off, only the command that enables it works.
    if (!smartEnabled_ && feature == smart_feature::kDisable) return Aborted(command);
    smartEnabled_ = feature == smart_feature::kEnable;
    return Completed(command);
  }
  if (!smartEnabled_) return Aborted(command);
  switch (feature) {
    case smart_feature::kReadData: return SmartReadData(command, data);
    case smart_feature::kReadLog: return SmartReadLog(command, data);
    case smart_feature::kExecuteOffline: return SmartExecuteOffline(command);
    case smart_feature::kReturnStatus: return SmartReturnStatus(command);
    default: return Aborted(command);
  }
}

AtaCompletion AtaDrive::SmartReadData(const AtaTaskFile& command, Data data) {
  SmartReport report{.failing = description_.failing,
                     .temperatureCelsius = description_.temperatureCelsius,
                     .powerOnHours = selfTests_.PowerOnHours(),
                     .unreadableSectors = store_.UnreadableCount(),
                     .selfTestStatus = AtaSelfTestStatus(selfTests_),
                     .shortMinutes = selfTests_.Minutes(SelfTestKind::Short),
                     .extendedMinutes = selfTests_.Minutes(SelfTestKind::Extended),
                     .conveyanceMinutes = selfTests_.Minutes(SelfTestKind::Conveyance)};
  if (features_.solidState) report.lifeRemainingPercent = description_.lifeRemainingPercent;
  return Delivered(command, MakeSmartData(report), data);
}

AtaCompletion AtaDrive::SmartReadLog(const AtaTaskFile& command, Data data) {
  static constexpr std::array kSizes = {LogSize{kSelfTestLog, 1}};
  if ((command.count & 0xFF) != 1) return Aborted(command);  // each of the logs below has one page
  switch (LbaLow(command)) {
    case kLogDirectory: return Delivered(command, MakeLogDirectory(kSizes), data);
    case kSelfTestLog: return Delivered(command, MakeSelfTestLog(selfTests_.Ended()), data);
    default: return Aborted(command);
  }
}

AtaCompletion AtaDrive::SmartExecuteOffline(const AtaTaskFile& command) {
  const std::uint8_t subcommand = LbaLow(command);
  if (subcommand == kAbortSelfTest) selfTests_.Abort();
  if (subcommand == kAbortSelfTest || subcommand == kCollectOffline) return Completed(command);
  const auto test = SelfTestOf(subcommand);
  if (!test || selfTests_.Minutes(*test) == 0) return Aborted(command);
  selfTests_.Start(*test);
  return Completed(command);
}

AtaCompletion AtaDrive::SmartReturnStatus(const AtaTaskFile& command) const {
  AtaCompletion completion = Completed(command);
  if (description_.failing) completion.lba = (command.lba & ~kKeyRegisters) | kThresholdExceeded;
  return completion;
}

std::vector<std::uint8_t> AtaDrive::GeneralPurposeLog(std::uint8_t address) {
  if (address == kLogDirectory) {
    std::vector<LogSize> sizes;
    if (features_.smartSupported) sizes.push_back({kExtendedSelfTestLog, kExtendedSelfTestLogPages});
    if (!description_.label.empty()) sizes.push_back({kLabelLog, 1});
    return MakeLogDirectory(sizes);
  }
  if (address == kExtendedSelfTestLog && smartEnabled_) return MakeExtendedSelfTestLog(selfTests_.Ended());
  if (address == kLabelLog && !description_.label.empty()) return MakeLabelLog(description_.label);
  return {};
}

AtaCompletion AtaDrive::ReadLogExt(const AtaTaskFile& command, Data data) {
  if (!features_.generalPurposeLogs) return Aborted(command);
  const auto log = GeneralPurposeLog(LbaLow(command));
  const std::size_t first = PageNumber(command) * kAtaPage;
  const std::size_t size = command.count * kAtaPage;
  if (size == 0 || first + size > log.size()) return Aborted(command);
  return Delivered(command, std::span(log).subspan(first, size), data);
}

}  // namespace orvik::simulation
