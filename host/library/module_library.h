#pragma once

#include <QString>
#include <memory>

#include "core/module.h"

namespace orvik::host {

/// A loaded module library and the one module object that it made. Whatever came from the module (tests, devices,
/// scanner, dispatcher) must be released before this goes.
class ModuleLibrary {
 public:
  /// Loads `file`, or the installed RAID module when it is empty. Null, and one line in `error`, on failure.
  static std::unique_ptr<ModuleLibrary> Open(const QString& file, QString& error);

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
