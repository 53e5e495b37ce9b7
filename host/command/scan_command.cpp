#include <QCoreApplication>
#include <QJsonArray>

#include "host/command/command.h"
#include "host/inventory/controller_details.h"
#include "host/inventory/device_list.h"
#include "host/privacy/hide_serials.h"
#include "host/report/device_json.h"
#include "host/report/device_text.h"

namespace orvik::host {
namespace {

class ScanCommand final : public Command {
 public:
  const char* Name() const override { return "scan"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "List the RAID controllers with their disks");
  }

  CommandResult Execute(const CommandContext& context) override {
    std::vector<ListedDevice> devices;
    QString error;
    if (!FindDevices(context, devices, error)) return CouldNotTell(error);

    CommandResult result;
    QJsonArray json;
    for (const ListedDevice& device : devices) {
      ControllerDetails details = ReadControllerDetails(device);
      if (context.hideSerials) HideSerials(details);
      json.append(DeviceJson(device, details));
      result.text += DeviceTree(device, details, context.palette) + u'\n';
      for (const QString& line : details.errors) {
        result.errors += QCoreApplication::translate("orvik-diag", "Device %1: %2").arg(device.index).arg(line);
      }
    }
    result.sections["devices"] = json;
    result.text += devices.empty() ? QCoreApplication::translate("orvik-diag", "No RAID controller found.")
                                   : QCoreApplication::translate("orvik-diag", "%n RAID controller(s)", nullptr,
                                                                 static_cast<int>(devices.size()));
    result.text += u'\n';
    return result;
  }
};

}  // namespace

std::unique_ptr<Command> MakeScanCommand() {
  return std::make_unique<ScanCommand>();
}

}  // namespace orvik::host
