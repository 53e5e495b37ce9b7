#pragma once

// What a user does to a window, and waiting for it, without Qt's own test library.

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace orvik::testing {

/// Runs the event loop until `condition` holds, at most this long. False when it does not hold.
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

/// A mouse event over the middle of `widget`, `by` away from there on the screen.
inline void MouseEvent(QWidget* widget, QEvent::Type type, QPoint by = {}) {
  const QPoint local = widget->rect().center() + by;
  const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, local, widget->mapToGlobal(local), Qt::LeftButton, buttons, Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
}

}  // namespace orvik::testing
