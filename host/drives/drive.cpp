#include "host/drives/drive.h"

#include <QCoreApplication>
#include <algorithm>

#include "host/text/text.h"

namespace orvik::host {
namespace {

using module::storage::Protocol;
using module::storage::ProtocolProperties;
using module::storage::Status;
namespace status = module::storage::status;

constexpr std::uint8_t kWholePercent = 100;

template <typename Value>
void FillGap(Value& known, const Value& other) {
  if (known == Value()) known = other;
}

// Fills what the SCSI identification left empty with values from the ATA identification.
void FillGaps(ProtocolProperties& known, const ProtocolProperties& other) {
  FillGap(known.protocolName, other.protocolName);
  FillGap(known.supportedStandards, other.supportedStandards);
  FillGap(known.standardVersion, other.standardVersion);
  FillGap(known.isSolidState, other.isSolidState);
  FillGap(known.serialNumber, other.serialNumber);
  FillGap(known.model, other.model);
  FillGap(known.firmwareRevision, other.firmwareRevision);
  FillGap(known.vendor, other.vendor);
  FillGap(known.labelText, other.labelText);
  FillGap(known.sectorCount, other.sectorCount);
  FillGap(known.logicalSectorSize, other.logicalSectorSize);
  FillGap(known.physicalSectorSize, other.physicalSectorSize);
  FillGap(known.cacheSize, other.cacheSize);
  FillGap(known.rotationRate, other.rotationRate);
  FillGap(known.securitySupported, other.securitySupported);
  FillGap(known.securityLocked, other.securityLocked);
  FillGap(known.smartSupported, other.smartSupported);
  FillGap(known.smartEnabled, other.smartEnabled);
  FillGap(known.lba48Supported, other.lba48Supported);
  FillGap(known.smartDataValid, other.smartDataValid);
  FillGap(known.offlineImmediateSupported, other.offlineImmediateSupported);
  FillGap(known.offlineAbortSupported, other.offlineAbortSupported);
  FillGap(known.selfTestSupported, other.selfTestSupported);
  FillGap(known.conveyanceSelfTestSupported, other.conveyanceSelfTestSupported);
}

// Storelib carries ATA commands to the low 8 bits of a drive's number only. From drive 256 on they reach another
// drive.
bool AreDifferentDrives(const ProtocolProperties& first, const ProtocolProperties& second) {
  const QString one = DisplayText(first.serialNumber).remove(u' ');
  const QString other = DisplayText(second.serialNumber).remove(u' ');
  return !one.isEmpty() && !other.isEmpty() && one != other;
}

// The first object that reports a value; the preferred one's reading if none does.
template <typename Value, typename Code>
Reading<Value> ReadAny(const std::vector<DriveAccess>& accesses, Code (Protocol::*operation)(Value&)) {
  Reading<Value> first;
  for (const DriveAccess& access : accesses) {
    const Reading<Value> reading = Read(access, operation);
    if (reading.value) return reading;
    if (&access == &accesses.front()) first = reading;
  }
  return first;
}

// Above 100 percent counts as not reported.
Reading<std::uint32_t> ReadLifeRemaining(const std::vector<DriveAccess>& accesses) {
  Reading<std::uint32_t> reading = ReadAny(accesses, &Protocol::GetLifeRemaining);
  if (reading.value > kWholePercent) reading.value.reset();
  return reading;
}

void ReadSelfTests(Drive& drive, const std::vector<DriveAccess>& accesses) {
  drive.selfTestResult = ReadAny(accesses, &Protocol::GetSelfTestResult);
  if (!drive.selfTestResult.value) return;
  // The object that read the result reads its details too.
  const auto reader = std::find_if(accesses.begin(), accesses.end(), [&drive](const DriveAccess& access) {
    return access.isAta == drive.selfTestResult.isAta;
  });
  const SelfTestEnd end = EndOf(*drive.selfTestResult.value, drive.selfTestResult.isAta);
  if (end == SelfTestEnd::InProgress) drive.selfTestProgress = ReadSelfTestProgress(*reader);
  if (end == SelfTestEnd::Failed) drive.failingLba = Read(*reader, &Protocol::GetSelfTestFailingLba);
}

Word AtaSelfTestWord(std::uint8_t code) {
  switch (code) {
    case 3: return {"fatal-error", QCoreApplication::translate("orvik-diag", "fatal or unknown error"), Colour::Red};
    case 4: return {"element-failed", QCoreApplication::translate("orvik-diag", "unknown failure"), Colour::Red};
    case 5:
      return {"electrical-element-failed", QCoreApplication::translate("orvik-diag", "electrical failure"),
              Colour::Red};
    case 6:
      return {"servo-element-failed", QCoreApplication::translate("orvik-diag", "servo or seek failure"),
              Colour::Red};
    case 7: return {"read-element-failed", QCoreApplication::translate("orvik-diag", "read failure"), Colour::Red};
    case 8:
      return {"handling-damage", QCoreApplication::translate("orvik-diag", "handling damage suspected"), Colour::Red};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Plain};
  }
}

Word ScsiSelfTestWord(std::uint8_t code) {
  switch (code) {
    case 3: return {"fatal-error", QCoreApplication::translate("orvik-diag", "fatal or unknown error"), Colour::Red};
    case 4:
    case 5:
    case 6:
    case 7:
      return {"segment-failed", QCoreApplication::translate("orvik-diag", "failed in a test segment"), Colour::Red};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Plain};
  }
}

}  // namespace

void Identify(Drive& drive) {
  drive.status = status::kFailure;
  drive.properties = {};
  drive.isAtaRefused = false;
  if (drive.entry.protocolObject != nullptr) {
    drive.status = Status(drive.entry.protocolObject->GetProperties(&drive.properties));
  }
  drive.isAtaIdentified = drive.IsIdentified() && drive.properties.protocolName == "ATA";
  if (drive.entry.ataProtocolObject == nullptr) return;
  ProtocolProperties more;
  if (!Status(drive.entry.ataProtocolObject->GetProperties(&more)).Ok()) return;
  drive.isAtaRefused = AreDifferentDrives(drive.properties, more);
  if (drive.isAtaRefused) return;
  FillGaps(drive.properties, more);
  drive.status = status::kSuccess;
  drive.isAtaIdentified = true;
}

std::vector<DriveAccess> AccessesOf(const Drive& drive) {
  std::vector<DriveAccess> accesses;
  if (Protocol* const own = drive.entry.protocolObject.get(); own != nullptr) {
    // The entry says how the drive is attached; the object may speak another protocol.
    const std::string& name = drive.properties.protocolName;
    const bool isAta = name.empty() ? drive.entry.protocol == module::raid::DriveProtocol::Ata : name == "ATA";
    accesses.push_back({own, isAta});
  }
  Protocol* const ata = drive.entry.ataProtocolObject.get();
  if (ata != nullptr && !drive.isAtaRefused) accesses.push_back({ata, true});
  return accesses;
}

Reading<std::uint8_t> ReadSelfTestProgress(const DriveAccess& access) {
  Reading<std::uint8_t> reading = Read(access, &Protocol::GetSelfTestProgress);
  if (reading.value > kWholePercent) reading.value.reset();
  return reading;
}

void ReadDrive(Drive& drive) {
  Identify(drive);
  if (!drive.Answers()) return;
  const std::vector<DriveAccess> accesses = AccessesOf(drive);
  drive.temperature = ReadAny(accesses, &Protocol::GetTemperature);
  drive.health = ReadAny(accesses, &Protocol::GetHealthStatus);
  drive.lifeRemaining = ReadLifeRemaining(accesses);
  drive.powerMode = ReadAny(accesses, &Protocol::GetPowerMode);
  ReadSelfTests(drive, accesses);
}

SelfTestEnd EndOf(std::uint8_t code, bool isAta) {
  switch (code) {
    case 0: return SelfTestEnd::Passed;
    case 1:
    case 2: return SelfTestEnd::Aborted;
    case 3:
    case 4:
    case 5:
    case 6:
    case 7: return SelfTestEnd::Failed;
    case 8: return isAta ? SelfTestEnd::Failed : SelfTestEnd::Unknown;
    case 15: return SelfTestEnd::InProgress;
    default: return SelfTestEnd::Unknown;
  }
}

Word ProtocolWord(module::raid::DriveProtocol protocol) {
  using module::raid::DriveProtocol;
  switch (protocol) {
    case DriveProtocol::Ata: return {"ata", QStringLiteral("ATA")};
    case DriveProtocol::Scsi: return {"scsi", QStringLiteral("SCSI")};
    case DriveProtocol::Nvme: return {"nvme", QStringLiteral("NVMe")};
    case DriveProtocol::Unknown: break;
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "unknown protocol")};
}

Word HealthWord(std::uint8_t health) {
  switch (health) {
    case 0:
      return {"threshold-exceeded", QCoreApplication::translate("orvik-diag", "failure predicted"), Colour::Red};
    case 1: return {"healthy", QCoreApplication::translate("orvik-diag", "healthy"), Colour::Green};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown")};
  }
}

Word PowerModeWord(std::uint32_t mode) {
  switch (mode) {
    case 0: return {"standby", QCoreApplication::translate("orvik-diag", "standby")};
    case 1: return {"idle", QCoreApplication::translate("orvik-diag", "idle")};
    case 2: return {"active-or-idle", QCoreApplication::translate("orvik-diag", "active or idle")};
    case 3: return {"other", QCoreApplication::translate("orvik-diag", "other")};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown")};
  }
}

Word SelfTestWord(std::uint8_t code, bool isAta) {
  switch (code) {
    case 0: return {"completed", QCoreApplication::translate("orvik-diag", "completed without error"), Colour::Green};
    case 1:
      return {"aborted-by-host", QCoreApplication::translate("orvik-diag", "aborted by the host"), Colour::Yellow};
    case 2:
      return {"interrupted", QCoreApplication::translate("orvik-diag", "interrupted by a reset"), Colour::Yellow};
    case 15: return {"in-progress", QCoreApplication::translate("orvik-diag", "in progress"), Colour::Cyan};
    default: return isAta ? AtaSelfTestWord(code) : ScsiSelfTestWord(code);
  }
}

}  // namespace orvik::host
