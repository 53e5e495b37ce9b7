#pragma once

// The host's style library: the look of its windows.

#include <QString>

#include <skinkit_export.h>

/// The one style of the process. GUI thread only.
class StyleManager {
 public:
  StyleManager(const StyleManager&) = delete;
  StyleManager& operator=(const StyleManager&) = delete;

  /// Owned by the library.
  SKINKIT_EXPORT static StyleManager* instance();

  /// A style sheet for dialogs; its icons are resources of this library.
  SKINKIT_EXPORT QString Stylesheet() const;

 private:
  StyleManager();
  ~StyleManager() = default;

  QString styleSheet_;
};
