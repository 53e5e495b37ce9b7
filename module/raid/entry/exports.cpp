#include <memory>
#include <new>

#include "module/raid/entry/module.h"

extern "C" {

/// Returns a new module object, or null when there is no memory for it. Exceptions of its constructor reach the
/// caller.
orvik::core::Module* CreateModuleInstance();

/// Destroys a module object that `CreateModuleInstance` returned; null is ignored.
void DestroyModuleInstance(orvik::core::Module* instance);

orvik::core::Module* CreateModuleInstance() {
  return new (std::nothrow) orvik::module::raid::Module();
}

void DestroyModuleInstance(orvik::core::Module* instance) {
  const std::unique_ptr<orvik::core::Module> owner(instance);
}
}
