#include <gtest/gtest.h>

#include "runtime/ado/utf8.h"
#include "tests/screen/sample_form.h"

namespace korvantes::screen {
namespace {

class Typing : public OnStage {
 protected:
  /// Plays strokes ("a", "Inicio", "Mayús+Derecha" …, blanks between) on a box that holds a text,
  /// and gives the text with the caret as | and the selection as [].
  std::string after(const std::string& text, const std::string& strokes) {
    std::string seen;
    stage.play(form, [&] {
      form.first.Text = text;
      for (std::size_t at = 0; at < strokes.size();) {
        const auto end = std::min(strokes.find(' ', at), strokes.size());
        stage.press(strokes.substr(at, end - at));
        at = end + 1;
      }
      std::u32string shown = ado::toCodePoints(form.first.Text());
      const auto start = static_cast<std::size_t>(form.first.SelStart());
      const auto length = static_cast<std::size_t>(form.first.SelLength());
      if (length > 0) shown.insert(start + length, U"]");
      shown.insert(start, length > 0 ? U"[" : U"|");
      seen = ado::toUtf8(shown);
    });
    return seen;
  }
};

TEST_F(Typing, EditsAtTheCaretAsATextFieldDoes) {
  const struct {
    const char *text, *strokes, *result;
  } cases[] = {{"ab", "c", "abc|"},
               {"ab", "Izquierda ñ", "añ|b"},
               {"ab", "Inicio c", "c|ab"},
               {"añb", "Izquierda Retroceso", "a|b"},
               {"añb", "Inicio Derecha Supr", "a|b"},
               {"ab", "Inicio Retroceso Izquierda", "|ab"},
               {"ab", "Supr Derecha", "ab|"},
               {"abcd", "Mayús+Izquierda Mayús+Izquierda", "ab[cd]"},
               {"abcd", "Mayús+Inicio Mayús+Derecha", "a[bcd]"},
               {"abcd", "Inicio Mayús+Derecha Mayús+Derecha Mayús+Izquierda", "[a]bcd"},
               {"abcd", "Inicio Mayús+Fin x", "x|"},
               {"abcd", "Mayús+Izquierda Retroceso", "abc|"},
               {"abcd", "Mayús+Izquierda Supr", "abc|"},
               {"abcd", "Mayús+Inicio Derecha", "abcd|"},
               {"abcd", "Mayús+Inicio Izquierda", "|abcd"},
               {"abcd", "Control+A", "[abcd]"},
               {"ab", "Control+X Alt+Z Escape Enter", "ab|"}};
  for (const auto& c : cases) EXPECT_EQ(after(c.text, c.strokes), c.result) << c.strokes;
}

TEST_F(Typing, IsLimitedInCharactersButTheProgramIsNot) {
  form.first.MaxLength = 3;
  EXPECT_EQ(after("ñá", "ü x"), "ñáü|");
  EXPECT_EQ(after("ñáü", "Mayús+Izquierda x"), "ñáx|");
  EXPECT_EQ(after("demasiado", "x"), "demasiado|");
}

TEST_F(Typing, PassesTheKeyFilterWhichMayRefuseOrReplaceTheCharacter) {
  form.first.KeyPress = [](int& code) {
    if (code == 'x' || code == key::Back) code = 0;
    if (code == '.') code = ',';
    if (code == '#') code = -5;
  };
  EXPECT_EQ(after("1", "x . # Retroceso 5"), "1,5|");
  EXPECT_EQ(after("1", "Supr Inicio Supr"), "|");
}

TEST_F(Typing, LeavesReadOnlyBoxesAlone) {
  form.first.Locked = true;
  EXPECT_EQ(after("ab", "x Retroceso Inicio Supr"), "|ab");
  stage.play(form, [&] {
    EXPECT_FALSE(stage.user().clearText());
    EXPECT_FALSE(stage.user().paste("x"));
  });
  EXPECT_EQ(form.first.Text(), "ab");
}

TEST_F(Typing, ChangeSeesTheCaretBehindTheInsertion) {
  int caret = -1;
  form.first.Change = [&] { caret = form.first.SelStart(); };
  EXPECT_EQ(after("ab", "Inicio x"), "x|ab");
  EXPECT_EQ(caret, 1);
  // A handler that rewrites the text puts the caret at its end.
  form.first.Change = [&] {
    if (form.first.Text() == "yab") form.first.Text = "otro";
  };
  EXPECT_EQ(after("ab", "Inicio y"), "otro|");
}

TEST_F(Typing, PasteGoesThroughTheFilterWithOneChange) {
  form.first.KeyPress = [&](int& code) {
    if (code == '\'') code = 0;
    const bool separated = form.first.Text().find(',') != std::string::npos;
    if (code == ',' && separated) code = 0;
  };
  stage.play(form, [&] {
    form.first.Text = "7";
    form.taken();
    EXPECT_TRUE(stage.user().paste("1,2,'\r\n3\x01"));
    EXPECT_EQ(form.taken(), (Log{"Text1(0) Change 71,2 3"}));
    EXPECT_TRUE(stage.user().paste("''"));
    EXPECT_EQ(form.taken(), Log{});
    form.first.MaxLength = 8;
    stage.user().paste("456");
    EXPECT_EQ(form.first.Text(), "71,2 345");
    EXPECT_TRUE(stage.user().clearText());
    EXPECT_EQ(form.first.Text(), "");
    stage.user().moveFocus(form.button);
    EXPECT_FALSE(stage.user().paste("x"));
    EXPECT_FALSE(stage.user().clearText());
  });
}

TEST_F(Typing, FocusPutsTheCaretAtTheEnd) {
  stage.play(form, [&] {
    form.second.Text = "añb";
    form.second.SelStart = 0;
    form.second.SelLength = 9;
    EXPECT_EQ(form.second.SelLength(), 3);
    stage.press("Tab");
    stage.type("x");
  });
  EXPECT_EQ(form.second.Text(), "añbx");
}

}  // namespace
}  // namespace korvantes::screen
