#include "host/report/device_text.h"

#include <QCoreApplication>
#include <QStringList>

#include "host/report/words.h"
#include "host/text/display_text.h"
#include "host/text/message_text.h"

namespace orvik::host {
namespace {

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
  if (disk.state) {
    const Word word = WordFor(*disk.state);
    state = palette.Paint(word.colour, word.shown);
  }
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
  const QString protocol = disk.protocol ? WordFor(*disk.protocol).shown : QString();
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

QString DeviceHeading(const ListedDevice& device, const Palette& palette) {
  return QStringLiteral("[%1] %2 (%3)")
      .arg(QString::number(device.index), palette.Paint(Colour::Bold, DisplayText(device.description.name)),
           QCoreApplication::translate("orvik-diag", "id %1").arg(DisplayText(device.description.id)));
}

QString DeviceTree(const ListedDevice& device, const ControllerDetails& details, const Palette& palette) {
  QString tree = DeviceHeading(device, palette) + u'\n';
  tree += PropertyLines(device.description.properties) + PropertyLines(device.description.extraProperties);
  for (const QString& error : details.errors) tree += Indented(2, palette.Paint(Colour::Red, error));

  if (!details.logicalDisks.empty()) {
    tree += Indented(2, QCoreApplication::translate("orvik-diag", "Logical disks"));
  }
  for (const LogicalDisk& disk : details.logicalDisks) {
    tree += Indented(3, LogicalDiskLine(disk, palette));
    for (const std::string& member : disk.failedMembers) {
      const QString line = QCoreApplication::translate("orvik-diag", "failed member: %1").arg(DisplayText(member));
      tree += Indented(4, palette.Paint(Colour::Red, line));
    }
  }

  if (!details.physicalDisks.empty()) {
    tree += Indented(2, QCoreApplication::translate("orvik-diag", "Physical disks"));
  }
  for (const PhysicalDisk& disk : details.physicalDisks) tree += Indented(3, PhysicalDiskLine(disk));
  return tree;
}

}  // namespace orvik::host
