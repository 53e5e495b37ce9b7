#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "host/command/command.h"

namespace orvik::host {

/// What the user asked for.
struct Request {
  Command* command = nullptr;  ///< among those that were offered to `ParseCommandLine`
  std::optional<QString> machineFile;
  QString moduleFile;  ///< empty: the installed one
  bool hideSerials = false;
};

/// Text that the user asked for instead of a command: help or the version.
struct Information {
  QString text;
};

struct UsageError {
  QString message;
};

using ParsedCommandLine = std::variant<Request, Information, UsageError>;

/// Reads the arguments (without the program's own name).
ParsedCommandLine ParseCommandLine(const QStringList& arguments,
                                   const std::vector<std::unique_ptr<Command>>& commands);

/// Whether the output is to be JSON: known before parsing, because a usage error must be JSON too.
bool WantsJson(const QStringList& arguments);

/// The value of `--lang`, empty without one: known before parsing, because help has a language too.
QString WantedLanguage(const QStringList& arguments);

}  // namespace orvik::host
