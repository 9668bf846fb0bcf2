#pragma once

#include <QString>
#include <QtCore/qnamespace.h>

#include "runtime/screen/user_input.h"

class QKeyEvent;

namespace korvantes::desktop {

/// The key of an event, as the model knows keys.
screen::Key keyOf(const QKeyEvent& event);

/// The other way round: what Qt says of that key.
struct QtKey {
  int key = 0;
  Qt::KeyboardModifiers modifiers;
  QString text;
};
QtKey qtKeyOf(const screen::Key& key);

/// Tells presses of different keys apart, and knows the release of each again although Shift or
/// the layout changed meanwhile.
quint64 pressIdentity(const QKeyEvent& event);

bool isEnter(const QKeyEvent& event);

}  // namespace korvantes::desktop
