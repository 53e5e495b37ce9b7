#include <QCoreApplication>

#include "host/cli/program.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("orvik-diag"));
  QCoreApplication::setApplicationVersion(QStringLiteral(ORVIK_DIAG_VERSION));
  return orvik::host::RunProgram(QCoreApplication::arguments().mid(1));
}
