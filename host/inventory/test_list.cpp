#include "host/inventory/test_list.h"

#include <QCoreApplication>

#include "host/text/message_text.h"

namespace orvik::host {

std::vector<ListedTest> ListTests(const core::Module& module, const Translations& translations, QStringList& errors) {
  std::vector<ListedTest> tests;
  for (const core::TestId id : module.GetTestIds()) {
    std::unique_ptr<core::Test> test = module.CreateTest(id);
    if (test == nullptr) {
      errors += QCoreApplication::translate("orvik-diag", "The module lists test %1 but does not make it").arg(id);
      continue;
    }
    const std::string& nameKey = test->Descriptor().nameKey;
    QString name = TranslateKey(nameKey);
    QString englishName = translations.English(nameKey);
    tests.push_back({id, std::move(test), std::move(name), std::move(englishName)});
  }
  return tests;
}

bool AppliesTo(const ListedTest& test, const ListedDevice& device) {
  const std::shared_ptr<core::Device> locked = device.device.lock();
  return locked != nullptr && test.test->IsSupported(*locked, nullptr);
}

}  // namespace orvik::host
