#include <gtest/gtest.h>
#include <stdexcept>

#include "tests/screen/sample_form.h"

namespace korvantes::screen {
namespace {

using EventOrder = OnStage;

TEST_F(EventOrder, OfShowingIsLoadThenTheFocusThatItAskedForOrTheFirstTabStop) {
  form.load = [&] { form.log.push_back("load"); };
  stage.whileShown = [&](Form&) { form.Unload(); };
  form.Show();
  EXPECT_EQ(form.taken(), (Log{"load", "Text1(0) GotFocus", "Form_Unload"}));
  form.load = [&] { form.second.SetFocus(); };
  form.Show();
  EXPECT_EQ(form.log, (Log{"Text1(1) GotFocus", "Form_Unload"}));
}

TEST_F(EventOrder, OfTypingIsKeyPressThenChangeThenKeyUpOfFormAndControl) {
  form.first.KeyUp = [&](int& code, int) {
    form.log.push_back("Text1(0) KeyUp " + std::to_string(code));
  };
  stage.play(form, [&] {
    stage.type("a");
    EXPECT_EQ(form.taken(), (Log{"Text1(0) KeyPress 97", "Text1(0) Change a", "Form_KeyUp 65",
                                 "Text1(0) KeyUp 65"}));
    form.keyUp = [](int& code) { code = 0; };
    stage.press("Enter");
    EXPECT_EQ(form.taken(), (Log{"Text1(0) KeyPress 13", "Form_KeyUp 13"}));
  });
}

TEST_F(EventOrder, OfClicksIsFocusThenChangeOfTheControlThenClick) {
  int valueInClick = -1;
  form.also(form.check.Click, [&] { valueInClick = form.check.Value(); });
  stage.play(form, [&] {
    stage.user().click(form.check);
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "Check1 GotFocus", "Check1 Click"}));
    EXPECT_EQ(valueInClick, 1);
    stage.user().click(form.button);
    EXPECT_EQ(form.taken(), (Log{"Check1 LostFocus", "cmdGrabar GotFocus", "cmdGrabar Click"}));
  });
}

TEST_F(EventOrder, FocusSentElsewhereInLostFocusDropsTheTargetAndItsClick) {
  form.also(form.first.LostFocus, [&] {
    MsgBox("no existe");
    form.first.SetFocus();
  });
  stage.play(form, [&] {
    EXPECT_FALSE(stage.user().click(form.button));
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "Text1(0) GotFocus"}));
    stage.press("Tab");
    // The message took the release of the Tab.
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "Text1(0) GotFocus"}));
    EXPECT_EQ(form.ActiveControl(), &form.first);
    form.also(form.first.LostFocus, [&] { form.check.SetFocus(); });
    EXPECT_FALSE(stage.user().moveFocus(form.second));
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "Check1 GotFocus"}));
  });
}

TEST_F(EventOrder, SetFocusInAHandlerWaitsForItsEndAndTheLastCallWins) {
  form.also(form.button.Click, [&] {
    form.first.SetFocus();
    form.combo.Enabled = false;
    form.combo.SetFocus();
    form.second.SetFocus();
    form.log.push_back("end");
  });
  stage.play(form, [&] {
    stage.user().moveFocus(form.button);
    form.taken();
    stage.press("Enter");
    EXPECT_EQ(form.taken(), (Log{"cmdGrabar Click", "end", "cmdGrabar LostFocus",
                                 "Text1(1) GotFocus", "Form_KeyUp 13"}));
  });
}

TEST_F(EventOrder, ControlThatBecameUnusablePassesTheFocusOn) {
  form.also(form.button.Click, [&] {
    form.button.Enabled = false;
    form.combo.Visible = false;
  });
  stage.play(form, [&] {
    stage.user().click(form.button);
    EXPECT_EQ(form.ActiveControl(), &form.list);
    EXPECT_EQ(form.log.at(form.log.size() - 2), "cmdGrabar LostFocus");
    EXPECT_FALSE(stage.user().click(form.button));
  });
}

TEST_F(EventOrder, HandlersThatThrowTheFocusToAndFroAreCutOff) {
  form.also(form.first.GotFocus, [&] { form.second.SetFocus(); });
  form.also(form.second.GotFocus, [&] { form.first.SetFocus(); });
  stage.play(form, [&] { EXPECT_TRUE(stage.user().click(form.check)); });
}

TEST_F(EventOrder, ExceptionOfAHandlerBecomesAMessageAndTheFormStaysUsable) {
  form.also(form.button.Click, [&] {
    form.second.SetFocus();
    throw std::runtime_error("no se pudo guardar");
  });
  form.also(form.second.Change, [] { throw std::runtime_error("cambio"); });
  int boxStyle = 0;
  const auto note = stage.onMessage;
  stage.onMessage = [&](const MessageBox& box) {
    boxStyle = box.style;
    return note(box);
  };
  stage.play(form, [&] {
    EXPECT_TRUE(stage.user().click(form.button));
    EXPECT_EQ(stage.messages, (Log{"Muestra | no se pudo guardar"}));
    EXPECT_EQ(boxStyle, style::Critical);
    EXPECT_EQ(form.ActiveControl(), &form.second);
    stage.type("xy");
    EXPECT_EQ(form.second.Text(), "xy");
    EXPECT_EQ(stage.messages.size(), 3U);
    EXPECT_THROW(form.second.Text = "z", std::runtime_error);  // the program's own assignment
  });
}

TEST_F(EventOrder, FormThatFailsOrIsUnloadedWhileLoadingIsNeverShown) {
  form.load = [] { throw std::runtime_error("sin conexión"); };
  EXPECT_THROW(form.Show(), std::runtime_error);
  EXPECT_FALSE(form.loaded());
  EXPECT_TRUE(stage.forms().empty());
  form.load = [&] { form.Unload(); };
  stage.whileShown = [](Form&) { FAIL(); };
  form.Show();
  EXPECT_EQ(form.log, (Log{"Form_Unload"}));
}

TEST_F(EventOrder, FormUnloadedInItsHandlerTakesNoFurtherEvents) {
  form.also(form.first.LostFocus, [&] {
    form.Unload();
    form.Unload();
  });
  stage.play(form, [&] {
    UserInput user = stage.user();
    EXPECT_FALSE(user.click(form.button));
    user.keyDown(keyTyping('a'));
    user.keyUp(keyTyping('a'));
    EXPECT_FALSE(user.moveFocus(form.second));
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "Form_Unload"}));
  });
  EXPECT_EQ(form.first.Text(), "");
}

TEST_F(EventOrder, InputDuringAHandlerRunsInBetweenAndItsFocusIsSettledAtTheEnd) {
  form.also(form.button.Click, [&] {
    SendKeys("\tz");
    DoEvents();
    form.log.push_back("end");
    form.first.SetFocus();
  });
  stage.play(form, [&] {
    form.combo.Enabled = false;
    form.list.Enabled = false;
    stage.user().moveFocus(form.button);
    form.taken();
    stage.press("Enter");
    EXPECT_EQ(form.taken(), (Log{"cmdGrabar Click", "cmdGrabar LostFocus", "Text1(0) GotFocus",
                                 "Form_KeyUp 9", "Text1(0) KeyPress 122", "Text1(0) Change z",
                                 "Form_KeyUp 90", "end", "Form_KeyUp 13"}));
  });
}

TEST_F(EventOrder, KeysDuringLostFocusReachTheFormAlone) {
  form.also(form.first.LostFocus, [&] {
    SendKeys("\tx");
    DoEvents();
  });
  stage.play(form, [&] {
    EXPECT_TRUE(stage.user().moveFocus(form.second));
    EXPECT_EQ(form.taken(),
              (Log{"Text1(0) LostFocus", "Form_KeyUp 9", "Form_KeyUp 88", "Text1(1) GotFocus"}));
  });
}

TEST_F(EventOrder, DisabledFormTakesNoInputAndKeepsItsFocus) {
  stage.play(form, [&] {
    form.Enabled = false;
    stage.type("a");
    EXPECT_FALSE(stage.user().click(form.button));
    form.Enabled = true;
    EXPECT_EQ(form.taken(), Log{});
    stage.type("b");
    EXPECT_EQ(form.first.Text(), "b");
  });
}

}  // namespace
}  // namespace korvantes::screen
