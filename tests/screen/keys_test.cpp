#include "tests/screen/on_stage.h"

namespace korvantes::screen {
namespace {

using Keys = OnStage;

TEST_F(Keys, PressButtonsAndBoxes) {
  play([&] {
    user.moveFocus(form.save);
    EXPECT_EQ(pressing("Enter"), "save Click, form up 13, save up 13");
    EXPECT_EQ(pressing("Espacio"), "form up 32, save up 32, save Click");
    // A release alone clicks nothing, nor does one that the form used up.
    form.keyUp = [](int& code) { code = 0; };
    UserInput(form).keyUp(keyTyping(U' '));
    press("Espacio");
    EXPECT_EQ(form.taken(), "form up 32, form up 32");
    form.keyUp = nullptr;
    user.moveFocus(form.check);
    EXPECT_EQ(pressing("Espacio"), "form up 32, check up 32, check Click");
    EXPECT_EQ(pressing("Enter"), "form up 13, check up 13");
  });
}

TEST_F(Keys, WithAltReachTheControlWhoseCaptionCarriesThem) {
  form.heading.Caption = "Ú&nico";
  form.heading.TabIndex = 1;
  form.save.Caption = "&Guardar && más";
  EXPECT_EQ(captionWithoutMark(form.save.Caption()), "Guardar & más");
  play([&] {
    EXPECT_EQ(pressing("Alt+N"), "-t(0), +t(1), form up 78/4, t(1) up 78");  // after the label
    EXPECT_EQ(pressing("Alt+g"), "-t(1), +save, save Click, form up 71/4, save up 71");
    user.moveFocus(form.text(0));
    form.save.Enabled = false;
    EXPECT_EQ(pressing("Alt+G"), "form up 71/4, t(0) up 71");
    EXPECT_EQ(pressing("Alt+F4"), "form Unload");
  });
}

TEST_F(Keys, MoveThroughEntriesGroupsAndRows) {
  OptionButton other(form, "other");  // in a group of its own
  other.Value = true;
  play([&] {
    user.click(form.first);
    EXPECT_EQ(pressing("Abajo"), "-first, +second, second Click, form up 40, second up 40");
    press("Derecha");
    EXPECT_TRUE(form.first.Value() && !form.second.Value() && other.Value());
    user.moveFocus(form.fixedList);
    EXPECT_EQ(pressing("Fin"), "fixed Click, form up 35, fixed up 35");
    press("e");  // from the top again
    EXPECT_EQ(form.fixedList.Text(), "España");
    for (int i = 0; i < 2; ++i) press("Arriba");
    EXPECT_EQ(form.fixedList.ListIndex(), 0);
    user.moveFocus(form.list);
    press("AvPág");
    EXPECT_EQ(pressing("Espacio"), "list F11 on, form up 32, list up 32");
    user.selectRow(form.grid, 12);
    press("Arriba");
    EXPECT_EQ(form.grid.DataSource().position(), 11U);
    for (Control* control : form.controls()) control->Visible = false;
    press("Tab");
    EXPECT_EQ(pressing("F1"), "form up 112") << "no control can have the focus";
  });
}

}  // namespace
}  // namespace korvantes::screen
