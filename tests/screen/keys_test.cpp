#include "tests/screen/on_stage.h"

namespace korvantes::screen {
namespace {

using Keys = OnStage;
INSTANTIATE_TEST_SUITE_P(On, Keys, testing::Values(stageKind()), testing::PrintToStringParamName());

TEST_P(Keys, PressButtonsAndBoxes) {
  play([&] {
    user.moveFocus(form.save);
    form.taken();
    press("Enter");
    EXPECT_EQ(form.taken(), (Log{"save Click", "Form KeyUp 13", "save KeyUp 13"}));
    press("Espacio");
    EXPECT_EQ(form.taken(), (Log{"Form KeyUp 32", "save KeyUp 32", "save Click"}));
    // A release alone clicks nothing, nor does one that the form used up.
    form.keyUp = [](int& code) { code = 0; };
    UserInput(form).keyUp(keyTyping(U' '));
    press("Espacio");
    EXPECT_EQ(form.taken(), (Log{"Form KeyUp 32", "Form KeyUp 32"}));
    form.keyUp = nullptr;
    user.moveFocus(form.check);
    press("Espacio");
    press("Enter");
    EXPECT_EQ(form.check.Value(), 1);
  });
}

TEST_P(Keys, WithAltReachTheControlWhoseCaptionCarriesThem) {
  form.heading.Caption = "Ú&nico";
  form.heading.TabIndex = 1;
  form.save.Caption = "&Guardar && más";
  play([&] {
    press("Alt+N");
    EXPECT_EQ(form.ActiveControl(), &form.Text1(1));  // the field after the label
    press("Alt+B");
    EXPECT_EQ(form.check.Value(), 1);
    form.taken();
    press("Alt+g");
    EXPECT_EQ(form.taken().at(2), "save Click");
    user.moveFocus(form.check);
    form.save.Enabled = false;
    form.taken();
    press("Alt+G");
    EXPECT_EQ(form.taken().front(), "Form KeyUp 71/4");
    press("Alt+F4");
    EXPECT_FALSE(form.loaded());
  });
  EXPECT_EQ(captionWithoutMark(form.save.Caption()), "Guardar & más");
}

TEST_P(Keys, MoveThroughEntriesGroupsAndRows) {
  OptionButton other(form, "other");  // in a group of its own
  other.Value = true;
  play([&] {
    user.click(form.first);
    press("Abajo");
    EXPECT_EQ(form.ActiveControl(), &form.second);
    EXPECT_TRUE(form.second.Value() && !form.first.Value());
    press("Derecha");
    EXPECT_TRUE(form.first.Value() && other.Value());
    user.moveFocus(form.fixedList);
    form.taken();
    press("Fin");
    user.type("e");  // from the top again
    EXPECT_EQ(form.fixedList.Text(), "España");
    press("Arriba");
    press("Arriba");
    EXPECT_EQ(form.fixedList.ListIndex(), 0);
    EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "fixedList Click"), 3);
    user.moveFocus(form.list);
    press("Espacio");
    press("AvPág");
    press("Espacio");
    EXPECT_EQ(form.list.SelectedRow(), 10);
    EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "list ItemCheck F11 on"), 1);
    user.selectRow(form.grid, 12);
    press("Arriba");
    EXPECT_EQ(form.grid.DataSource().position(), 11U);
  });
}

TEST_P(Keys, ReachTheFormWhileNoControlCanHaveTheFocus) {
  play([&] {
    for (Control* control : form.controls()) control->Visible = false;
    press("Tab");
    form.taken();
    press("F1");
    EXPECT_EQ(form.ActiveControl(), nullptr);
    EXPECT_EQ(form.taken(), (Log{"Form KeyUp 112"}));
  });
}

}  // namespace
}  // namespace korvantes::screen
