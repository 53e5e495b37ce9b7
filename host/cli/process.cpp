#include "host/cli/process.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <csignal>

#include "host/terminal/terminal.h"

namespace orvik::host {
namespace {

void WriteFatalMessages(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtFatalMsg) Write(Stream::Error, (message + u'\n').toUtf8());
}

// Windows always has a desktop.
void ChooseDisplay() {
#ifndef Q_OS_WIN
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
  const bool display = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  // The toolkit takes the first that works; the last always does.
  qputenv("QT_QPA_PLATFORM", QByteArray(display ? "wayland;xcb;offscreen" : "offscreen"));
#endif
}

constinit core::AbortFlag interrupted{0};

extern "C" void OnInterrupt(int signal) {
  interrupted.store(1);
  static_cast<void>(std::signal(signal, SIG_DFL));
}

void Catch(int signal) {
  // A signal that was ignored at the start (nohup, a background job) stays ignored.
  if (std::signal(signal, OnInterrupt) == SIG_IGN) static_cast<void>(std::signal(signal, SIG_IGN));
}

}  // namespace

void PrepareToolkit() {
  // QT_LOGGING_RULES brings the toolkit's messages back.
  if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) qInstallMessageHandler(WriteFatalMessages);
  // The module's dialogs scale themselves to the monitor; with the toolkit's scaling they would be scaled twice.
  if (!qEnvironmentVariableIsSet("QT_ENABLE_HIGHDPI_SCALING")) qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  ChooseDisplay();
}

const core::AbortFlag& InterruptFlag() {
  return interrupted;
}

void CatchInterrupts() {
  Catch(SIGINT);
  Catch(SIGTERM);
}

}  // namespace orvik::host
