#include <QCoreApplication>

#include "host/command/command.h"
#include "host/inventory/device_list.h"
#include "host/inventory/test_list.h"
#include "host/report/device_json.h"
#include "host/report/test_report.h"

namespace orvik::host {
namespace {

class TestsCommand final : public Command {
 public:
  const char* Name() const override { return "tests"; }

  QString Description() const override {
    return QCoreApplication::translate("orvik-diag", "List the tests and the devices that each applies to");
  }

  CommandResult Execute(const CommandContext& context) override {
    std::vector<ListedDevice> devices;
    QString error;
    if (!FindDevices(context, devices, error)) return CouldNotTell(error);

    CommandResult result;
    const std::vector<ListedTest> tests = ListTests(context.module, context.translations, result.errors);
    result.sections["devices"] = DevicesJson(devices);
    result.sections["tests"] = TestsJson(tests, devices);
    result.text = TestsText(tests, devices, context.palette);
    return result;
  }
};

}  // namespace

std::unique_ptr<Command> MakeTestsCommand() {
  return std::make_unique<TestsCommand>();
}

}  // namespace orvik::host
