#include "host/run/run_plan.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <set>

#include "host/text/choices.h"
#include "host/text/display_text.h"

namespace orvik::host {
namespace {

QString Missing(const std::vector<ListedDevice>& devices, const std::string& name) {
  QStringList available;
  for (const ListedDevice& device : devices) {
    available += QStringLiteral("%1 (%2, %3)")
                     .arg(QString::number(device.index), DisplayText(device.description.id),
                          DisplayText(device.description.name));
  }
  return WithChoices(QCoreApplication::translate("orvik-diag", "No device \"%1\"").arg(DisplayText(name)), available);
}

QString Missing(const std::vector<ListedTest>& tests, const std::string& name) {
  QStringList available;
  for (const ListedTest& test : tests) available += QStringLiteral("%1 (%2)").arg(test.id).arg(test.name);
  return WithChoices(QCoreApplication::translate("orvik-diag", "No test \"%1\"").arg(DisplayText(name)), available);
}

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

template <typename Item>
std::vector<const Item*> InOrder(const std::vector<Item>& items, const std::set<const Item*>& chosen) {
  std::vector<const Item*> ordered;
  for (const Item& item : items) {
    if (chosen.contains(&item)) ordered.push_back(&item);
  }
  return ordered;
}

template <typename Item>
std::set<const Item*> Everything(const std::vector<Item>& items) {
  std::set<const Item*> all;
  for (const Item& item : items) all.insert(&item);
  return all;
}

bool IsNamed(const ListedTest& test, const QString& name) {
  const QString key = QString::fromStdString(test.test->Descriptor().nameKey);
  const QString names[] = {QString::number(test.id), key, test.name, test.englishName};
  return std::any_of(std::begin(names), std::end(names),
                     [&name](const QString& candidate) { return candidate.compare(name, Qt::CaseInsensitive) == 0; });
}

}  // namespace

std::optional<std::vector<const ListedDevice*>> SelectDevices(const std::vector<ListedDevice>& devices,
                                                              const std::vector<std::string>& wanted,
                                                              QString& error) {
  if (wanted.empty()) return InOrder(devices, Everything(devices));
  std::set<const ListedDevice*> chosen;
  for (const std::string& name : wanted) {
    const auto hasId = [&name](const ListedDevice& device) { return device.description.id == name; };
    const auto hasIndex = [&name](const ListedDevice& device) { return std::to_string(device.index) == name; };
    if (!AddMatching(devices, chosen, hasId) && !AddMatching(devices, chosen, hasIndex)) {
      error = Missing(devices, name);
      return std::nullopt;
    }
  }
  return InOrder(devices, chosen);
}

std::optional<std::vector<const ListedTest*>> SelectTests(const std::vector<ListedTest>& tests,
                                                          const std::vector<std::string>& wanted, QString& error) {
  if (wanted.empty()) return InOrder(tests, Everything(tests));
  std::set<const ListedTest*> chosen;
  for (const std::string& name : wanted) {
    const QString text = QString::fromStdString(name).trimmed();
    if (!AddMatching(tests, chosen, [&text](const ListedTest& test) { return IsNamed(test, text); })) {
      error = Missing(tests, name);
      return std::nullopt;
    }
  }
  return InOrder(tests, chosen);
}

TestRunList PlanRuns(const std::vector<const ListedDevice*>& devices, const std::vector<const ListedTest*>& tests,
                     const core::AbortFlag& abortFlag) {
  TestRunList runs;
  for (const ListedDevice* const device : devices) {
    for (const ListedTest* const test : tests) {
      if (AppliesTo(*test, *device)) runs.push_back(std::make_unique<TestRun>(*device, *test, abortFlag));
    }
  }
  return runs;
}

}  // namespace orvik::host
