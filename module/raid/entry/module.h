#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/module.h"
#include "module/raid/entry/device_scanner.h"
#include "utils/dispatcher/general_diagnostic_dispatcher.h"

namespace orvik::module::raid {

/// The module object: identity, scanner, dispatcher and tests. Its members never change after construction.
class Module final : public core::Module {
 public:
  Module();
  ~Module() override;

  std::unique_ptr<core::Test> CreateTest(core::TestId id) const override;
  std::int32_t GetTestCount() const override;
  std::string GetShortName() const override;
  std::string GetName() const override;
  core::ModuleVersion GetVersion() const override;
  std::shared_ptr<core::DeviceScanner> GetDeviceScanner() const override;
  std::shared_ptr<core::DiagnosticDispatcher> GetDispatcher() const override;
  void ClearStringSet() override;
  std::vector<core::TestId> GetTestIds() const override;
  std::vector<std::string> GetAuxiliaryList() const override;
  std::string GetAuxiliaryText() const override;

 private:
  std::vector<core::TestId> testIds_;
  std::shared_ptr<DeviceScanner> scanner_;
  std::shared_ptr<utils::GeneralDiagnosticDispatcher> dispatcher_;
};

}  // namespace orvik::module::raid
