#pragma once

#include <QAbstractNativeEventFilter>
#include <QAccessibleInterface>
#include <QByteArray>
#include <QColor>
#include <QDialog>
#include <QList>
#include <QObject>
#include <QString>

namespace orvik::utils::event_filters {

/// Watches the system's messages for theme changes while it is installed on the application. GUI thread only.
class HighContrastEventFilter : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// `message` is a MSG when `eventType` says so. True, which consumes the message, for a theme change.
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 Q_SIGNALS:
  void ThemeChanged();
};

}  // namespace orvik::utils::event_filters

namespace orvik::utils::accessibility {

/// A dialog in the host's style that follows the system into and out of high contrast. GUI thread only.
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
