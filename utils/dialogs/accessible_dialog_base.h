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

  /// What assistive programs ask for: one object of the process, made for the first dialog that is asked and not
  /// valid any more when that has gone.
  virtual QAccessibleInterface* AccessibleObject();

 protected Q_SLOTS:
  /// Applies the style that the system wants, a moment later, because its colours change one after the other.
  void OnThemeChanged();

 private:
  void ReapplyStyle();
  void ApplyHighContrast();

  event_filters::HighContrastEventFilter* filter_;
  QList<QColor> systemColors_;
  QString normalStyleSheet_;
};

}  // namespace orvik::utils::accessibility
