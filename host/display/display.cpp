#include "host/display/display.h"

#include <QGuiApplication>

namespace orvik::host {

bool HasDisplay() {
  const QString platform = QGuiApplication::platformName();
  return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

}  // namespace orvik::host
