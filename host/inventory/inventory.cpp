#include "host/inventory/inventory.h"

#include <QCoreApplication>
#include <algorithm>
#include <exception>
#include <optional>
#include <set>

#include "host/text/text.h"

namespace orvik::host {
namespace {

class Collector final : public core::ScanListener {
 public:
  void OnDeviceFound(const core::DeviceDescription& description) override { descriptions.push_back(description); }
  void OnScanFinished() override { finished = true; }
  void OnPresenceChecked(bool isPresent) override { present = isPresent; }

  std::vector<core::DeviceDescription> descriptions;
  bool finished = false;
  std::optional<bool> present;
};

Error UnknownDevice(const std::vector<ListedDevice>& devices, const std::string& name) {
  QStringList available;
  for (const ListedDevice& device : devices) {
    available += QStringLiteral("%1 (%2, %3)")
                     .arg(QString::number(device.index), DisplayText(device.description.id),
                          DisplayText(device.description.name));
  }
  return {
      WithChoices(QCoreApplication::translate("orvik-diag", "No device \"%1\"").arg(DisplayText(name)), available)};
}

Error UnknownTest(const std::vector<ListedTest>& tests, const std::string& name) {
  QStringList available;
  for (const ListedTest& test : tests) available += QStringLiteral("%1 (%2)").arg(test.id).arg(test.name);
  return {WithChoices(QCoreApplication::translate("orvik-diag", "No test \"%1\"").arg(DisplayText(name)), available)};
}

// Adds the items that match; false if there are none.
template <typename Item, typename Matches>
bool AddMatching(const std::vector<Item>& items, std::set<const Item*>& chosen, const Matches& matches) {
  bool found = false;
  for (const Item& item : items) {
    if (!matches(item)) continue;
    chosen.insert(&item);
    found = true;
  }
  return found;
}

template <typename Item, typename Matches>
std::vector<const Item*> PointersTo(const std::vector<Item>& items, const Matches& matches) {
  std::vector<const Item*> pointers;
  for (const Item& item : items) {
    if (matches(&item)) pointers.push_back(&item);
  }
  return pointers;
}

bool IsNamed(const ListedTest& test, const QString& name) {
  const QString key = QString::fromStdString(test.test->Descriptor().nameKey);
  const QString names[] = {QString::number(test.id), key, test.name, test.englishName};
  return std::any_of(std::begin(names), std::end(names),
                     [&name](const QString& candidate) { return candidate.compare(name, Qt::CaseInsensitive) == 0; });
}

}  // namespace

Result<std::vector<ListedDevice>> ScanDevices(core::DeviceScanner& scanner) {
  const auto collector = std::make_shared<Collector>();
  try {
    scanner.Scan(collector);
  } catch (const std::exception& exception) {
    return Error{QCoreApplication::translate("orvik-diag", "The scan failed: %1").arg(CauseOf(exception))};
  }
  if (!collector->finished) {
    return Error{QCoreApplication::translate("orvik-diag", "The scan did not finish")};
  }

  const std::vector<std::weak_ptr<core::Device>> found = scanner.GetDevices();
  std::vector<ListedDevice> devices;
  for (core::DeviceDescription& description : collector->descriptions) {
    const std::size_t place = devices.size();
    std::weak_ptr<core::Device> device = place < found.size() ? found[place] : scanner.FindDevice(description.id);
    devices.push_back({static_cast<int>(place), std::move(description), std::move(device)});
  }
  return devices;
}

Result<bool> CheckPresence(core::DeviceScanner& scanner) {
  const auto collector = std::make_shared<Collector>();
  try {
    scanner.CheckPresence(collector);
  } catch (const std::exception& exception) {
    return Error{QCoreApplication::translate("orvik-diag", "The presence check failed: %1").arg(CauseOf(exception))};
  }
  if (!collector->present) {
    return Error{QCoreApplication::translate("orvik-diag", "The presence check returned no result")};
  }
  return *collector->present;
}

TestList ListTests(const core::Module& module, const Translations& translations) {
  TestList list;
  for (const core::TestId id : module.GetTestIds()) {
    std::unique_ptr<core::Test> test = module.CreateTest(id);
    if (test == nullptr) {
      list.errors +=
          QCoreApplication::translate("orvik-diag", "The module lists test %1 but does not create it").arg(id);
      continue;
    }
    const std::string& nameKey = test->Descriptor().nameKey;
    QString name = TranslateKey(nameKey);
    QString englishName = translations.English(nameKey);
    list.tests.push_back({id, std::move(test), std::move(name), std::move(englishName)});
  }
  return list;
}

Error DeviceGone() {
  return {QCoreApplication::translate("orvik-diag", "The device is no longer available")};
}

bool AppliesTo(const ListedTest& test, const ListedDevice& device) {
  const std::shared_ptr<core::Device> locked = device.device.lock();
  return locked != nullptr && test.test->IsSupported(*locked, nullptr);
}

Result<std::vector<const ListedDevice*>> SelectDevices(const std::vector<ListedDevice>& devices,
                                                       const std::vector<std::string>& wanted) {
  std::set<const ListedDevice*> chosen;
  for (const std::string& name : wanted) {
    const auto hasId = [&name](const ListedDevice& device) { return device.description.id == name; };
    const auto hasIndex = [&name](const ListedDevice& device) { return std::to_string(device.index) == name; };
    if (!AddMatching(devices, chosen, hasId) && !AddMatching(devices, chosen, hasIndex)) {
      return UnknownDevice(devices, name);
    }
  }
  return PointersTo(devices, [&](const ListedDevice* device) { return wanted.empty() || chosen.contains(device); });
}

Result<std::vector<const ListedTest*>> SelectTests(const std::vector<ListedTest>& tests,
                                                   const std::vector<std::string>& wanted) {
  std::set<const ListedTest*> chosen;
  for (const std::string& name : wanted) {
    const QString text = QString::fromStdString(name).trimmed();
    if (!AddMatching(tests, chosen, [&text](const ListedTest& test) { return IsNamed(test, text); })) {
      return UnknownTest(tests, name);
    }
  }
  return PointersTo(tests, [&](const ListedTest* test) { return wanted.empty() || chosen.contains(test); });
}

}  // namespace orvik::host
