#include "tests/sweeps/callers.h"

#include <dlfcn.h>
#include <execinfo.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace orvik::sweeps {

bool CalledFromOutside() {
  static constexpr std::array<std::string_view, 5> kOutside = {"orvik_simulation", "orvik_windows", "storelib.dll",
                                                               "shcore.dll", "libQt6"};
  std::array<void*, 128> frames{};
  const int depth = backtrace(frames.data(), static_cast<int>(frames.size()));
  return std::ranges::any_of(std::span(frames).first(static_cast<std::size_t>(depth)), [](const void* frame) {
    Dl_info info{};
    if (dladdr(frame, &info) == 0 || info.dli_fname == nullptr) return false;
    const std::string_view library = info.dli_fname;
    return std::ranges::any_of(kOutside, [&](auto name) { return library.find(name) != std::string_view::npos; });
  });
}

}  // namespace orvik::sweeps
