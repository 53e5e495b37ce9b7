#pragma once

#include <QAccessibleInterface>
#include <QColor>
#include <QDialog>
#include <QList>
#include <QString>

#include "utils/dialogs/high_contrast_event_filter.h"

namespace orvik::utils::accessibility {

/// A dialog in the host's style that follows the system into high contrast and back. GUI thread only.
class AccessibleDialogBase : public QDialog {
  Q_OBJECT

 public:
  explicit AccessibleDialogBase(QWidget* parent);
  AccessibleDialogBase(const AccessibleDialogBase&) = delete;
  AccessibleDialogBase& operator=(const AccessibleDialogBase&) = delete;
  ~AccessibleDialogBase() override;

  /// The process's only accessibility object, created for the first dialog this is called on and owned by the
  /// library: not to be registered or deleted. Its `isValid` is false once that dialog is destroyed.
  virtual QAccessibleInterface* AccessibleObject();

 protected Q_SLOTS:
  /// Reapplies the style after a short delay, because the system changes its colours one by one.
  void OnThemeChanged();

 private:
  void ReapplyStyle();
  void ApplyHighContrast();

  event_filters::HighContrastEventFilter* filter_;
  QList<QColor> systemColors_;
  QString normalStyleSheet_;
};

}  // namespace orvik::utils::accessibility
