#include "utils/dialogs/accessible_dialog_base.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QTimer>

#include <windows.h>

#include <skinkit.h>

#include "utils/dialogs/high_contrast_style.h"
#include "utils/dialogs/icon_recoloring.h"
#include "utils/dialogs/windows_desktop.h"

namespace orvik::utils::event_filters {

bool HighContrastEventFilter::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
  if (eventType != "windows_generic_MSG" || message == nullptr) return false;
  if (static_cast<const MSG*>(message)->message != WM_THEMECHANGED) return false;
  Q_EMIT ThemeChanged();
  return true;
}

}  // namespace orvik::utils::event_filters

namespace orvik::utils::accessibility {

namespace {

constexpr int kThemeDelayMilliseconds = 100;

// Qt's own class can't be destroyed from outside; this one is, when the library is unloaded.
class ProcessAccessible final : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;
};

// With slashes, because a backslash is an escape character in a style sheet.
QString IconFolder() {
  return QString::fromStdString(FolderPath(FolderKind::Temporary)).replace(u'\\', u'/');
}

}  // namespace

AccessibleDialogBase::AccessibleDialogBase(QWidget* parent)
    : QDialog(parent, {}), filter_(new event_filters::HighContrastEventFilter(this)), systemColors_(SystemColors()) {
  QCoreApplication::instance()->installNativeEventFilter(filter_);
  connect(filter_, &event_filters::HighContrastEventFilter::ThemeChanged, this,
          &AccessibleDialogBase::OnThemeChanged);
  setAttribute(Qt::WA_TranslucentBackground);
  normalStyleSheet_ = StyleManager::instance()->Stylesheet();
  setStyleSheet(normalStyleSheet_);
  if (IsHighContrastOn()) ApplyHighContrast();
}

// Deleting the filter removes it from the application.
AccessibleDialogBase::~AccessibleDialogBase() {
  delete filter_;
}

QAccessibleInterface* AccessibleDialogBase::AccessibleObject() {
  static ProcessAccessible object(this, QAccessible::Client, QString());
  return &object;
}

void AccessibleDialogBase::OnThemeChanged() {
  // A child, not QTimer::singleShot: that keeps code of this library when the dialog is closed before the timeout.
  auto* const delay = new QTimer(this);
  delay->setSingleShot(true);
  connect(delay, &QTimer::timeout, this, [this, delay] {
    delay->deleteLater();
    ReapplyStyle();
  });
  delay->start(kThemeDelayMilliseconds);
}

void AccessibleDialogBase::ReapplyStyle() {
  if (IsHighContrastOn()) {
    ApplyHighContrast();
  } else {
    setStyleSheet(normalStyleSheet_);
  }
}

void AccessibleDialogBase::ApplyHighContrast() {
  systemColors_ = SystemColors();
  const HighContrastColors colors = ColorsForHighContrast(systemColors_);
  const QString folder = IconFolder();
  setStyleSheet(HighContrastStyleSheet(normalStyleSheet_, colors, [&](const QString& value, const QString& path) {
    return RecoloredIcon(value, path, colors.windowText, folder, *this);
  }));
}

}  // namespace orvik::utils::accessibility
