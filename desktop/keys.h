#pragma once

#include <QString>
#include <QtCore/qnamespace.h>

#include "runtime/screen/user_input.h"

class QKeyEvent;

namespace korvantes::desktop {

/// The key of an event in the terms of the model.
screen::Key keyOf(const QKeyEvent& event);

/// The reverse: the key in the terms of Qt.
struct QtKey {
  int key = 0;
  Qt::KeyboardModifiers modifiers;
  QString text;
};
QtKey qtKeyOf(const screen::Key& key);

/// Identifies a key from its press to its release, even if Shift or the layout changes in between.
quint64 pressIdentity(const QKeyEvent& event);

bool isEnter(const QKeyEvent& event);

}  // namespace korvantes::desktop
