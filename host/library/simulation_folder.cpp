#include "host/library/simulation_folder.h"

#include <QCoreApplication>

namespace orvik::host {

QDir SimulationFolder() {
  QDir folder(QCoreApplication::applicationDirPath());
  // Stays where it is when there is no such folder.
  folder.cd(QStringLiteral("simulated"));
  return folder;
}

void SearchLibrariesIn(const QDir& folder) {
  const QByteArray path = QDir::toNativeSeparators(folder.absolutePath()).toLocal8Bit();
  qputenv("PATH", path + QChar(QDir::listSeparator()).toLatin1() + qgetenv("PATH"));
}

}  // namespace orvik::host
