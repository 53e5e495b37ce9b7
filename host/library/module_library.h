#pragma once

#include <QString>
#include <memory>

#include "core/module.h"

namespace orvik::host {

/// A loaded module library and the one module object that it made. Whatever came from the module (tests, devices,
/// scanner, dispatcher) must be released before this goes.
class ModuleLibrary {
 public:
  /// Loads `file`, or the installed RAID module when it is empty: where the installation has a variant of it for
  /// simulated machines and `simulated` is set, that one. Null, and one line in `error`, on failure.
  static std::unique_ptr<ModuleLibrary> Open(const QString& file, bool simulated, QString& error);

  ModuleLibrary(const ModuleLibrary&) = delete;
  ModuleLibrary& operator=(const ModuleLibrary&) = delete;
  ~ModuleLibrary();

  const core::Module& Module() const { return *module_; }

 private:
  ModuleLibrary(core::Module* module, DestroyModuleInstanceFunction* destroy);

  core::Module* module_;
  DestroyModuleInstanceFunction* destroy_;
};

}  // namespace orvik::host
