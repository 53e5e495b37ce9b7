// The commands that list controllers and tests and do not run anything.

#include <QCoreApplication>
#include <QJsonArray>

#include "host/command/command.h"
#include "host/inventory/controller_details.h"
#include "host/privacy/hide_serials.h"
#include "host/report/device_report.h"
#include "host/report/run_report.h"

namespace orvik::host {
namespace {

class ScanCommand final : public Command {
 public:
  const char* Name() const override { return "scan"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "List RAID controllers and their drives");
  }

  Result<Report> Execute(const CommandContext& context) override {
    const Result<std::vector<ListedDevice>> devices = FindDevices(context);
    if (!devices.Ok()) return devices.Error();

    Report report;
    if (devices.Value().empty()) report.notes = NotesOnNoDevice(context);
    QJsonArray json;
    for (const ListedDevice& device : devices.Value()) {
      ControllerDetails details = ReadControllerDetails(device);
      if (context.hideSerials) HideSerials(details);
      for (const QString& error : details.errors) report.errors += DeviceProblem(device, error);
      if (context.format == OutputFormat::Json) {
        json.append(DeviceJson(device, details));
      } else {
        report.text += DeviceTree(device, details, context.palette) + u'\n';
      }
    }
    if (context.format == OutputFormat::Json) {
      report.sections["devices"] = json;
    } else {
      report.text += CountLine(devices.Value().size()) + u'\n';
    }
    return report;
  }

 private:
  static QString CountLine(std::size_t count) {
    if (count == 0) return QCoreApplication::translate("orvik-diag", "No RAID controller found.");
    return QCoreApplication::translate("orvik-diag", "%n RAID controller(s)", nullptr, static_cast<int>(count));
  }
};

class PresenceCommand final : public Command {
 public:
  const char* Name() const override { return "presence"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "Check for a RAID controller without a full scan");
  }

  Result<Report> Execute(const CommandContext& context) override {
    const Result<bool> present = CheckPresence(*context.module.GetDeviceScanner());
    if (!present.Ok()) return present.Error();

    Report report;
    if (!present.Value()) report.notes = NotesOnNoDevice(context);
    if (context.format == OutputFormat::Json) {
      report.sections["present"] = present.Value();
    } else {
      report.text = present.Value() ? QCoreApplication::translate("orvik-diag", "RAID controller found.")
                                    : QCoreApplication::translate("orvik-diag", "No RAID controller found.");
      report.text += u'\n';
    }
    return report;
  }
};

class ListTestsCommand final : public Command {
 public:
  const char* Name() const override { return "tests"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "List the tests and the devices they apply to");
  }

  Result<Report> Execute(const CommandContext& context) override {
    const Result<std::vector<ListedDevice>> devices = FindDevices(context);
    if (!devices.Ok()) return devices.Error();

    const TestList list = ListTests(context.module, context.translations);
    Report report;
    if (devices.Value().empty()) report.notes = NotesOnNoDevice(context);
    report.errors = list.errors;
    if (context.format == OutputFormat::Json) {
      report.sections["devices"] = DevicesJson(devices.Value());
      report.sections["tests"] = TestsJson(list.tests, devices.Value());
    } else {
      report.text = TestsText(list.tests, devices.Value(), context.palette);
    }
    return report;
  }
};

}  // namespace

std::unique_ptr<Command> MakeScanCommand() {
  return std::make_unique<ScanCommand>();
}

std::unique_ptr<Command> MakePresenceCommand() {
  return std::make_unique<PresenceCommand>();
}

std::unique_ptr<Command> MakeListTestsCommand() {
  return std::make_unique<ListTestsCommand>();
}

}  // namespace orvik::host
