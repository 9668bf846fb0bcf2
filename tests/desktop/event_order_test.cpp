// The same user on the headless desktop and on real windows brings about the same events.
#include <gmock/gmock.h>

#include "scripts/headless_stage.h"
#include "tests/desktop/stages.h"

namespace korvantes::desktop {

using screen::keyNamed;
using testing::IsSupersetOf;

namespace {

/// What a scenario writes down on a desktop. `prepare` sets up the form, `act` plays.
template <class Desktop, class User, class Act>
Log recorded(Desktop& desktop, User& user, const std::function<void(SampleForm&)>& prepare,
             Act act) {
  screen::Desktop::makeCurrent(&desktop);
  SampleForm form;
  desktop.onClosed = [&](const screen::Form& closed) { form.log(closed.name(), "closed"); };
  prepare(form);
  playOn(desktop, form, user, [&](User&) {
    form.log("state", form.state());
    act(user, form);
  });
  return form.events;
}

/// Plays `act` on both desktops; gives what happened on the real one.
template <class Act>
Log sameOnBoth(const std::function<void(SampleForm&)>& prepare, Act act) {
  scripts::HeadlessStage headless;
  const Log expected =
      recorded(static_cast<screen::HeadlessDesktop&>(headless.desktop()), headless, prepare, act);
  RealStage windows;
  Robot robot(windows);
  Log log = recorded(windows, robot, prepare, act);
  EXPECT_EQ(log, expected);
  return log;
}

template <class User>
void see(User& user, SampleForm& form) {
  user.settle();
  form.log("state", form.state());
}

}  // namespace

TEST(EventOrder, OfEveryKindOfControlIsTheModels) {
  const Log log = sameOnBoth([](SampleForm&) {},
                             [](auto& user, SampleForm& form) {
                               user.type("12a3");
                               see(user, form);
                               user.moveFocus(form.Text1(1));
                               user.paste("pegado\nen línea");
                               see(user, form);
                               user.stroke(*keyNamed("Home"));
                               user.type("ñ ¿");
                               user.stroke(*keyNamed("Shift+Right"));
                               user.stroke(*keyNamed("Supr"));
                               see(user, form);
                               user.stroke(*keyNamed("Tab"));
                               user.type("x");
                               user.clearText();
                               user.stroke(*keyNamed("Mayús+Tab"));
                               user.click(form.check);
                               user.click(form.second);
                               see(user, form);
                               user.stroke(*keyNamed("Arriba"));
                               user.selectEntry(form.fixedList, 2);
                               user.type("D");
                               user.typeEntry(form.openList, "Otro");
                               user.type("!");
                               see(user, form);
                               user.tick(form.list, 30, true);
                               user.clickColumn(form.list, 2);
                               user.stroke(*keyNamed("AvPág"));
                               user.stroke(*keyNamed("Espacio"));
                               see(user, form);
                               user.selectRow(form.grid, 45);
                               user.stroke(*keyNamed("Arriba"));
                               user.pressCellButton(form.grid, 2);
                               see(user, form);
                               user.stroke(*keyNamed("Alt+G"));
                               user.stroke(*keyNamed("Enter"));
                               user.stroke(*keyNamed("Espacio"));
                               user.click(form.leave);
                               user.moveFocus(form.Text1(0));
                               user.stroke(*keyNamed("Retroceso"));
                               user.stroke(*keyNamed("Enter"));
                               user.stroke(*keyNamed("F1"));
                               user.stroke(*keyNamed("Decimal"));
                               see(user, form);
                             });
  EXPECT_THAT(
      log, IsSupersetOf({"Text1(0) KeyPress 97", "second Click", "fixedList Click",
                         "openList Change \"Otro!\"", "list ItemCheck F31 on", "list ColumnClick 2",
                         "grid ButtonClick 2", "save Click", "Form KeyUp 112/0"}));
}

TEST(EventOrder, FormMayBeClosedInsideAnyOfItsEvents) {
  const auto closes = [](SampleForm& form) { return [&form] { form.Unload(); }; };
  const std::vector<std::function<void(SampleForm&)>> closers{
      [&](SampleForm& form) { form.save.Click = closes(form); },
      [&](SampleForm& form) { form.save.GotFocus = closes(form); },
      [&](SampleForm& form) { form.Text1(0).LostFocus = closes(form); },
      [&](SampleForm& form) { form.Text1(0).GotFocus = closes(form); },
      [&](SampleForm& form) { form.Text1(0).Change = closes(form); },
      [&](SampleForm& form) { form.check.KeyUp = [&form](int&, int) { form.Unload(); }; },
      [&](SampleForm& form) {
        form.save.Click = [&form] {
          form.Unload();
          screen::MsgBox("Adiós");
        };
      },
  };
  for (const auto& closer : closers) {
    const Log log = sameOnBoth(closer, [](auto& user, SampleForm& form) {
      const auto open = [&] { return form.loaded(); };
      if (open()) user.type("1");
      if (open()) user.click(form.check);
      if (open()) user.stroke(*keyNamed("a"));
      if (open()) user.click(form.save);
    });
    EXPECT_EQ(log.back(), "SampleForm closed");
  }
}

}  // namespace korvantes::desktop
