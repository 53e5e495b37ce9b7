#include "utils/dialogs/temporary_folder.h"

#include <array>

#include <windows.h>

#include <shlobj.h>

#include "utils/text/text_conversion.h"
#include "utils/windows/unique_handle.h"

namespace orvik::utils {

namespace {

struct TaskMemoryTraits {
  using Value = PWSTR;
  static Value Empty() { return nullptr; }
  static void Release(Value memory) { CoTaskMemFree(memory); }
};

// Empty when the system does not tell.
WideString ProgramDataFolder() {
  PWSTR path = nullptr;
  const HRESULT status = SHGetKnownFolderPath(FOLDERID_ProgramData, 0, nullptr, &path);
  const UniqueResource<TaskMemoryTraits> owner(path);
  return status == S_OK && path != nullptr ? WideString(path) : WideString();
}

WideString CurrentUser() {
  std::array<WCHAR, 257> name{};
  auto size = static_cast<DWORD>(name.size());
  return GetUserNameW(name.data(), &size) == FALSE ? WideString() : WideString(name.data());
}

}  // namespace

std::string FolderPath(FolderKind kind) {
  const WideString programData = ProgramDataFolder();
  const WideString user = CurrentUser();
  if (kind != FolderKind::Temporary || programData.empty() || user.empty()) return {};
  WideString path;
  for (const WideString& part :
       {programData, WideString(TEXT("Orvik")), WideString(TEXT("Diagnostics")), user, WideString(TEXT("temp"))}) {
    path += part;
    path += TEXT('\\');
  }
  return ToUtf8(path.c_str());
}

}  // namespace orvik::utils
