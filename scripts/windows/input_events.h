#pragma once

#include <QPoint>

#include "runtime/screen/user_input.h"

class QWidget;

namespace korvantes::scripts {

/// Key and mouse events as the window system sends them: to the window, which hands them on to its
/// focus widget or to what lies under the place.

void sendPress(QWidget& window, const screen::Key& key);
void sendRelease(QWidget& window, const screen::Key& key);

enum class Clicks { Single, Double };
/// The left button at a place of a widget.
void sendClick(QWidget& widget, const QPoint& place, Clicks clicks = Clicks::Single);
/// The place is not covered by another widget.
bool canBeHit(QWidget& widget, const QPoint& place);

}  // namespace korvantes::scripts
