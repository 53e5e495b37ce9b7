#include <sys/ioctl.h>
#include <unistd.h>

#include <QByteArray>

#include "host/terminal/terminal.h"

namespace orvik::host {

void PrepareConsole() {}

bool IsTerminal(Stream stream) {
  const QByteArray kind = qgetenv("TERM");
  return isatty(stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO) != 0 && !kind.isEmpty() && kind != "dumb";
}

TerminalSize ErrorTerminalSize() {
  winsize size{};
  const bool known = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 && size.ws_row > 0;
  return known ? TerminalSize{size.ws_col, size.ws_row} : TerminalSize{};
}

}  // namespace orvik::host
