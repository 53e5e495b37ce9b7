#include "host/text/translations.h"

#include <QCoreApplication>
#include <QLocale>

namespace orvik::host {
namespace {

constexpr QLatin1String kFolder(":/i18n");

}  // namespace

Translations::Translations(const QString& language) {
  if (english_.load(QStringLiteral("orvik_en"), kFolder)) QCoreApplication::installTranslator(&english_);

  const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
  if (chosen_.load(locale, QStringLiteral("orvik"), QStringLiteral("_"), kFolder))
    QCoreApplication::installTranslator(&chosen_);
}

QString Translations::English(const std::string& key) const {
  const QString text = english_.translate("RAID", key.c_str());
  return text.isEmpty() ? QString::fromStdString(key) : text;
}

}  // namespace orvik::host
