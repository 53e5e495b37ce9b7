#pragma once

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QObject>

namespace orvik::utils::event_filters {

/// Watches the system's messages for theme changes, once it is installed on the application. GUI thread only.
class HighContrastEventFilter : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// `message` is a MSG when `eventType` says so. A theme change ends here.
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 Q_SIGNALS:
  void ThemeChanged();
};

}  // namespace orvik::utils::event_filters
