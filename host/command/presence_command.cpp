#include <QCoreApplication>

#include "host/command/command.h"
#include "host/inventory/device_list.h"

namespace orvik::host {
namespace {

class PresenceCommand final : public Command {
 public:
  const char* Name() const override { return "presence"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Tell whether there is a RAID controller, without a scan");
  }

  CommandResult Execute(const CommandContext& context) override {
    QString error;
    const std::optional<bool> present = CheckPresence(*context.module.GetDeviceScanner(), error);
    if (!present) return CouldNotTell(error);

    CommandResult result;
    result.sections["present"] = *present;
    result.text = *present ? QCoreApplication::translate("orvik-diag", "There is a RAID controller.")
                           : QCoreApplication::translate("orvik-diag", "No RAID controller found.");
    result.text += u'\n';
    return result;
  }
};

}  // namespace

std::unique_ptr<Command> MakePresenceCommand() {
  return std::make_unique<PresenceCommand>();
}

}  // namespace orvik::host
