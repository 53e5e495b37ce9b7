#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "host/command/command.h"
#include "host/result.h"

namespace orvik::host {

/// What the user asked for.
struct Request {
  Command* command = nullptr;  ///< one of those passed to `ParseCommandLine`
  std::optional<QString> machineFile;
  QString moduleFile;  ///< empty: the installed module
  bool hideSerials = false;
};

/// Text that the user asked for instead of a command: help or the version.
struct Information {
  QString text;
};

using ParsedCommandLine = std::variant<Request, Information>;

/// Parses the arguments, which do not include the program's name. The error says how they were misused.
Result<ParsedCommandLine> ParseCommandLine(const QStringList& arguments,
                                           const std::vector<std::unique_ptr<Command>>& commands);

/// Whether `--json` is among the arguments, even with a value, which is a usage error. Known before parsing, because
/// usage errors are JSON too.
bool WantsJson(const QStringList& arguments);

/// The value of `--lang`, empty without one. Known before parsing, because the help text is translated too.
QString WantedLanguage(const QStringList& arguments);

}  // namespace orvik::host
