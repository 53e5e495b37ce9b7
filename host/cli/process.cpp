#include "host/cli/process.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <csignal>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include "host/terminal/terminal.h"

namespace orvik::host {
namespace {

void WriteFatalMessages(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtFatalMsg) Write(Stream::Error, (message + u'\n').toUtf8());
}

// The toolkit takes the first platform that works, and the last one always does: without it, a platform that cannot
// be used would abort the program.
void ChooseDisplay() {
  const QByteArray wanted = qgetenv("QT_QPA_PLATFORM");
  if (!wanted.isEmpty()) {
    if (!wanted.startsWith("offscreen")) qputenv("QT_QPA_PLATFORM", wanted + ";offscreen");
    return;
  }
#ifndef Q_OS_WIN  // which always has a desktop
  const bool display = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  qputenv("QT_QPA_PLATFORM", QByteArray(display ? "wayland;xcb;offscreen" : "offscreen"));
#endif
}

constinit core::AbortFlag interrupted{0};

extern "C" void OnInterrupt(int signal) {
  interrupted.store(1);
  static_cast<void>(std::signal(signal, SIG_DFL));
}

#ifdef Q_OS_WIN
// Windows ends the process as soon as this returns, and in any case after a few seconds.
BOOL WINAPI OnConsoleEvent(DWORD event) {
  if (event != CTRL_CLOSE_EVENT && event != CTRL_LOGOFF_EVENT && event != CTRL_SHUTDOWN_EVENT) return FALSE;
  interrupted.store(1);
  Sleep(INFINITE);
  return TRUE;
}
#endif

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
#ifdef Q_OS_WIN
  SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
#else
  Catch(SIGHUP);
#endif
}

}  // namespace orvik::host
