#include "host/command/command.h"

namespace orvik::host {

std::vector<std::unique_ptr<Command>> AllCommands() {
  std::vector<std::unique_ptr<Command>> commands;
  commands.push_back(MakeScanCommand());
  commands.push_back(MakePresenceCommand());
  commands.push_back(MakeTestsCommand());
  commands.push_back(MakeTestCommand());
  return commands;
}

CommandResult CouldNotTell(const QString& error) {
  CommandResult result;
  result.errors += error;
  result.exitCode = ExitCode::CouldNotTell;
  return result;
}

}  // namespace orvik::host
