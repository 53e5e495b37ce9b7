#include "host/report/device_report.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>

#include "host/drives/drive.h"
#include "host/text/text.h"

namespace orvik::host {
namespace {

Word StateWord(module::raid::LogicalDriveState state) {
  using module::raid::LogicalDriveState;
  switch (state) {
    case LogicalDriveState::Optimal:
      return {"optimal", QCoreApplication::translate("orvik-diag", "optimal"), Colour::Green};
    case LogicalDriveState::Degraded:
      return {"degraded", QCoreApplication::translate("orvik-diag", "degraded"), Colour::Yellow};
    case LogicalDriveState::Failed:
      return {"failed", QCoreApplication::translate("orvik-diag", "failed", "a logical disk"), Colour::Red};
    case LogicalDriveState::Rebuilding:
      return {"rebuilding", QCoreApplication::translate("orvik-diag", "rebuilding"), Colour::Yellow};
    case LogicalDriveState::Unknown: break;
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "state unknown"), Colour::Plain};
}

QJsonArray PropertiesJson(const core::KeyValueList& properties) {
  QJsonArray array;
  for (const auto& [key, value] : properties) {
    array.append(QJsonObject{{"key", RawText(key)}, {"label", TranslateKey(key)}, {"value", RawText(value)}});
  }
  return array;
}

QJsonArray ResourcesJson(const std::vector<core::KeyValueList>& resources) {
  QJsonArray array;
  for (const core::KeyValueList& resource : resources) {
    QJsonArray entries;
    for (const auto& [key, value] : resource) {
      entries.append(QJsonObject{{"key", RawText(key)}, {"value", RawText(value)}});
    }
    array.append(entries);
  }
  return array;
}

QJsonValue ControllerJson(const std::optional<module::raid::ControllerInfo>& info) {
  if (!info) return QJsonValue::Null;
  return QJsonObject{
      {"serial", RawText(info->serial)},
      {"model", RawText(info->model)},
      {"driverVersion", RawText(info->driverVersion)},
      {"platform", RawText(info->platform)},
      {"logicalDriveCount", info->logicalDriveCount < 0 ? QJsonValue(QJsonValue::Null)
                                                        : QJsonValue(static_cast<qint64>(info->logicalDriveCount))},
      {"supportedRaidLevels", JsonTexts(info->supportedRaidLevels)},
      {"supportedInterfaces", JsonTexts(info->supportedInterfaces)},
      {"bbuSupported", info->bbuSupported},
      {"udi", RawText(info->udi)},
  };
}

QJsonObject LogicalDiskJson(const LogicalDisk& disk) {
  return {
      {"index", disk.index},
      {"name", RawText(disk.name)},
      {"raidLevel", RawText(disk.raidLevel)},
      {"state", disk.state ? QJsonValue(StateWord(*disk.state).stable) : QJsonValue(QJsonValue::Null)},
      {"memberCount", static_cast<qint64>(disk.memberCount)},
      {"sizeBytes", JsonNumber(disk.sizeBytes)},
      {"size", RawText(disk.size)},
      {"failedMembers", JsonTexts(disk.failedMembers)},
  };
}

QJsonObject PhysicalDiskJson(const PhysicalDisk& disk) {
  return {
      {"index", disk.index},
      {"protocol", disk.protocol ? QJsonValue(ProtocolWord(*disk.protocol).stable) : QJsonValue(QJsonValue::Null)},
      {"manufacturer", RawText(disk.manufacturer)},
      {"model", RawText(disk.model)},
      {"serial", RawText(disk.serial)},
      {"sizeBytes", JsonNumber(disk.sizeBytes)},
      {"size", RawText(disk.size)},
  };
}

QString Indented(qsizetype depth, const QString& line) {
  return QString(depth * 2, QLatin1Char(' ')) + line + u'\n';
}

QString SizeText(const std::string& size, const std::optional<std::uint64_t>& bytes) {
  if (!size.empty()) return DisplayText(size);
  if (bytes) return QCoreApplication::translate("orvik-diag", "%1 bytes").arg(*bytes);
  return {};
}

QString Joined(QStringList parts) {
  parts.removeAll(QString());
  return parts.join(QStringLiteral(", "));
}

QString LogicalDiskLine(const LogicalDisk& disk, const Palette& palette) {
  QString name = DisplayText(disk.name);
  if (!name.isEmpty()) name = QCoreApplication::translate("orvik-diag", "logical drive %1").arg(name);
  QString state;
  if (disk.state) state = palette.Paint(StateWord(*disk.state));
  const QString members =
      QCoreApplication::translate("orvik-diag", "%n member(s)", nullptr, static_cast<int>(disk.memberCount));
  return QStringLiteral("%1: %2").arg(
      QString::number(disk.index),
      Joined({name, TranslateKey(disk.raidLevel), state, SizeText(disk.size, disk.sizeBytes), members}));
}

QString PhysicalDiskLine(const PhysicalDisk& disk) {
  QString serial = DisplayText(disk.serial);
  if (!serial.isEmpty()) serial = QCoreApplication::translate("orvik-diag", "serial number %1").arg(serial);
  const QString product =
      QStringLiteral("%1 %2").arg(DisplayText(disk.manufacturer), DisplayText(disk.model)).trimmed();
  const QString protocol = disk.protocol ? ProtocolWord(*disk.protocol).shown : QString();
  return QStringLiteral("%1: %2").arg(QString::number(disk.index),
                                      Joined({protocol, product, SizeText(disk.size, disk.sizeBytes), serial}));
}

QString PropertyLines(const core::KeyValueList& properties) {
  QString lines;
  for (const auto& [key, value] : properties) {
    lines += Indented(2, QStringLiteral("%1: %2").arg(TranslateKey(key), DisplayText(value)));
  }
  return lines;
}

}  // namespace

QJsonObject DeviceJson(const ListedDevice& device) {
  const core::DeviceDescription& description = device.description;
  return {
      {"index", device.index},
      {"id", RawText(description.id)},
      {"udi", RawText(description.udi)},
      {"name", RawText(description.name)},
      {"testable", description.testable},
      {"tags", JsonTexts(description.tags)},
      {"properties", PropertiesJson(description.properties)},
      {"extraProperties", PropertiesJson(description.extraProperties)},
      {"resources", ResourcesJson(description.resources)},
  };
}

QJsonObject DeviceJson(const ListedDevice& device, const ControllerDetails& details) {
  QJsonObject json = DeviceJson(device);
  json["controller"] = ControllerJson(details.info);
  QJsonArray logical;
  for (const LogicalDisk& disk : details.logicalDisks) logical.append(LogicalDiskJson(disk));
  json["logicalDrives"] = logical;
  QJsonArray physical;
  for (const PhysicalDisk& disk : details.physicalDisks) physical.append(PhysicalDiskJson(disk));
  json["physicalDrives"] = physical;
  return json;
}

QJsonArray DevicesJson(const std::vector<ListedDevice>& devices) {
  QJsonArray array;
  for (const ListedDevice& device : devices) array.append(DeviceJson(device));
  return array;
}

QString DeviceHeading(const ListedDevice& device, const Palette& palette) {
  return QStringLiteral("[%1] %2 (%3)")
      .arg(QString::number(device.index), palette.Paint(Colour::Bold, DisplayText(device.description.name)),
           QCoreApplication::translate("orvik-diag", "ID %1").arg(DisplayText(device.description.id)));
}

QString DeviceTree(const ListedDevice& device, const ControllerDetails& details, const Palette& palette) {
  QString tree = DeviceHeading(device, palette) + u'\n';
  tree += PropertyLines(device.description.properties) + PropertyLines(device.description.extraProperties);
  for (const QString& error : details.errors) tree += Indented(2, palette.Paint(Colour::Red, error));

  if (!details.logicalDisks.empty()) {
    tree += Indented(2, QCoreApplication::translate("orvik-diag", "Logical drives"));
  }
  for (const LogicalDisk& disk : details.logicalDisks) {
    tree += Indented(3, LogicalDiskLine(disk, palette));
    for (const std::string& member : disk.failedMembers) {
      const QString line = QCoreApplication::translate("orvik-diag", "failed member: %1").arg(DisplayText(member));
      tree += Indented(4, palette.Paint(Colour::Red, line));
    }
  }

  if (!details.physicalDisks.empty()) {
    tree += Indented(2, QCoreApplication::translate("orvik-diag", "Physical drives"));
  }
  for (const PhysicalDisk& disk : details.physicalDisks) tree += Indented(3, PhysicalDiskLine(disk));
  return tree;
}

}  // namespace orvik::host
