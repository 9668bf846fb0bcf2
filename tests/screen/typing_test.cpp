#include <sstream>
#include <tuple>

#include "runtime/ado/utf8.h"
#include "tests/screen/on_stage.h"

namespace korvantes::screen {
namespace {

class Typing : public OnStage {
 protected:
  /// Plays strokes ("a", "Inicio", "Mayús+Derecha" …, blanks between) on a box that holds a text,
  /// and gives the text with the caret as | and the selection as [].
  std::string after(const std::string& text, const std::string& strokes) {
    box.Text = text;
    user.moveFocus(form.save);
    user.moveFocus(box);
    std::istringstream keys(strokes);
    for (std::string key; keys >> key;) press(key);
    std::u32string seen = ado::toCodePoints(box.Text());
    const auto start = static_cast<std::size_t>(box.SelStart());
    const auto length = static_cast<std::size_t>(box.SelLength());
    if (length > 0) seen.insert(start + length, U"]");
    return ado::toUtf8(seen.insert(start, length > 0 ? U"[" : U"|"));
  }
  TextBox& box = form.text(0);
};

TEST_F(Typing, EditsAtTheCaretAsATextFieldDoes) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"ab", "C € Ü ; , + Decimal", "abC€Ü;,+|"},
      {"ab", "Izquierda ñ", "añ|b"},
      {"añb", "Izquierda Retroceso", "a|b"},
      {"añb", "Inicio Derecha Supr", "a|b"},
      {"ab", "Inicio Retroceso Izquierda", "|ab"},
      {"ab", "Supr Derecha", "ab|"},
      {"abcd", "Mayús+Inicio Mayús+Derecha", "a[bcd]"},
      {"abcd", "Inicio Mayús+Derecha Mayús+Derecha Mayús+Izquierda", "[a]bcd"},
      {"abcd", "Inicio Mayús+Fin x", "x|"},
      {"abcd", "Mayús+Izquierda Retroceso", "abc|"},
      {"abcd", "Mayús+Inicio Derecha", "abcd|"},
      {"abcd", "Mayús+Inicio Izquierda", "|abcd"},
      {"ab", "Control+X Alt+Z Escape Enter", "ab|"}};
  play([&] {
    for (const auto& [text, strokes, result] : cases)
      EXPECT_EQ(after(text, strokes), result) << strokes;
    // The limit is one of characters, and of the user alone.
    box.MaxLength = 3;
    EXPECT_EQ(after("ñá", "ü x"), "ñáü|");
    EXPECT_EQ(after("ñáü", "Mayús+Izquierda x"), "ñáx|");
    EXPECT_EQ(after("demasiado", "x"), "demasiado|");
    box.Locked = true;
    EXPECT_EQ(after("ab", "x Retroceso Inicio Supr"), "|ab");
    EXPECT_FALSE(user.clearText() || user.paste("x"));
  });
  EXPECT_EQ(box.Text(), "ab");
}

TEST_F(Typing, PassesTheKeyFilterAndTellsOfTheChange) {
  play([&] {
    box.KeyPress = [](int& code) {
      if (code == 'x' || code == key::Back) code = 0;
      if (code == '.') code = ',';
      if (code == '#') code = -5;
    };
    EXPECT_EQ(after("1", "x . # Retroceso 5"), "1,5|");
    EXPECT_EQ(after("1", "Supr Inicio Supr"), "|");
    int caret = -1;
    box.Change = [&] {
      caret = box.SelStart();
      if (box.Text() == "yab") box.Text = "otro";  // puts the caret at its end
    };
    EXPECT_EQ(after("ab", "Inicio z"), "z|ab");
    EXPECT_EQ(caret, 1) << "after the insertion";
    EXPECT_EQ(after("ab", "Inicio y"), "otro|");
    user.moveFocus(form.openList);
    user.selectEntry(form.openList, 0);
    EXPECT_EQ(pressing("Retroceso"), "open = Alemani, form up 8, open up 8");
    EXPECT_EQ(form.openList.ListIndex(), -1);
  });
}

TEST_F(Typing, PasteGoesThroughTheFilterWithOneChange) {
  box.KeyPress = [&](int& code) {
    const bool separated = box.Text().find(',') != std::string::npos;
    if (code == '\'' || (code == ',' && separated)) code = 0;
  };
  play([&] {
    box.Text = "7";
    form.taken();
    EXPECT_TRUE(user.paste("1,2,'\r\n3\x01") && user.paste("''"));
    EXPECT_EQ(form.taken(), "t(0) = 71,2 3");
    box.MaxLength = 8;
    user.paste("456");
    EXPECT_EQ(box.Text(), "71,2 345");
    EXPECT_TRUE(user.clearText() && box.Text().empty());
    user.moveFocus(form.save);
    EXPECT_FALSE(user.paste("x") || user.clearText());
  });
}

}  // namespace
}  // namespace korvantes::screen
