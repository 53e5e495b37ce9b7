#include <QByteArray>
#include <QtGlobal>

#include "host/display/display.h"

namespace orvik::host {

void ChooseDisplay() {
  LeaveScalingToDialogs();
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
  const bool display = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  // A display that has gone must not take the program along: the last one of the list always works.
  qputenv("QT_QPA_PLATFORM", QByteArray(display ? "wayland;xcb;offscreen" : "offscreen"));
}

}  // namespace orvik::host
