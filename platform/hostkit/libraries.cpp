#include <array>
#include <filesystem>
#include <string_view>

#include <windows.h>

#include "platform/hostkit/services.h"

namespace hostkit {

namespace {

WideString WideOf(std::string_view utf8) {
  const std::u8string text(utf8.begin(), utf8.end());
  const std::u16string units = std::filesystem::path(text).u16string();
  return {units.begin(), units.end()};
}

std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace

InstalledFileSystem::InstalledFileSystem() {
  static const char kInThisLibrary = 0;
  HMODULE self = nullptr;
  std::array<WCHAR, 4096> path{};
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (!GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&kInThisLibrary), &self)) return;
  const DWORD length = GetModuleFileNameW(self, path.data(), static_cast<DWORD>(path.size()));
  if (length == 0 || length >= path.size()) return;
  const std::u16string units(path.begin(), path.begin() + length);
  directory_ = Utf8Of(std::filesystem::path(units).parent_path());
}

const char* InstalledFileSystem::LibraryDirectory() const {
  return directory_.c_str();
}

void* SystemLibraryLoader::Load(const char* path, std::int32_t /*mode*/) {
  return path == nullptr ? nullptr : LoadLibraryW(WideOf(path).c_str());
}

void* SystemLibraryLoader::FindSymbol(void* library, const char* name) {
  if (library == nullptr || name == nullptr) return nullptr;
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void SystemLibraryLoader::Unload(void* library) {
  if (library != nullptr) FreeLibrary(static_cast<HMODULE>(library));
}

}  // namespace hostkit
