#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QByteArray>
#include <array>

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

bool IsInputTerminal() {
  return isatty(STDIN_FILENO) != 0;
}

InputLine PollInputLine() {
  pollfd input{STDIN_FILENO, POLLIN, 0};
  if (poll(&input, 1, 0) <= 0) return {};
  std::array<char, 1024> line{};
  // A terminal delivers whole lines.
  const ssize_t size = read(STDIN_FILENO, line.data(), line.size());
  if (size <= 0) return {InputLine::State::Ended};
  return {InputLine::State::Line, QString::fromLocal8Bit(line.data(), size)};
}

}  // namespace orvik::host
