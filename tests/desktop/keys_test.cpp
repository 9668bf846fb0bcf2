#include "desktop/keys.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

#include "scripts/key_names.h"

namespace korvantes::desktop {

TEST(Keys, ComeBackFromTheToolkitAsTheyWent) {
  std::vector<screen::Key> keys;
  for (const char* name : {"Enter", "Tab", "Mayús+Tab", "Escape", "Retroceso", "Supr", "Espacio",
                           "F1", "F12", "Alt+F4", "Alt+B", "Ctrl+A", "Izquierda", "Mayús+Fin",
                           "Inicio", "AvPág", "RePág", "Decimal"})
    keys.push_back(scripts::keyNamed(name).value());
  for (const char32_t character : U"aZ0ñÑáÇ,.;/-€ºü\U0001F600")
    if (character != 0) keys.push_back(screen::keyTyping(character));
  for (const screen::Key& key : keys) {
    const QtKey sent = qtKeyOf(key);
    const screen::Key back =
        keyOf(QKeyEvent(QEvent::KeyPress, sent.key, sent.modifiers, sent.text));
    EXPECT_EQ(back.code, key.code);
    EXPECT_EQ(back.shift, key.shift) << key.code;
    EXPECT_EQ(back.character, key.character) << key.code;
  }
}

TEST(Keys, OfOtherKeyboardsTypeTheirCharacter) {
  struct Case {
    QKeyEvent event;
    int code;
    char32_t character;
  };
  const auto alt = Qt::AltModifier, control = Qt::ControlModifier;
  const Case cases[] = {
      {{QEvent::KeyPress, Qt::Key_At, alt | control, "@"}, screen::key::Packet, U'@'},  // AltGr
      {{QEvent::KeyPress, Qt::Key_V, control, "\x16"}, 'V', 0},
      {{QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, "\r"}, screen::key::Enter, 0},
      {{QEvent::KeyPress, Qt::Key_Comma, Qt::KeypadModifier, ","},
       screen::key::KeypadDecimal,
       U','},
      {{QEvent::KeyPress, Qt::Key_5, Qt::KeypadModifier, "5"}, '5', U'5'},
      {{QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, "\x7f"}, screen::key::Delete, 0},
      {{QEvent::KeyPress, Qt::Key_VolumeUp, Qt::NoModifier}, 0, 0},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(keyOf(each.event).code, each.code);
    EXPECT_EQ(keyOf(each.event).character, each.character) << each.code;
  }
}

}  // namespace korvantes::desktop
