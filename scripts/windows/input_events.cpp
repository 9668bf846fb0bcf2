#include "scripts/windows/input_events.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include "desktop/keys.h"

namespace korvantes::scripts {

namespace {

void sendKey(QWidget& window, QEvent::Type type, const screen::Key& key) {
  QWindow* const handle = window.windowHandle();
  if (handle == nullptr) return;
  const desktop::QtKey qtKey = desktop::qtKeyOf(key);
  QKeyEvent event(type, qtKey.key, qtKey.modifiers, qtKey.text);
  QCoreApplication::sendEvent(handle, &event);
}

void sendMouse(QPointer<QWindow> window, QEvent::Type type, const QPoint& place) {
  if (window.isNull()) return;
  const bool release = type == QEvent::MouseButtonRelease;
  QMouseEvent event(type, place, window->mapToGlobal(place), Qt::LeftButton,
                    release ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window.data(), &event);
}

}  // namespace

void sendPress(QWidget& window, const screen::Key& key) {
  sendKey(window, QEvent::KeyPress, key);
}

void sendRelease(QWidget& window, const screen::Key& key) {
  sendKey(window, QEvent::KeyRelease, key);
}

void sendClick(QWidget& widget, const QPoint& place, Clicks clicks) {
  const QPointer<QWindow> window = widget.window()->windowHandle();
  const QPoint inWindow = widget.mapTo(widget.window(), place);
  sendMouse(window, QEvent::MouseButtonPress, inWindow);
  sendMouse(window, QEvent::MouseButtonRelease, inWindow);
  if (clicks == Clicks::Single) return;
  sendMouse(window, QEvent::MouseButtonDblClick, inWindow);
  sendMouse(window, QEvent::MouseButtonRelease, inWindow);
}

bool canBeHit(QWidget& widget, const QPoint& place) {
  if (!widget.isVisible() || !widget.rect().contains(place)) return false;
  const QWidget* hit = widget.window()->childAt(widget.mapTo(widget.window(), place));
  return hit == &widget || widget.isAncestorOf(hit);
}

}  // namespace korvantes::scripts
