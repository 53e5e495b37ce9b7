#include "host/display/display.h"

#include <QGuiApplication>

#include "host/terminal/terminal.h"

namespace orvik::host {

namespace {

void WriteFatalMessages(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtFatalMsg) Write(Stream::Error, (message + u'\n').toUtf8());
}

}  // namespace

void QuietToolkit() {
  if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) qInstallMessageHandler(WriteFatalMessages);
}

void LeaveScalingToDialogs() {
  if (!qEnvironmentVariableIsSet("QT_ENABLE_HIGHDPI_SCALING")) qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
}

bool HasDisplay() {
  const QString platform = QGuiApplication::platformName();
  return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

}  // namespace orvik::host
