#include "utils/dialogs/icon_recoloring.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>
#include <memory>

namespace orvik::utils {

std::optional<QString> RecoloredSvg(QString svg, const QString& color) {
  const QString attribute = QStringLiteral("fill=\"");
  const qsizetype found = svg.indexOf(attribute);
  if (found < 0) return std::nullopt;
  const qsizetype start = found + attribute.size();
  const qsizetype end = svg.indexOf(u'"', start);
  if (end <= start) return std::nullopt;
  const QString old = svg.mid(start, end - start);
  return svg.replace(old, color);
}

QString IconBaseName(const QString& value) {
  QString name = value.trimmed();
  for (const QString& part :
       {QStringLiteral("url(\":/"), QStringLiteral("="), QStringLiteral("\")"), QStringLiteral(".svg")}) {
    name.remove(part);
  }
  // The name must not contain a separator that leads out of the folder.
  name.replace(u'/', u'_').replace(u'\\', u'_');
  return name.isEmpty() ? QStringLiteral("temp_svg") : name;
}

std::optional<QString> RecoloredIcon(const QString& value, const QString& path, const QString& color,
                                     const QString& folder, QObject& owner) {
  QFile icon(path);
  if (!icon.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray original = icon.read(kLargestIcon + 1);
  if (original.size() > kLargestIcon) return std::nullopt;
  const auto svg = RecoloredSvg(QString::fromUtf8(original), color);
  if (!svg || folder.isEmpty() || !QDir().mkpath(folder)) return std::nullopt;

  auto copy =
      std::make_unique<QTemporaryFile>(QDir(folder).filePath(IconBaseName(value) + QStringLiteral("_XXXXXX.svg")));
  if (!copy->open()) return std::nullopt;
  const QByteArray bytes = svg->toUtf8();
  if (copy->write(bytes) != bytes.size() || !copy->flush()) return std::nullopt;
  copy->close();
  const QString name = copy->fileName();
  copy.release()->setParent(&owner);
  return QStringLiteral("url(\"") + name + QStringLiteral("\")");
}

}  // namespace orvik::utils
