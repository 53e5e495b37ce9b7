#include "utils/dialogs/foreground.h"

#include <bit>

namespace orvik::utils {

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

}  // namespace orvik::utils
