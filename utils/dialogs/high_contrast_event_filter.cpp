#include "utils/dialogs/high_contrast_event_filter.h"

#include <windows.h>

namespace orvik::utils::event_filters {

bool HighContrastEventFilter::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
  if (eventType != "windows_generic_MSG" || message == nullptr) return false;
  if (static_cast<const MSG*>(message)->message != WM_THEMECHANGED) return false;
  Q_EMIT ThemeChanged();
  return true;
}

}  // namespace orvik::utils::event_filters
