#include <QApplication>

#include "host/cli/program.h"
#include "host/display/display.h"

int main(int argc, char** argv) {
  orvik::host::QuietToolkit();
  orvik::host::ChooseDisplay();
  // The module asks its questions in windows of its own.
  const QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("orvik-diag"));
  QCoreApplication::setApplicationVersion(QStringLiteral(ORVIK_DIAG_VERSION));
  return orvik::host::RunProgram(QCoreApplication::arguments().mid(1));
}
