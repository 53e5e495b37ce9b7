#include "utils/dialogs/windows_desktop.h"

#include <array>
#include <bit>

#include <shlobj.h>

#include "utils/text/text_conversion.h"
#include "utils/windows/unique_handle.h"

bool IsNarratorRunning() {
  BOOL screenReader = FALSE;
  if (SystemParametersInfoW(SPI_GETSCREENREADER, 0, &screenReader, 0) != FALSE && screenReader != FALSE) return true;
  HANDLE mutex = OpenMutexW(READ_CONTROL, FALSE, TEXT("NarratorRunning"));
  if (mutex == nullptr) return false;
  const orvik::utils::UniqueHandle closes(mutex);
  return true;
}

namespace orvik::utils {

namespace {

constexpr int kLastColor = 30;
constexpr int kUnusedColor = 25;

QColor ColorOf(int index) {
  const DWORD color = GetSysColor(index);
  return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8 & 0xFFU),
          static_cast<int>(color >> 16 & 0xFFU)};
}

struct TaskMemoryTraits {
  using Value = PWSTR;
  static Value Empty() { return nullptr; }
  static void Release(Value memory) { CoTaskMemFree(memory); }
};

// Empty when the system does not report it.
WideString ProgramDataFolder() {
  PWSTR path = nullptr;
  const HRESULT status = SHGetKnownFolderPath(FOLDERID_ProgramData, 0, nullptr, &path);
  const UniqueResource<TaskMemoryTraits> owner(path);
  return status == S_OK && path != nullptr ? WideString(path) : WideString();
}

// Empty when the system does not report it.
WideString CurrentUser() {
  std::array<WCHAR, 257> name{};
  auto size = static_cast<DWORD>(name.size());
  return GetUserNameW(name.data(), &size) == FALSE ? WideString() : WideString(name.data());
}

}  // namespace

bool IsHighContrastOn() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  if (SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) == FALSE) return false;
  return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

QList<QColor> SystemColors() {
  QList<QColor> colors;
  for (int index = 0; index <= kLastColor; ++index) {
    if (index != kUnusedColor) colors.append(ColorOf(index));
  }
  return colors;
}

HighContrastColors ColorsForHighContrast(const QList<QColor>& colors) {
  // Below the unused index, an entry's place in the list is its system index.
  const auto name = [&colors](int index) { return colors.value(index).name(); };
  return {.windowText = name(COLOR_WINDOWTEXT),
          .highlight = name(COLOR_HIGHLIGHT),
          .highlightText = name(COLOR_HIGHLIGHTTEXT),
          .buttonFace = name(COLOR_BTNFACE),
          .buttonText = name(COLOR_BTNTEXT),
          .grayText = name(COLOR_GRAYTEXT),
          .infoText = name(COLOR_INFOTEXT),
          .background = name(COLOR_BACKGROUND)};
}

void SendKey(WORD virtualKey, DWORD flags) {
  INPUT input{};
  static_assert(sizeof(input) == 40);
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = virtualKey;
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof(input));
}

void BringForward(const QWidget& window) {
  SetForegroundWindow(std::bit_cast<HWND>(window.winId()));
}

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
