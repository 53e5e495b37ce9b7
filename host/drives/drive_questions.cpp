#include "host/drives/drive_questions.h"

#include <algorithm>

#include "host/drives/self_test_code.h"

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

// What a SCSI drive's own identification leaves open, its ATA identification tells.
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

// The first object that tells; what the preferred one answered when none does.
template <typename Value>
Reading<Value> AskAny(const std::vector<DriveVoice>& voices, Status (Protocol::*question)(Value&)) {
  Reading<Value> first;
  for (const DriveVoice& voice : voices) {
    const Reading<Value> reading = Ask(voice, question);
    if (reading.value) return reading;
    if (&voice == &voices.front()) first = reading;
  }
  return first;
}

void AskAboutSelfTests(Drive& drive, const std::vector<DriveVoice>& voices) {
  drive.selfTestResult = AskAny(voices, &Protocol::GetSelfTestResult);
  if (!drive.selfTestResult.value) return;
  // Whoever knows the result knows the rest of it.
  const auto teller = std::find_if(voices.begin(), voices.end(), [&drive](const DriveVoice& voice) {
    return voice.isAta == drive.selfTestResult.isAta;
  });
  const SelfTestEnd end = EndOf(*drive.selfTestResult.value, drive.selfTestResult.isAta);
  if (end == SelfTestEnd::InProgress) drive.selfTestProgress = AskSelfTestProgress(*teller);
  if (end == SelfTestEnd::Failed) drive.failingLba = Ask(*teller, &Protocol::GetSelfTestFailingLba);
}

}  // namespace

void Identify(Drive& drive) {
  drive.status = status::kFailure;
  drive.properties = {};
  if (drive.entry.protocolObject != nullptr) {
    drive.status = drive.entry.protocolObject->GetProperties(&drive.properties);
  }
  drive.isAtaIdentified = drive.IsIdentified() && drive.properties.protocolName == "ATA";
  if (drive.entry.ataProtocolObject == nullptr) return;
  ProtocolProperties more;
  if (drive.entry.ataProtocolObject->GetProperties(&more) != status::kSuccess) return;
  FillGaps(drive.properties, more);
  drive.status = status::kSuccess;
  drive.isAtaIdentified = true;
}

std::vector<DriveVoice> VoicesOf(const Drive& drive) {
  std::vector<DriveVoice> voices;
  if (Protocol* const own = drive.entry.protocolObject.get(); own != nullptr) {
    // The entry tells how the drive is attached, which need not be what the object speaks.
    const std::string& name = drive.properties.protocolName;
    const bool isAta = name.empty() ? drive.entry.protocol == module::raid::DriveProtocol::Ata : name == "ATA";
    voices.push_back({own, isAta});
  }
  if (Protocol* const ata = drive.entry.ataProtocolObject.get(); ata != nullptr) voices.push_back({ata, true});
  return voices;
}

Reading<std::uint8_t> AskSelfTestProgress(const DriveVoice& voice) {
  Reading<std::uint8_t> reading = Ask(voice, &Protocol::GetSelfTestProgress);
  if (reading.value > kWholePercent) reading.value.reset();
  return reading;
}

void AskEverything(Drive& drive) {
  Identify(drive);
  if (!drive.Answers()) return;
  const std::vector<DriveVoice> voices = VoicesOf(drive);
  drive.temperature = AskAny(voices, &Protocol::GetTemperature);
  drive.health = AskAny(voices, &Protocol::GetHealthStatus);
  drive.lifeRemaining = AskAny(voices, &Protocol::GetLifeRemaining);
  drive.powerMode = AskAny(voices, &Protocol::GetPowerMode);
  AskAboutSelfTests(drive, voices);
}

}  // namespace orvik::host
