#pragma once

#include <QByteArrayView>
#include <QString>

namespace orvik::host {

enum class Stream { Output, Error };

struct TerminalSize {
  int columns = 80;
  int rows = 24;
};

/// Switches a Windows console to UTF-8 and escape sequences. Call once at the start.
void PrepareConsole();

/// Whether the stream is a terminal that understands escape sequences.
bool IsTerminal(Stream stream);

/// Whether standard output is such a terminal and NO_COLOR is not set.
bool OutputTakesColours();

/// Size of the terminal behind standard error; the default size if it is unknown.
TerminalSize ErrorTerminalSize();

/// Whether a user can answer on standard input. Always false on Windows, where questions appear in windows.
bool IsInputTerminal();

struct InputLine {
  enum class State { None, Line, Ended };
  State state = State::None;
  QString text{};
};

/// The next line of standard input if one is available. Does not block.
InputLine PollInputLine();

/// Writes and flushes all of `bytes`. False if the stream does not accept them.
bool Write(Stream stream, QByteArrayView bytes);

}  // namespace orvik::host
