#include "host/command/command.h"

#include <QCoreApplication>

#include "host/privacy/hide_serials.h"

namespace orvik::host {

std::vector<std::unique_ptr<Command>> AllCommands() {
  std::vector<std::unique_ptr<Command>> commands;
  commands.push_back(MakeScanCommand());
  commands.push_back(MakePresenceCommand());
  commands.push_back(MakeTestsCommand());
  commands.push_back(MakeTestCommand());
  commands.push_back(MakeDrivesCommand());
  commands.push_back(MakeSelfTestCommand());
  return commands;
}

CommandResult CouldNotTell(const QString& error) {
  CommandResult result;
  result.errors += error;
  result.exitCode = ExitCode::CouldNotTell;
  return result;
}

CLI::Option* AddListOption(CLI::App& options, const char* name, std::vector<std::string>& values,
                           const QString& description) {
  return options.add_option(name, values, description.toStdString())->expected(1, -1)->allow_extra_args(false);
}

void AddDeviceOption(CLI::App& options, std::vector<std::string>& values) {
  AddListOption(options, "--device", values,
                QCoreApplication::translate("orvik-diag", "Only devices with this id, or the one with this index"))
      ->type_name(QCoreApplication::translate("orvik-diag", "DEVICE").toStdString());
}

bool FindDevices(const CommandContext& context, std::vector<ListedDevice>& devices, QString& error) {
  if (!ScanDevices(*context.module.GetDeviceScanner(), devices, error)) return false;
  if (context.hideSerials) {
    for (ListedDevice& device : devices) HideSerials(device.description);
  }
  return true;
}

}  // namespace orvik::host
