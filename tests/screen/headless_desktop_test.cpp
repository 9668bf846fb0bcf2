#include "runtime/screen/headless_desktop.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "tests/screen/sample_form.h"

namespace korvantes::screen {
namespace {

TEST(HeadlessDesktop, KeepsTheReleaseFromTheFormBelowWhenThePressOpenedOrClosedAWindow) {
  Stage stage;
  SampleForm below, above;
  below.button.Click = [&] {
    stage.whileShown = [&](Form& top) {
      EXPECT_EQ(&top, &above);
      EXPECT_EQ(stage.forms().size(), 2U);
      stage.user().moveFocus(above.button);
      above.log.clear();
      stage.press("Enter");
    };
    above.button.Click = [&] { above.Unload(); };
    above.Show();
  };
  std::vector<const Form*> closed;
  stage.onClosed = [&](const Form& form) { closed.push_back(&form); };
  stage.play(below, [&] {
    stage.user().moveFocus(below.button);
    below.log.clear();
    stage.press("Enter");
    EXPECT_EQ(above.log, (Log{"Form_Unload"}));
    EXPECT_EQ(below.log, Log{});
  });
  EXPECT_EQ(closed, (std::vector<const Form*>{&above, &below}));
  EXPECT_THROW(stage.user(), std::logic_error);
}

TEST(HeadlessDesktop, LeavesKeysNotTakenToTheFormBelow) {
  Stage stage;
  SampleForm below, above;
  below.button.Click = [&] {
    stage.whileShown = [&](Form&) {
      stage.sendKeys("x");
      above.Unload();
      stage.settle();
    };
    above.Show();
    below.second.SetFocus();
  };
  stage.play(below, [&] {
    stage.user().click(below.button);
    stage.settle();
    EXPECT_EQ(below.second.Text(), "x");
    EXPECT_EQ(above.first.Text(), "");
  });
}

TEST(HeadlessDesktop, TakesDefaultsWhereNobodyAnswers) {
  HeadlessDesktop desktop;
  Desktop* const before = Desktop::makeCurrent(&desktop);
  EXPECT_EQ(MsgBox("¿Seguro?", style::YesNo), Answer::Yes);
  EXPECT_EQ(MsgBox("¿Seguro?", style::YesNo + style::DefaultSecond), Answer::No);
  EXPECT_EQ(MsgBox("Hecho", style::Information), Answer::Ok);
  EXPECT_FALSE(desktop.chooseFromList({}));
  EXPECT_FALSE(desktop.chooseFile({}));
  desktop.onList = [](const ListDialog&) {
    return HeadlessDesktop::Reply<std::optional<std::size_t>>{2};
  };
  ListDialog dialog;
  dialog.rows.resize(2);
  EXPECT_THROW(desktop.chooseFromList(dialog), std::out_of_range);
  Desktop::makeCurrent(nullptr);
  EXPECT_THROW(MsgBox("x"), std::logic_error);
  Desktop::makeCurrent(before);
}

}  // namespace
}  // namespace korvantes::screen
