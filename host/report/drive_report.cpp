#include "host/report/drive_report.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <limits>

#include "host/drives/drive.h"
#include "host/report/device_report.h"
#include "host/text/text.h"
#include "host/text/words.h"

namespace orvik::host {
namespace {

using module::storage::ProtocolProperties;
using module::storage::Status;

QJsonValue StatusJson(const std::optional<Status>& status) {
  if (!status) return QJsonValue::Null;
  return QJsonObject{{"number", JsonNumber(std::uint64_t{status->Code()})}, {"word", StatusWord(*status).stable}};
}

// Drive records use 0 for "not reported".
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
  const bool complete = drive.IsIdentified();  // otherwise false may mean that the flag was not read
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

// The members that identify a drive.
QJsonObject PlaceJson(const ListedDevice& device, const Drive& drive) {
  return {
      {"device", QJsonObject{{"index", device.index}, {"id", RawText(device.description.id)}}},
      {"index", drive.index},
      {"id", RawText(drive.entry.id)},
      {"protocol", ProtocolWord(drive.entry.protocol).stable},
  };
}

QJsonObject DriveJson(const ListedDevice& device, const Drive& drive) {
  QJsonObject json = PlaceJson(device, drive);
  json["ataPassThrough"] = drive.entry.ataProtocolObject != nullptr && !drive.isAtaRefused;
  json["status"] = StatusJson(drive.status);
  json["error"] = JsonTextOrNull(drive.problem);
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

// One line; empty without a value.
QString Fact(const QString& name, const QString& value) {
  return value.isEmpty() ? QString() : QStringLiteral("      %1: %2\n").arg(name, value);
}

template <typename Value>
QString ReadingText(const Reading<Value>& reading, const QString& value, const Palette& palette) {
  if (reading.value) return value;
  if (reading.status.Ok()) {
    return QCoreApplication::translate("orvik-diag", "not reported");
  }
  return palette.Paint(
      Colour::Yellow,
      QCoreApplication::translate("orvik-diag", "could not be read (%1)").arg(StatusText(reading.status)));
}

QString CapacityText(const Drive& drive) {
  const std::uint64_t bytes = drive.CapacityBytes();
  if (bytes == 0) return {};
  const QString exact = QCoreApplication::translate("orvik-diag", "%1 bytes").arg(bytes);
  const auto size = static_cast<qint64>(std::min<std::uint64_t>(bytes, std::numeric_limits<qint64>::max()));
  return QStringLiteral("%1 (%2)").arg(QLocale::c().formattedDataSize(size, 2, QLocale::DataSizeSIFormat), exact);
}

QString SectorsText(const ProtocolProperties& known) {
  if (known.sectorCount == 0) return {};
  QString text =
      QCoreApplication::translate("orvik-diag", "%1 of %2 bytes").arg(known.sectorCount).arg(known.logicalSectorSize);
  if (known.physicalSectorSize == 0) return text;
  return QStringLiteral("%1, %2").arg(
      text, QCoreApplication::translate("orvik-diag", "%1 bytes physical").arg(known.physicalSectorSize));
}

QString RotationText(const ProtocolProperties& known) {
  if (known.isSolidState) return QCoreApplication::translate("orvik-diag", "solid-state device");
  if (known.rotationRate == 0) return {};
  return QCoreApplication::translate("orvik-diag", "%1 rpm").arg(known.rotationRate);
}

QString SwitchText(bool supported, bool on, const QString& whenOn, const QString& whenOff) {
  if (!supported) return QCoreApplication::translate("orvik-diag", "not supported");
  return on ? whenOn : whenOff;
}

QString SelfTestKinds(const ProtocolProperties& known) {
  QStringList kinds;
  if (known.selfTestSupported) kinds += QCoreApplication::translate("orvik-diag", "short and extended");
  if (known.conveyanceSelfTestSupported) kinds += QCoreApplication::translate("orvik-diag", "conveyance");
  if (known.offlineImmediateSupported) kinds += QCoreApplication::translate("orvik-diag", "offline data collection");
  if (known.offlineAbortSupported) {
    kinds += QCoreApplication::translate("orvik-diag", "offline data collection aborts on new command");
  }
  return kinds.isEmpty() ? QCoreApplication::translate("orvik-diag", "none") : kinds.join(QStringLiteral(", "));
}

// The module's placeholder for a missing version is not shown.
QString StandardText(const std::string& name) {
  return name == "VERSION_NOT_REPORTED" ? QString() : DisplayText(name);
}

// Known only after a complete identification.
QString Features(const Drive& drive) {
  const ProtocolProperties& known = drive.properties;
  QString text;
  if (drive.isAtaIdentified) {
    text += Fact(
        QCoreApplication::translate("orvik-diag", "Security"),
        SwitchText(known.securitySupported, known.securityLocked, QCoreApplication::translate("orvik-diag", "locked"),
                   QCoreApplication::translate("orvik-diag", "not locked")));
    text += Fact(QCoreApplication::translate("orvik-diag", "48-bit addressing"),
                 known.lba48Supported ? QCoreApplication::translate("orvik-diag", "yes")
                                      : QCoreApplication::translate("orvik-diag", "no"));
  }
  text +=
      Fact(QCoreApplication::translate("orvik-diag", "SMART"),
           SwitchText(known.smartSupported, known.smartEnabled, QCoreApplication::translate("orvik-diag", "enabled"),
                      QCoreApplication::translate("orvik-diag", "disabled")));
  if (known.smartDataValid) {
    text += Fact(QCoreApplication::translate("orvik-diag", "Self-tests"), SelfTestKinds(known));
  }
  return text;
}

QString Identification(const Drive& drive) {
  const ProtocolProperties& known = drive.properties;
  QStringList standards;
  for (const std::string& standard : known.supportedStandards) standards += StandardText(standard);
  standards.removeAll(QString());
  QString text = Fact(QCoreApplication::translate("orvik-diag", "Vendor"), DisplayText(known.vendor));
  text += Fact(QCoreApplication::translate("orvik-diag", "Serial number"), DisplayText(known.serialNumber));
  text += Fact(QCoreApplication::translate("orvik-diag", "Firmware"), DisplayText(known.firmwareRevision));
  text += Fact(QCoreApplication::translate("orvik-diag", "Label"), DisplayText(known.labelText));
  text += Fact(QCoreApplication::translate("orvik-diag", "Standards"), standards.join(QStringLiteral(", ")));
  text += Fact(QCoreApplication::translate("orvik-diag", "Standard version"), StandardText(known.standardVersion));
  text += Fact(QCoreApplication::translate("orvik-diag", "Capacity"), CapacityText(drive));
  text += Fact(QCoreApplication::translate("orvik-diag", "Sectors"), SectorsText(known));
  text += Fact(QCoreApplication::translate("orvik-diag", "Rotation rate"), RotationText(known));
  text += Fact(QCoreApplication::translate("orvik-diag", "Cache size (as reported)"),
               known.cacheSize == 0 ? QString() : QString::number(known.cacheSize));
  return drive.IsIdentified() ? text + Features(drive) : text;
}

QString LatestSelfTestText(const Drive& drive, const Palette& palette) {
  const Reading<std::uint8_t>& result = drive.selfTestResult;
  const std::uint8_t code = result.value.value_or(0);
  QString text = palette.Paint(SelfTestWord(code, result.isAta));
  // A drive that never ran a self-test reports the same code.
  if (code == 0) text = QCoreApplication::translate("orvik-diag", "completed without error, or never run");
  if (drive.selfTestProgress && drive.selfTestProgress->value) {
    text += QStringLiteral(", %1 %").arg(*drive.selfTestProgress->value);
  }
  if (drive.failingLba && drive.failingLba->value) {
    text += QStringLiteral(", ") +
            QCoreApplication::translate("orvik-diag", "first failing LBA %1").arg(*drive.failingLba->value);
  }
  return ReadingText(result, text, palette);
}

QString Readings(const Drive& drive, const Palette& palette) {
  const auto degrees = QCoreApplication::translate("orvik-diag", "%1 °C");
  QString text = Fact(QCoreApplication::translate("orvik-diag", "Temperature"),
                      ReadingText(drive.temperature, degrees.arg(drive.temperature.value.value_or(0)), palette));
  text += Fact(QCoreApplication::translate("orvik-diag", "Health"),
               ReadingText(drive.health, palette.Paint(HealthWord(drive.health.value.value_or(0))), palette));
  text += Fact(
      QCoreApplication::translate("orvik-diag", "Remaining life"),
      ReadingText(drive.lifeRemaining, QStringLiteral("%1 %").arg(drive.lifeRemaining.value.value_or(0)), palette));
  text += Fact(QCoreApplication::translate("orvik-diag", "Power mode"),
               ReadingText(drive.powerMode, PowerModeWord(drive.powerMode.value.value_or(0)).shown, palette));
  text += Fact(QCoreApplication::translate("orvik-diag", "Latest self-test"), LatestSelfTestText(drive, palette));
  return text;
}

QString DriveHeading(const Drive& drive, const Palette& palette) {
  QStringList parts{DisplayText(drive.entry.id), ProtocolWord(drive.entry.protocol).shown,
                    DisplayText(drive.properties.model)};
  parts.removeAll(QString());
  return QStringLiteral("    %1: %2\n")
      .arg(QString::number(drive.index), palette.Paint(Colour::Bold, parts.join(QStringLiteral(", "))));
}

QString DriveText(const Drive& drive, const Palette& palette) {
  QString text = DriveHeading(drive, palette);
  const auto addProblem = [&text, &palette](const QString& line) {
    text += QStringLiteral("      %1\n").arg(palette.Paint(Colour::Red, line));
  };
  if (!drive.status) addProblem(QCoreApplication::translate("orvik-diag", "Not read"));
  if (drive.status && !drive.IsIdentified()) {
    addProblem(QCoreApplication::translate("orvik-diag", "Could not identify the drive (%1)")
                   .arg(StatusText(*drive.status)));
  }
  if (!drive.problem.isEmpty()) addProblem(drive.problem);
  if (drive.Answers()) text += Identification(drive) + Readings(drive, palette);
  return text;
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
  json["aborted"] = report.isAborted;
  json["failingLba"] = JsonNumber(report.failingLba);
  return json;
}

QString DrivesText(const DriveQueryList& queries, const Palette& palette) {
  QString text;
  std::size_t count = 0;
  for (const auto& query : queries) {
    text += DeviceHeading(*query->device, palette) + u'\n';
    for (const Drive& drive : query->drives) text += DriveText(drive, palette);
    text += u'\n';
    count += query->drives.size();
  }
  return text + QCoreApplication::translate("orvik-diag", "%n drive(s)", nullptr, static_cast<int>(count)) + u'\n';
}

QString SelfTestText(const SelfTestRun& run, const Palette& palette) {
  const SelfTestReport& report = run.report;
  if (!run.outcome.Ok() || run.outcome.Value() == core::TestResult::Aborted) return {};
  QString text = DriveHeading(run.drive, palette);
  if (run.kind == SelfTestRequest::Abort) {
    return text +
           QStringLiteral("      %1\n").arg(QCoreApplication::translate("orvik-diag", "Abort command accepted"));
  }
  text += Fact(run.kind == SelfTestRequest::Extended ? QCoreApplication::translate("orvik-diag", "Extended self-test")
                                                     : QCoreApplication::translate("orvik-diag", "Short self-test"),
               palette.Paint(SelfTestWord(report.result.value.value_or(0), report.result.isAta)));
  if (report.failingLba) {
    text += Fact(QCoreApplication::translate("orvik-diag", "First failing LBA"), QString::number(*report.failingLba));
  }
  return text;
}

}  // namespace orvik::host
