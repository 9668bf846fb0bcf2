#include <stdexcept>

#include "tests/screen/on_stage.h"

namespace korvantes::screen {
namespace {

using EventOrder = OnStage;
INSTANTIATE_TEST_SUITE_P(On, EventOrder, testing::Values(stageKind()),
                         testing::PrintToStringParamName());

TEST_P(EventOrder, OfShowingIsLoadThenTheFocusThatItAskedForOrTheFirstTabStop) {
  form.load = [&] { form.log.push_back("load"); };
  stage.whileShown = [&](Form&) { form.Unload(); };
  form.Show();
  EXPECT_EQ(form.taken(), (Log{"load", "Text1(0) GotFocus", "Form Unload"}));
  form.load = [&] { form.Text1(1).SetFocus(); };
  form.Show();
  EXPECT_EQ(form.taken(), (Log{"Text1(1) GotFocus", "Form Unload"}));
  // A form that fails or is unloaded while it loads is never shown.
  stage.whileShown = [](Form&) { FAIL(); };
  form.load = [] { throw std::runtime_error("sin conexión"); };
  EXPECT_THROW(form.Show(), std::runtime_error);
  EXPECT_FALSE(form.loaded());
  form.load = [&] { form.Unload(); };
  form.Show();
  EXPECT_EQ(form.taken(), (Log{"Form Unload"}));
  EXPECT_TRUE(stage.forms().empty());
}

TEST_P(EventOrder, OfTypingIsKeyPressThenChangeThenKeyUpOfFormAndControl) {
  play([&] {
    user.type("A");
    EXPECT_EQ(form.taken(), (Log{"Text1(0) KeyPress 65", "Text1(0) Change A", "Form KeyUp 65/1",
                                 "Text1(0) KeyUp 65"}));
    form.keyUp = [](int& code) { code = 0; };
    press("Enter");
    EXPECT_EQ(form.taken(), (Log{"Text1(0) KeyPress 13", "Form KeyUp 13"}));
  });
}

TEST_P(EventOrder, OfClicksIsFocusThenChangeOfTheControlThenClick) {
  int valueInClick = -1;
  form.also(form.check.Click, [&] { valueInClick = form.check.Value(); });
  play([&] {
    user.click(form.check);
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "check GotFocus", "check Click"}));
    EXPECT_EQ(valueInClick, 1);
    user.click(form.save);
    EXPECT_EQ(form.taken(), (Log{"check LostFocus", "save GotFocus", "save Click"}));
  });
}

TEST_P(EventOrder, FocusSentElsewhereInLostFocusDropsTheTargetAndItsClick) {
  form.also(form.Text1(0).LostFocus, [&] {
    MsgBox("no existe");
    form.Text1(0).SetFocus();
  });
  play([&] {
    user.click(form.save);
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "Text1(0) GotFocus"}));
    press("Tab");
    // The message took the release of the Tab.
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "Text1(0) GotFocus"}));
    EXPECT_EQ(form.ActiveControl(), &form.Text1(0));
    form.also(form.Text1(0).LostFocus, [&] { form.check.SetFocus(); });
    user.moveFocus(form.Text1(1));
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "check GotFocus"}));
  });
}

TEST_P(EventOrder, SetFocusInAHandlerWaitsForItsEndAndTheLastCallWins) {
  form.also(form.save.Click, [&] {
    form.Text1(0).SetFocus();
    form.fixedList.Enabled = false;
    form.fixedList.SetFocus();
    form.Text1(1).SetFocus();
    form.log.push_back("end");
  });
  play([&] {
    user.moveFocus(form.save);
    form.taken();
    press("Enter");
    EXPECT_EQ(form.taken(), (Log{"save Click", "end", "save LostFocus", "Text1(1) GotFocus",
                                 "Form KeyUp 13", "Text1(1) KeyUp 13"}));
  });
}

TEST_P(EventOrder, ControlThatBecameUnusablePassesTheFocusOn) {
  form.also(form.save.Click, [&] {
    form.save.Enabled = false;
    form.leave.Visible = false;
  });
  play([&] {
    user.click(form.save);
    EXPECT_EQ(form.ActiveControl(), &form.list);
    EXPECT_EQ(form.taken().at(3), "save LostFocus");
    user.click(form.save);
    EXPECT_EQ(form.taken(), Log{});
  });
}

TEST_P(EventOrder, HandlersThatThrowTheFocusToAndFroAreCutOff) {
  form.also(form.Text1(0).GotFocus, [&] { form.Text1(1).SetFocus(); });
  form.also(form.Text1(1).GotFocus, [&] { form.Text1(0).SetFocus(); });
  play([&] {
    user.click(form.check);
    EXPECT_EQ(form.log.back(), "check Click");
  });
}

TEST_P(EventOrder, ExceptionOfAHandlerBecomesAMessageAndTheFormStaysUsable) {
  form.also(form.save.Click, [&] {
    form.Text1(1).SetFocus();
    throw std::runtime_error("no se pudo guardar");
  });
  form.also(form.Text1(1).Change, [] { throw std::runtime_error("cambio"); });
  play([&] {
    user.click(form.save);
    EXPECT_EQ(messages, (Log{"[16] Muestra | no se pudo guardar"}));
    EXPECT_EQ(form.ActiveControl(), &form.Text1(1));
    user.type("xy");
    EXPECT_EQ(form.Text1(1).Text(), "xy");
    EXPECT_EQ(messages.size(), 3U);
    EXPECT_THROW(form.Text1(1).Text = "z", std::runtime_error);  // the program's own assignment
  });
}

TEST_P(EventOrder, FormUnloadedInAnyOfItsEventsTakesNoFurtherOnes) {
  const auto unload = [&] {
    form.Unload();
    form.Unload();
  };
  const std::pair<std::function<void()>*, Log> cases[] = {
      {&form.Text1(0).Change, {"Text1(0) KeyPress 49", "Text1(0) Change 1"}},
      {&form.Text1(0).LostFocus, {"Text1(0) LostFocus"}},
      {&form.check.GotFocus, {"Text1(0) LostFocus", "check GotFocus"}},
      {&form.check.Click, {"Text1(0) LostFocus", "check GotFocus", "check Click"}}};
  for (const auto& [event, expected] : cases) {
    const std::function<void()> before = *event;
    form.also(*event, unload);
    form.Text1(0).Text = "";
    play([&] {
      if (event == &form.Text1(0).Change) user.type("1");
      if (form.loaded()) user.click(form.check);
      user.click(form.save);
      UserInput(form).keyUp(keyTyping('a'));
      Log wanted = expected;
      wanted.push_back("Form Unload");
      EXPECT_EQ(form.taken(), wanted);
    });
    *event = before;
  }
}

TEST_P(EventOrder, InputDuringAHandlerRunsInBetweenAndItsFocusIsSettledAtTheEnd) {
  form.also(form.save.Click, [&] {
    SendKeys("\tz");
    DoEvents();
    form.log.push_back("end");
    form.Text1(0).SetFocus();
  });
  play([&] {
    form.leave.Enabled = false;
    form.list.Enabled = false;
    form.grid.Enabled = false;
    user.moveFocus(form.save);
    form.taken();
    press("Enter");
    EXPECT_EQ(form.taken(), (Log{"save Click", "save LostFocus", "Text1(0) GotFocus",
                                 "Form KeyUp 9", "Text1(0) KeyUp 9", "Text1(0) KeyPress 122",
                                 "Text1(0) Change z", "Form KeyUp 90", "Text1(0) KeyUp 90", "end",
                                 "Form KeyUp 13", "Text1(0) KeyUp 13"}));
  });
}

TEST_P(EventOrder, KeysDuringLostFocusReachTheFormAlone) {
  form.also(form.Text1(0).LostFocus, [&] {
    SendKeys("\tx");
    DoEvents();
  });
  play([&] {
    user.moveFocus(form.Text1(1));
    EXPECT_EQ(form.taken(),
              (Log{"Text1(0) LostFocus", "Form KeyUp 9", "Form KeyUp 88", "Text1(1) GotFocus"}));
  });
}

TEST_P(EventOrder, DisabledFormTakesNoInputAndKeepsItsFocus) {
  play([&] {
    form.Enabled = false;
    user.type("a");
    user.click(form.save);
    form.Enabled = true;
    EXPECT_EQ(form.taken(), Log{});
    user.type("b");
    EXPECT_EQ(form.Text1(0).Text(), "b");
  });
}

TEST_P(EventOrder, ReleaseOfAKeyThatOpenedOrClosedAWindowIsNotForTheFormBelow) {
  SampleForm above;
  Log closed;
  stage.onClosed = [&](const Form& shown) { closed.push_back(shown.Caption()); };
  above.Caption = "above";
  above.save.Click = [&] { above.Unload(); };
  form.save.Click = [&] {
    stage.whileShown = [&](Form& top) {
      EXPECT_EQ(&top, &above);
      EXPECT_EQ(stage.forms().size(), 2U);
      user.moveFocus(above.save);
      above.taken();
      press("Enter");
    };
    above.Show();
  };
  play([&] {
    user.moveFocus(form.save);
    form.taken();
    press("Enter");
    EXPECT_EQ(above.log, (Log{"Form Unload"}));
    EXPECT_EQ(form.log, Log{});
  });
  EXPECT_EQ(closed, (Log{"above", "Muestra"}));
  EXPECT_THROW(user.type("x"), std::logic_error);
}

TEST_P(EventOrder, KeysThatAFormHasNotTakenAreForTheOneBelow) {
  SampleForm above;
  form.save.Click = [&] {
    stage.whileShown = [&](Form&) {
      SendKeys("x");
      above.Unload();
      user.settle();
    };
    above.Show();
    form.Text1(1).SetFocus();
  };
  play([&] {
    user.click(form.save);
    user.settle();
    EXPECT_EQ(form.Text1(1).Text(), "x");
    EXPECT_EQ(above.Text1(0).Text(), "");
  });
}

}  // namespace
}  // namespace korvantes::screen
