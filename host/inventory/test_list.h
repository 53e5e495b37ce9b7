#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "core/module.h"
#include "host/inventory/device_list.h"
#include "host/text/translations.h"

namespace orvik::host {

/// A test of the module with its names for people.
struct ListedTest {
  core::TestId id = 0;
  std::unique_ptr<core::Test> test;
  QString name;         ///< in the user's language
  QString englishName;  ///< for the command line, where it is always understood
};

/// The module's tests in its own order. One that it lists but does not make leaves a line in `errors`.
std::vector<ListedTest> ListTests(const core::Module& module, const Translations& translations, QStringList& errors);

/// Whether the test is meant for the device; never for one that has gone.
bool AppliesTo(const ListedTest& test, const ListedDevice& device);

}  // namespace orvik::host
