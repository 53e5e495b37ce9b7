#pragma once

#include <QByteArrayView>
#include <QString>

namespace orvik::host {

enum class Stream { Output, Error };

struct TerminalSize {
  int columns = 80;
  int rows = 24;
};

/// Readies a console for UTF-8 text and escape sequences where it is not so by itself. Once, at the start.
void PrepareConsole();

/// Whether the stream is a terminal on which the cursor can be moved.
bool IsTerminal(Stream stream);

/// Of the terminal behind standard error.
TerminalSize ErrorTerminalSize();

/// Whether a person may answer on standard input. Never on Windows, which has windows to ask in.
bool IsInputTerminal();

struct InputLine {
  enum class State { None, Line, Ended };
  State state = State::None;
  QString text{};
};

/// A line from standard input when one is there; never waits for it.
InputLine PollInputLine();

/// Writes all of `bytes` at once. False when the stream does not take them.
bool Write(Stream stream, QByteArrayView bytes);

}  // namespace orvik::host
