#include "desktop/keys.h"

#include <QKeyEvent>
#include <array>

#include "desktop/look.h"

namespace korvantes::desktop {

namespace {

struct Pair {
  int qtKey;
  int code;
};

constexpr std::array kKeys{
    Pair{Qt::Key_Backspace, screen::key::Back},
    Pair{Qt::Key_Tab, screen::key::Tab},
    Pair{Qt::Key_Backtab, screen::key::Tab},
    Pair{Qt::Key_Return, screen::key::Enter},
    Pair{Qt::Key_Enter, screen::key::Enter},
    Pair{Qt::Key_Shift, screen::key::Shift},
    Pair{Qt::Key_Control, screen::key::Control},
    Pair{Qt::Key_Alt, screen::key::Alt},
    Pair{Qt::Key_AltGr, screen::key::Alt},
    Pair{Qt::Key_Escape, screen::key::Escape},
    Pair{Qt::Key_Space, screen::key::Space},
    Pair{Qt::Key_PageUp, screen::key::PageUp},
    Pair{Qt::Key_PageDown, screen::key::PageDown},
    Pair{Qt::Key_End, screen::key::End},
    Pair{Qt::Key_Home, screen::key::Home},
    Pair{Qt::Key_Left, screen::key::Left},
    Pair{Qt::Key_Up, screen::key::Up},
    Pair{Qt::Key_Right, screen::key::Right},
    Pair{Qt::Key_Down, screen::key::Down},
    Pair{Qt::Key_Insert, screen::key::Insert},
    Pair{Qt::Key_Delete, screen::key::Delete},
};

int shiftStateOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? screen::key::ShiftBit : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? screen::key::ControlBit : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? screen::key::AltBit : 0);
}

bool isFunctionKey(int key, int first, int last) {
  return key >= first && key <= last;
}

/// The character that the event types; 0 if none.
char32_t characterOf(const QKeyEvent& event) {
  const QList<uint> characters = event.text().toUcs4();
  if (characters.size() != 1 || characters[0] < U' ' || characters[0] == 127) return 0;
  // With Alt or Control alone a key is a command. AltGr may come as both.
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  return alt != control ? 0 : characters[0];
}

int codeOf(const QKeyEvent& event, char32_t character) {
  const int key = event.key();
  const bool decimal = key == Qt::Key_Period || key == Qt::Key_Comma;
  if (decimal && event.modifiers().testFlag(Qt::KeypadModifier)) return screen::key::KeypadDecimal;
  for (const Pair& pair : kKeys)
    if (pair.qtKey == key) return pair.code;
  if (isFunctionKey(key, Qt::Key_F1, Qt::Key_F12)) return screen::key::F1 + key - Qt::Key_F1;
  if (character != 0) return screen::keyTyping(character).code;
  // Qt's keys of letters and digits are their upper-case characters.
  return key > 0 && key < 0x100 ? screen::keyTyping(static_cast<char32_t>(key)).code : 0;
}

}  // namespace

screen::Key keyOf(const QKeyEvent& event) {
  const char32_t character = characterOf(event);
  return {codeOf(event, character), shiftStateOf(event.modifiers()), character};
}

QtKey qtKeyOf(const screen::Key& key) {
  QtKey made;
  made.modifiers.setFlag(Qt::ShiftModifier, (key.shift & screen::key::ShiftBit) != 0);
  made.modifiers.setFlag(Qt::ControlModifier, (key.shift & screen::key::ControlBit) != 0);
  made.modifiers.setFlag(Qt::AltModifier, (key.shift & screen::key::AltBit) != 0);
  if (key.character != 0) made.text = QString::fromUcs4(&key.character, 1);

  if (key.code == screen::key::KeypadDecimal) {
    made.key = Qt::Key_Period;
    made.modifiers |= Qt::KeypadModifier;
  } else if (key.code == screen::key::Tab && (key.shift & screen::key::ShiftBit) != 0) {
    made.key = Qt::Key_Backtab;
  } else if (isFunctionKey(key.code, screen::key::F1, screen::key::F12)) {
    made.key = Qt::Key_F1 + key.code - screen::key::F1;
  } else if (key.code == screen::key::Packet || key.code == screen::key::Comma) {
    made.key = static_cast<int>(key.character);
  } else {
    made.key = key.code;
    for (const Pair& pair : kKeys) {
      if (pair.code != key.code) continue;
      made.key = pair.qtKey;
      break;
    }
  }
  if (made.key == Qt::Key_Return) made.text = "\r";
  if (made.key == Qt::Key_Tab) made.text = "\t";
  return made;
}

quint64 pressIdentity(const QKeyEvent& event) {
  if (event.nativeScanCode() != 0) return event.nativeScanCode();
  constexpr quint64 kWithoutScanCode = 1ULL << 32U;
  const int key = event.key() == Qt::Key_Backtab ? int{Qt::Key_Tab} : event.key();
  return kWithoutScanCode | static_cast<quint32>(key);
}

bool isEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace korvantes::desktop
