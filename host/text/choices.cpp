#include "host/text/choices.h"

#include <QCoreApplication>

namespace orvik::host {

QString WithChoices(const QString& problem, const QStringList& available) {
  const QString list =
      available.isEmpty()
          ? QCoreApplication::translate("orvik-diag", "there is none")
          : QCoreApplication::translate("orvik-diag", "there are: %1").arg(available.join(QStringLiteral(", ")));
  return QStringLiteral("%1; %2").arg(problem, list);
}

}  // namespace orvik::host
