// Loads the given libraries and tells on standard output how many nanoseconds that took. When the last of them makes
// module objects, one is made too and taken down again after the clock has stopped.

#include <dlfcn.h>

#include <chrono>
#include <cstdio>

int main(int count, char** names) {
  const auto begin = std::chrono::steady_clock::now();
  void* last = nullptr;
  for (int i = 1; i < count; ++i) {
    last = dlopen(names[i], RTLD_NOW | RTLD_GLOBAL);
    if (last == nullptr) {
      std::fprintf(stderr, "%s\n", dlerror());
      return 1;
    }
  }
  auto* const create = reinterpret_cast<void* (*)()>(dlsym(last, "CreateModuleInstance"));
  void* const module = create == nullptr ? nullptr : create();
  const auto taken = std::chrono::steady_clock::now() - begin;
  if (module != nullptr) reinterpret_cast<void (*)(void*)>(dlsym(last, "DestroyModuleInstance"))(module);
  std::printf("%lld\n", static_cast<long long>(std::chrono::nanoseconds(taken).count()));
  return 0;
}
