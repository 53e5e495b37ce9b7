#include <windows.h>
#include <io.h>

#include <cstdio>

#include "host/terminal/terminal.h"

namespace orvik::host {

void PrepareConsole() {
  SetConsoleOutputCP(CP_UTF8);
  for (const DWORD id : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    const HANDLE console = GetStdHandle(id);
    DWORD mode = 0;
    if (GetConsoleMode(console, &mode) != 0) SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

bool IsTerminal(Stream stream) {
  return _isatty(_fileno(stream == Stream::Output ? stdout : stderr)) != 0;
}

TerminalSize ErrorTerminalSize() {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info) == 0) return {};
  return {info.srWindow.Right - info.srWindow.Left + 1, info.srWindow.Bottom - info.srWindow.Top + 1};
}

bool IsInputTerminal() {
  return false;
}

InputLine PollInputLine() {
  return {InputLine::State::Ended};
}

}  // namespace orvik::host
