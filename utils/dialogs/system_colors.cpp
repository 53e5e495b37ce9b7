#include "utils/dialogs/system_colors.h"

#include <windows.h>

namespace orvik::utils {

namespace {

constexpr int kLastColor = 30;
constexpr int kNoColor = 25;

QColor ColorOf(int index) {
  const DWORD color = GetSysColor(index);
  return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8 & 0xFFU),
          static_cast<int>(color >> 16 & 0xFFU)};
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
    if (index != kNoColor) colors.append(ColorOf(index));
  }
  return colors;
}

HighContrastColors ColorsForHighContrast(const QList<QColor>& colors) {
  // All of these indices lie below the gap, so that each is its own place in the list.
  const auto name = [&colors](int index) { return colors.value(index).name(); };
  return {.windowText = name(8),
          .highlight = name(13),
          .highlightText = name(14),
          .buttonFace = name(15),
          .buttonText = name(18),
          .grayText = name(17),
          .infoText = name(23),
          .background = name(1)};
}

}  // namespace orvik::utils
