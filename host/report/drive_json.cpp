#include "host/report/drive_json.h"

#include "host/report/drive_words.h"
#include "host/report/json_values.h"

namespace orvik::host {
namespace {

using module::storage::ProtocolProperties;
using module::storage::Status;

QJsonValue StatusJson(const std::optional<Status>& status) {
  if (!status) return QJsonValue::Null;
  return QJsonObject{{"number", JsonNumber(std::uint64_t{*status})}, {"word", StatusWord(*status).stable}};
}

// In the drives' records 0 stands for "not reported".
QJsonValue NumberUnlessZero(std::uint64_t number) {
  return number == 0 ? QJsonValue(QJsonValue::Null) : JsonNumber(number);
}

QJsonValue FlagJson(bool isKnown, bool flag) {
  return isKnown ? QJsonValue(flag) : QJsonValue(QJsonValue::Null);
}

template <typename Value>
QJsonObject ReadingJson(const Reading<Value>& reading, const QJsonValue& value) {
  return {{"status", StatusJson(reading.status)}, {"value", reading.value ? value : QJsonValue(QJsonValue::Null)}};
}

template <typename Value>
QJsonObject ReadingJson(const Reading<Value>& reading) {
  return ReadingJson(reading, JsonNumber(std::uint64_t{reading.value.value_or(0)}));
}

QJsonValue SelfTestCodeJson(const Reading<std::uint8_t>& result) {
  if (!result.value) return QJsonValue::Null;
  return QJsonObject{{"number", *result.value}, {"word", SelfTestWord(*result.value, result.isAta).stable}};
}

QJsonObject IdentificationJson(const Drive& drive) {
  const ProtocolProperties& known = drive.properties;
  const bool complete = drive.IsIdentified();  // until then a flag that was not asked is false too
  const bool hasSmartData = complete && known.smartDataValid;
  return {
      {"protocolName", RawText(known.protocolName)},
      {"model", RawText(known.model)},
      {"serial", RawText(known.serialNumber)},
      {"firmware", RawText(known.firmwareRevision)},
      {"vendor", RawText(known.vendor)},
      {"label", RawText(known.labelText)},
      {"supportedStandards", JsonTexts(known.supportedStandards)},
      {"standardVersion", RawText(known.standardVersion)},
      {"sectorCount", NumberUnlessZero(known.sectorCount)},
      {"logicalSectorSize", NumberUnlessZero(known.logicalSectorSize)},
      {"physicalSectorSize", NumberUnlessZero(known.physicalSectorSize)},
      {"capacityBytes", NumberUnlessZero(drive.CapacityBytes())},
      {"solidState", FlagJson(complete, known.isSolidState)},
      {"rotationRate", NumberUnlessZero(known.rotationRate)},
      {"cacheSize", NumberUnlessZero(known.cacheSize)},
      {"securitySupported", FlagJson(drive.isAtaIdentified, known.securitySupported)},
      {"securityLocked", FlagJson(drive.isAtaIdentified, known.securityLocked)},
      {"smartSupported", FlagJson(complete, known.smartSupported)},
      {"smartEnabled", FlagJson(complete, known.smartEnabled)},
      {"lba48Supported", FlagJson(drive.isAtaIdentified, known.lba48Supported)},
      {"inquiryFlag", FlagJson(known.protocolName == "SCSI", known.inquiryFlag)},
      {"offlineImmediateSupported", FlagJson(hasSmartData, known.offlineImmediateSupported)},
      {"offlineAbortSupported", FlagJson(hasSmartData, known.offlineAbortSupported)},
      {"selfTestSupported", FlagJson(hasSmartData, known.selfTestSupported)},
      {"conveyanceSelfTestSupported", FlagJson(hasSmartData, known.conveyanceSelfTestSupported)},
  };
}

QJsonObject ReadingsJson(const Drive& drive) {
  return {
      {"temperature", ReadingJson(drive.temperature)},
      {"health", ReadingJson(drive.health, HealthWord(drive.health.value.value_or(0)).stable)},
      {"lifeRemaining", ReadingJson(drive.lifeRemaining)},
      {"powerMode", ReadingJson(drive.powerMode, PowerModeWord(drive.powerMode.value.value_or(0)).stable)},
      {"selfTestResult", ReadingJson(drive.selfTestResult, SelfTestCodeJson(drive.selfTestResult))},
      {"selfTestProgress",
       drive.selfTestProgress ? QJsonValue(ReadingJson(*drive.selfTestProgress)) : QJsonValue(QJsonValue::Null)},
      {"selfTestFailingLba",
       drive.failingLba ? QJsonValue(ReadingJson(*drive.failingLba)) : QJsonValue(QJsonValue::Null)},
  };
}

// What every mention of a drive begins with.
QJsonObject PlaceJson(const ListedDevice& device, const Drive& drive) {
  return {
      {"device", QJsonObject{{"index", device.index}, {"id", RawText(device.description.id)}}},
      {"index", drive.index},
      {"id", RawText(drive.entry.id)},
      {"protocol", WordFor(drive.entry.protocol).stable},
  };
}

QJsonObject DriveJson(const ListedDevice& device, const Drive& drive) {
  QJsonObject json = PlaceJson(device, drive);
  json["ataPassThrough"] = drive.entry.ataProtocolObject != nullptr;
  json["status"] = StatusJson(drive.status);
  json["error"] = drive.problem.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(drive.problem);
  json["identification"] = drive.Answers() ? QJsonValue(IdentificationJson(drive)) : QJsonValue(QJsonValue::Null);
  json["readings"] = drive.Answers() ? QJsonValue(ReadingsJson(drive)) : QJsonValue(QJsonValue::Null);
  return json;
}

const char* RequestName(SelfTestRequest kind) {
  switch (kind) {
    case SelfTestRequest::Extended: return "extended";
    case SelfTestRequest::Abort: return "abort";
    case SelfTestRequest::Short: break;
  }
  return "short";
}

}  // namespace

QJsonArray DrivesJson(const DriveQueryList& queries) {
  QJsonArray array;
  for (const auto& query : queries) {
    for (const Drive& drive : query->drives) array.append(DriveJson(*query->device, drive));
  }
  return array;
}

QJsonObject SelfTestJson(const SelfTestRun& run) {
  const SelfTestReport& report = run.report;
  const std::optional<std::uint64_t> progress = report.progress;
  QJsonObject json = PlaceJson(*run.device, run.drive);
  json["request"] = RequestName(run.kind);
  json["status"] = StatusJson(report.status);
  json["result"] = SelfTestCodeJson(report.result);
  json["progress"] = JsonNumber(progress);
  json["failingLba"] = JsonNumber(report.failingLba);
  return json;
}

}  // namespace orvik::host
