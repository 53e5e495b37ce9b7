#pragma once

#include <QString>
#include <memory>

#include "core/module.h"
#include "host/result.h"

namespace orvik::host {

/// Opens a simulated machine, so that a module loaded afterwards finds its controllers.
Result<void> OpenSimulatedMachine(const QString& machineFile);

/// A note that the vendor's library, which one family of controllers needs, is not installed; empty if it is. Call
/// after the module has been loaded. `simulated` asks the simulated machine.
QString MissingVendorLibrary(bool simulated);

/// A loaded module library and its one module object. Release everything that came from the module (tests, devices,
/// scanner, dispatcher) before destroying this.
class ModuleLibrary {
 public:
  /// Loads `file`, or the installed RAID module if it is empty. With `simulated` the installation's variant for
  /// simulated machines is preferred.
  static Result<std::unique_ptr<ModuleLibrary>> Open(const QString& file, bool simulated);

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
