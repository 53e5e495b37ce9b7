// Loads the given libraries and tells on standard output how many nanoseconds of processor time that took. When the
// last of them makes module objects, one is made too and taken down again after the clock has stopped.

#include <dlfcn.h>

#include <cstdio>
#include <ctime>

namespace {

// Unlike the time of day it does not pass while other processes run.
long long ProcessorNanoseconds() {
  std::timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

}  // namespace

int main(int count, char** names) {
  const long long begin = ProcessorNanoseconds();
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
  const long long taken = ProcessorNanoseconds() - begin;
  if (module != nullptr) reinterpret_cast<void (*)(void*)>(dlsym(last, "DestroyModuleInstance"))(module);
  std::printf("%lld\n", taken);
  return 0;
}
