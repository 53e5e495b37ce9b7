#include "host/report/test_report.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>
#include <algorithm>

#include "host/text/display_text.h"
#include "host/text/message_text.h"

namespace orvik::host {
namespace {

std::vector<int> DevicesOf(const ListedTest& test, const std::vector<ListedDevice>& devices) {
  std::vector<int> indexes;
  for (const ListedDevice& device : devices) {
    if (AppliesTo(test, device)) indexes.push_back(device.index);
  }
  return indexes;
}

QString DeviceList(const std::vector<int>& indexes) {
  QStringList texts;
  for (const int index : indexes) texts += QString::number(index);
  return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(", "));
}

// Columns as wide as their widest cell; the last one is left as it is.
QString Table(const std::vector<QStringList>& rows, const Palette& palette) {
  QList<qsizetype> widths(rows.front().size(), 0);
  for (const QStringList& row : rows) {
    for (qsizetype i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  QString table;
  for (const QStringList& row : rows) {
    QString line;
    for (qsizetype i = 0; i + 1 < row.size(); ++i) line += row[i].leftJustified(widths[i] + 2);
    line += row.back();
    table += palette.Paint(&row == &rows.front() ? Colour::Bold : Colour::Plain, line) + u'\n';
  }
  return table;
}

}  // namespace

QJsonArray TestsJson(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices) {
  QJsonArray array;
  for (const ListedTest& test : tests) {
    const core::TestDescriptor& descriptor = test.test->Descriptor();
    QJsonArray indexes;
    for (const int index : DevicesOf(test, devices)) indexes.append(index);
    array.append(QJsonObject{
        {"id", test.id},
        {"nameKey", RawText(descriptor.nameKey)},
        {"name", test.name},
        {"tooltipKey", RawText(descriptor.tooltipKey)},
        {"tooltip", TranslateKey(descriptor.tooltipKey)},
        {"groupKey", RawText(descriptor.groupKey)},
        {"group", TranslateKey(descriptor.groupKey)},
        {"exclusive", test.test->IsExclusive()},
        {"estimatedDuration", static_cast<qint64>(test.test->GetEstimatedDuration())},
        {"devices", indexes},
    });
  }
  return array;
}

QString TestsText(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices,
                  const Palette& palette) {
  std::vector<QStringList> rows{{
      QCoreApplication::translate("orvik-diag", "Id"),
      QCoreApplication::translate("orvik-diag", "Name"),
      QCoreApplication::translate("orvik-diag", "Group"),
      QCoreApplication::translate("orvik-diag", "Exclusive"),
      QCoreApplication::translate("orvik-diag", "Duration"),
      QCoreApplication::translate("orvik-diag", "Devices"),
  }};
  for (const ListedTest& test : tests) {
    rows.push_back({
        QString::number(test.id),
        test.name,
        TranslateKey(test.test->Descriptor().groupKey),
        test.test->IsExclusive() ? QCoreApplication::translate("orvik-diag", "yes")
                                 : QCoreApplication::translate("orvik-diag", "no"),
        QString::number(test.test->GetEstimatedDuration()),
        DeviceList(DevicesOf(test, devices)),
    });
  }
  return Table(rows, palette);
}

}  // namespace orvik::host
