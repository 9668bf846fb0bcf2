#pragma once

#include <QPoint>

#include "runtime/screen/user_input.h"

class QWidget;

namespace korvantes::scripts {

// Key and mouse events as the window system sends them: to the window, which passes them on to its
// focus widget or to the widget at the position.

void sendPress(QWidget& window, const screen::Key& key);
void sendRelease(QWidget& window, const screen::Key& key);

enum class Clicks { Single, Double };
/// Clicks with the left button at a position in a widget.
void sendClick(QWidget& widget, const QPoint& place, Clicks clicks = Clicks::Single);
/// Whether the position is not covered by another widget.
bool canBeHit(QWidget& widget, const QPoint& place);

}  // namespace korvantes::scripts
