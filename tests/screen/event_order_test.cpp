#include <stdexcept>

#include "tests/screen/on_stage.h"

namespace korvantes::screen {
namespace {

using EventOrder = OnStage;

TEST_F(EventOrder, OfShowingIsLoadThenTheFocusThatItAskedForOrTheFirstTabStop) {
  stage.whileShown = [&](Form&) { form.Unload(); };
  form.load = [&] { form.write("form", "Load"); };
  form.Show();
  form.load = [&] { form.text(1).SetFocus(); };
  form.Show();
  EXPECT_EQ(form.taken(), "form Load, +t(0), form Unload, +t(1), form Unload");
  // A form that fails or is unloaded while it loads is never shown.
  stage.whileShown = [](Form&) { FAIL(); };
  form.load = [] { throw std::runtime_error("sin conexión"); };
  EXPECT_THROW(form.Show(), std::runtime_error);
  EXPECT_FALSE(form.loaded());
  form.load = [&] { form.Unload(); };
  form.Show();
  EXPECT_EQ(form.taken(), "form Unload");
  EXPECT_TRUE(stage.forms().empty());
}

TEST_F(EventOrder, OfKeysAndClicks) {
  form.also(form.check.Click, [&] { EXPECT_EQ(form.check.Value(), 1); });
  play([&] {
    EXPECT_EQ(pressing("A"), "t(0) press 65, t(0) = A, form up 65/1, t(0) up 65");
    form.keyUp = [](int& code) { code = 0; };
    EXPECT_EQ(pressing("Enter"), "t(0) press 13, form up 13");
    EXPECT_EQ(clicking(form.check), "-t(0), +check, check Click");
    EXPECT_EQ(clicking(form.save), "-check, +save, save Click");
    form.Enabled = false;
    EXPECT_EQ(pressing("a") + clicking(form.check), "");
    EXPECT_EQ(form.ActiveControl(), &form.save);
  });
}

TEST_F(EventOrder, FocusSentElsewhereInLostFocusDropsTheTargetAndItsClick) {
  form.also(form.text(0).LostFocus, [&] {
    MsgBox("no existe");
    form.text(0).SetFocus();
  });
  play([&] {
    EXPECT_EQ(clicking(form.save), "-t(0), +t(0)");
    EXPECT_EQ(pressing("Tab"), "-t(0), +t(0)") << "the message took the release";
    form.also(form.text(0).LostFocus, [&] { form.check.SetFocus(); });
    EXPECT_EQ(clicking(form.text(1)), "-t(0), +check");
  });
}

TEST_F(EventOrder, SetFocusInAHandlerWaitsForItsEndAndTheLastCallWins) {
  form.also(form.save.Click, [&] {
    form.text(0).SetFocus();
    form.fixedList.Enabled = false;
    form.fixedList.SetFocus();
    form.text(1).SetFocus();
    form.write("save", "end");
  });
  // A control that becomes unusable in its handler passes the focus on.
  form.also(form.text(1).Change, [&] {
    form.text(1).Enabled = false;
    form.text(2).Visible = false;
  });
  play([&] {
    EXPECT_EQ(clicking(form.save), "-t(0), +save, save Click, save end, -save, +t(1)");
    user.type("x");
    EXPECT_EQ(form.ActiveControl(), &form.check);
    EXPECT_EQ(clicking(form.text(1)), "");
    // Handlers that throw it to and fro are cut off.
    form.also(form.text(0).GotFocus, [&] { form.save.SetFocus(); });
    form.also(form.save.GotFocus, [&] { form.text(0).SetFocus(); });
    EXPECT_NE(clicking(form.text(0)), "");
  });
}

TEST_F(EventOrder, ExceptionOfAHandlerBecomesAMessageAndTheFormStaysUsable) {
  form.save.Click = [&] {
    form.text(1).SetFocus();
    throw std::runtime_error("no se pudo guardar");
  };
  form.text(1).Change = [] { throw std::runtime_error("cambio"); };
  play([&] {
    user.click(form.save);
    EXPECT_THAT(messages, testing::ElementsAre("[16] Muestra | no se pudo guardar"));
    EXPECT_EQ(form.ActiveControl(), &form.text(1));
    user.type("xy");
    EXPECT_EQ(form.text(1).Text(), "xy");
    EXPECT_EQ(messages.size(), 3U);
    EXPECT_THROW(form.text(1).Text = "z", std::runtime_error);  // the program's own assignment
  });
}

TEST_F(EventOrder, FormUnloadedInAnyOfItsEventsTakesNoFurtherOnes) {
  const std::pair<std::function<void()>*, const char*> cases[] = {
      {&form.text(0).Change, "t(0) press 49, t(0) = 1, form Unload"},
      {&form.text(0).LostFocus, "t(0) press 49, t(0) = 1, form up 49, -t(0), form Unload"},
      {&form.check.GotFocus, "t(0) press 49, t(0) = 1, form up 49, -t(0), +check, form Unload"}};
  form.text(0).KeyUp = nullptr;
  for (const auto& [event, expected] : cases) {
    const auto before = *event;
    form.also(*event, [&] {
      for (int i = 0; i < 2; ++i) form.Unload();
    });
    play([&] {
      user.type("1");
      if (form.loaded()) user.click(form.check);
      user.click(form.save);
      UserInput(form).keyUp(keyTyping('a'));
      EXPECT_EQ(form.taken(), expected);
    });
    *event = before;
    form.text(0).Text = "";
  }
}

TEST_F(EventOrder, InputDuringAHandlerRunsInBetweenAndItsFocusIsSettledAtTheEnd) {
  form.also(form.save.Click, [&] {
    SendKeys("\tz");
    DoEvents();
    form.write("save", "end");
    form.text(0).SetFocus();
  });
  for (Control* each : std::initializer_list<Control*>{&form.leave, &form.list, &form.grid})
    each->Enabled = false;
  play([&] {
    user.moveFocus(form.save);
    EXPECT_EQ(pressing("Enter"),
              "save Click, -save, +t(0), form up 9, t(0) up 9, t(0) press 122, t(0) = z, "
              "form up 90, t(0) up 90, save end, form up 13, t(0) up 13");
    // While LostFocus runs, keys reach the form alone.
    form.also(form.text(0).LostFocus, [] {
      SendKeys("\tx");
      DoEvents();
    });
    form.text(1).Click = nullptr;
    EXPECT_EQ(clicking(form.text(1)), "-t(0), form up 9, form up 88, +t(1)");
  });
}

TEST_F(EventOrder, KeysBelongToTheWindowThatIsOnTop) {
  SampleForm above;
  std::string closed;
  stage.onClosed = [&](const Form& shown) { closed += shown.Caption() + " "; };
  above.Caption = "Encima";
  above.text(0).KeyPress = [&](int&) { above.Unload(); };
  form.save.Click = [&] {
    stage.whileShown = [&](Form& top) {
      EXPECT_TRUE(&top == &above && stage.forms().size() == 2);
      EXPECT_EQ(above.taken(), "+t(0)");
      press("Enter");
    };
    above.Show();
    EXPECT_EQ(above.taken(), "form Unload");
  };
  // What a form has not taken is for the one below.
  form.leave.Click = [&] {
    stage.whileShown = [&](Form&) {
      SendKeys("x");
      above.Unload();
      user.settle();
    };
    above.Show();
    form.text(1).SetFocus();
  };
  play([&] {
    user.moveFocus(form.save);
    EXPECT_EQ(pressing("Enter"), "") << "the release belongs to the window above";
    user.click(form.leave);
    user.settle();
    EXPECT_EQ(form.text(1).Text() + above.text(0).Text(), "x");
  });
  EXPECT_EQ(closed, "Encima Encima Muestra ");
  EXPECT_THROW(user.type("x"), std::logic_error);
}

}  // namespace
}  // namespace korvantes::screen
