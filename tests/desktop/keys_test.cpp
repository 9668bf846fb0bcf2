#include "desktop/keys.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

#include "scripts/key_names.h"

namespace korvantes::desktop {

TEST(KeysOfTheToolkit, ComeBackAsTheyWent) {
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
    EXPECT_EQ(std::tie(back.code, back.shift, back.character),
              std::tie(key.code, key.shift, key.character));
  }
}

TEST(KeysOfTheToolkit, OfOtherKeyboardsTypeTheirCharacter) {
  const auto altGr = Qt::AltModifier | Qt::ControlModifier;
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    int code;
    char32_t character;
  } cases[] = {{Qt::Key_At, altGr, "@", screen::key::Packet, U'@'},
               {Qt::Key_V, Qt::ControlModifier, "\x16", 'V', 0},
               {Qt::Key_Enter, Qt::KeypadModifier, "\r", screen::key::Enter, 0},
               {Qt::Key_Comma, Qt::KeypadModifier, ",", screen::key::KeypadDecimal, U','},
               {Qt::Key_5, Qt::KeypadModifier, "5", '5', U'5'},
               {Qt::Key_Delete, Qt::NoModifier, "\x7f", screen::key::Delete, 0},
               {Qt::Key_VolumeUp, Qt::NoModifier, "", 0, 0}};
  for (const auto& each : cases) {
    const auto key = keyOf(QKeyEvent(QEvent::KeyPress, each.key, each.modifiers, each.text));
    EXPECT_EQ(key.code, each.code);
    EXPECT_EQ(key.character, each.character) << each.code;
  }
}

}  // namespace korvantes::desktop
