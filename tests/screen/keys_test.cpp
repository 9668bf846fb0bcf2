#include <gtest/gtest.h>

#include "tests/screen/sample_form.h"

namespace korvantes::screen {
namespace {

using Keys = OnStage;

TEST(KeyNames, AreThoseThatScriptsUse) {
  using namespace key;
  const struct {
    const char* name;
    int code, shift;
    char32_t character;
  } cases[] = {{"Enter", Enter, 0, 0},
               {"Tab", Tab, 0, 0},
               {"Mayús+Tab", Tab, ShiftBit, 0},
               {"ESC", Escape, 0, 0},
               {"F12", 123, 0, 0},
               {"Espacio", 32, 0, U' '},
               {"AvPág", 34, 0, 0},
               {"Alt+b", 'B', AltBit, 0},
               {"Control+Mayús+Fin", 35, ControlBit | ShiftBit, 0},
               {"a", 'A', 0, U'a'},
               {"A", 'A', ShiftBit, U'A'},
               {"ñ", 0xD1, 0, U'ñ'},
               {",", Comma, 0, U','},
               {"+", Packet, 0, U'+'},
               {"Control++", Packet, ControlBit, 0}};
  for (const auto& c : cases) {
    const auto named = keyNamed(c.name);
    ASSERT_TRUE(named) << c.name;
    EXPECT_EQ(named->code, c.code) << c.name;
    EXPECT_EQ(named->shift, c.shift) << c.name;
    EXPECT_EQ(named->character, c.character) << c.name;
  }
  for (const char* name : {"", "F0", "F13", "F1x", "Entrar", "Foo+A", "Alt+", "ab"})
    EXPECT_FALSE(keyNamed(name)) << name;
}

TEST_F(Keys, PressButtonsAndBoxes) {
  stage.play(form, [&] {
    stage.user().moveFocus(form.button);
    form.taken();
    stage.press("Enter");
    EXPECT_EQ(form.taken(), (Log{"cmdGrabar Click", "Form_KeyUp 13"}));
    stage.press("Espacio");
    EXPECT_EQ(form.taken(), (Log{"Form_KeyUp 32", "cmdGrabar Click"}));
    // A release alone clicks nothing, nor does one that the form used up.
    stage.user().keyUp(*keyNamed("Espacio"));
    form.keyUp = [](int& code) { code = 0; };
    stage.press("Espacio");
    EXPECT_EQ(form.taken(), (Log{"Form_KeyUp 32", "Form_KeyUp 32"}));
    form.keyUp = nullptr;
    stage.user().moveFocus(form.check);
    stage.press("Espacio");
    EXPECT_EQ(form.check.Value(), 1);
    stage.press("Enter");
    EXPECT_EQ(form.check.Value(), 1);
  });
}

TEST_F(Keys, WithAltReachTheControlWhoseCaptionCarriesThem) {
  Label label(form, "Label1");
  label.Caption = "Se&gundo";
  label.TabIndex = 1;
  form.second.TabIndex = 1;
  form.button.Caption = "&Búsqueda && más";
  form.check.Caption = "Ú&nico";
  stage.play(form, [&] {
    stage.press("Alt+G");
    EXPECT_EQ(form.ActiveControl(), &form.check);  // behind the label
    stage.press("Alt+N");
    EXPECT_EQ(form.check.Value(), 1);
    form.taken();
    stage.press("Alt+b");
    EXPECT_EQ(form.log.at(2), "cmdGrabar Click");
    form.button.Enabled = false;
    EXPECT_FALSE(stage.user().accessKey(U'b'));
    stage.press("Alt+F4");
    EXPECT_FALSE(form.loaded());
  });
  EXPECT_EQ(captionWithoutMark(form.button.Caption()), "Búsqueda & más");
}

TEST_F(Keys, MoveThroughEntriesAndGroups) {
  Frame frame(form, "Frame1");
  ControlArray<OptionButton> options(form, "Option1");
  for (const int index : {0, 1, 5}) options.add(index).container(index == 5 ? nullptr : &frame);
  for (const char* entry : {"Alemania", "España", "Estonia"}) form.combo.AddItem(entry);
  stage.play(form, [&] {
    options(5).Value = true;
    stage.user().click(options(0));
    stage.press("Abajo");
    EXPECT_EQ(form.ActiveControl(), &options(1));
    EXPECT_TRUE(options(1).Value());
    EXPECT_FALSE(options(0).Value());
    stage.press("Derecha");
    EXPECT_TRUE(options(0).Value());
    EXPECT_TRUE(options(5).Value());  // a group of its own
    stage.user().moveFocus(form.combo);
    form.taken();
    stage.press("Fin");
    stage.type("e");  // from the top again
    EXPECT_EQ(form.combo.Text(), "España");
    stage.press("Arriba");
    stage.press("Arriba");
    EXPECT_EQ(form.combo.ListIndex(), 0);
    EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "cboPais Click"), 3);
  });
}

}  // namespace
}  // namespace korvantes::screen
