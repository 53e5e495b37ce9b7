#include <QFile>

#include <skinkit.h>

// Never destroyed: a caller may hold it until the process ends.
StyleManager* StyleManager::instance() {
  static auto* const manager = new StyleManager;
  return manager;
}

StyleManager::StyleManager() {
  QFile file(QStringLiteral(":/skinkit/dialog.qss"));
  if (file.open(QIODevice::ReadOnly)) styleSheet_ = QString::fromUtf8(file.readAll());
}

QString StyleManager::Stylesheet() const {
  return styleSheet_;
}
