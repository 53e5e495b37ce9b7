#pragma once

// User input to windows, and waiting for its effect, without Qt's own test library.

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace orvik::testing {

/// Runs the event loop until `condition` holds or the time is up. Returns whether it holds.
template <typename Condition>
bool WaitFor(Condition condition, int milliseconds) {
  QElapsedTimer time;
  time.start();
  while (!condition() && time.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  return condition();
}

inline void PressKey(QWidget* widget, Qt::Key key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
  QApplication::sendEvent(widget, &release);
}

/// Sends a mouse event at an offset of `by` from the middle of `widget`.
inline void MouseEvent(QWidget* widget, QEvent::Type type, QPoint by = {}) {
  const QPoint local = widget->rect().center() + by;
  const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, local, widget->mapToGlobal(local), Qt::LeftButton, buttons, Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
}

}  // namespace orvik::testing
