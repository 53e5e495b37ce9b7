#include "tests/host/fake_module.h"

#include <QtCore/qglobal.h>

#include <cstdlib>
#include <fstream>
#include <mutex>
#include <sstream>

namespace orvik::tests {
namespace {

class FakeModule final : public core::Module {
 public:
  std::unique_ptr<core::Test> CreateTest(core::TestId id) const override { return MakeFakeTest(id); }
  std::int32_t GetTestCount() const override { return static_cast<std::int32_t>(GetTestIds().size()); }
  std::string GetShortName() const override { return "FK"; }
  std::string GetName() const override { return "FAKE"; }
  core::ModuleVersion GetVersion() const override { return {1, 2, 3, "-test"}; }
  std::shared_ptr<core::DeviceScanner> GetDeviceScanner() const override { return scanner_; }
  std::shared_ptr<core::DiagnosticDispatcher> GetDispatcher() const override { return dispatcher_; }
  void ClearStringSet() override {}

  std::vector<core::TestId> GetTestIds() const override {
    std::vector<core::TestId> ids;
    std::istringstream list(Environment(kListEnvironment));
    for (std::string id; std::getline(list, id, ',');) ids.push_back(std::stoi(id));
    return ids;
  }

  std::vector<std::string> GetAuxiliaryList() const override { return {}; }
  std::string GetAuxiliaryText() const override { return {}; }

 private:
  std::shared_ptr<core::DeviceScanner> scanner_ = MakeFakeScanner();
  std::shared_ptr<core::DiagnosticDispatcher> dispatcher_ = MakeFakeDispatcher();
};

}  // namespace

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

bool IsInMood(const char* word) {
  std::istringstream words(Environment(kMoodEnvironment));
  for (std::string each; words >> each;) {
    if (each == word) return true;
  }
  return false;
}

void Log(const std::string& line) {
  static std::mutex mutex;
  const std::lock_guard lock(mutex);
  const std::string file = Environment(kLogEnvironment);
  if (!file.empty()) std::ofstream(file, std::ios::app) << line << '\n';
}

}  // namespace orvik::tests

extern "C" {

Q_DECL_EXPORT orvik::core::Module* CreateModuleInstance() {
  orvik::tests::Log("module created");
  return orvik::tests::IsInMood("no-instance") ? nullptr : new orvik::tests::FakeModule;
}

Q_DECL_EXPORT void DestroyModuleInstance(orvik::core::Module* module) {
  delete module;
  orvik::tests::Log("module destroyed");
}
}
