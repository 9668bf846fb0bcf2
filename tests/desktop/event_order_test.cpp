// The same user on the headless desktop and on real windows brings about the same events.
#include <gmock/gmock.h>

#include "tests/desktop/stages.h"

namespace korvantes::desktop {

using screen::keyNamed;
using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

namespace {

const auto kNothing = [](auto&, SampleForm&) {};

/// Plays `act` on both desktops; gives what happened on the real one.
template <class Prepare, class Act>
Log sameOnBoth(Prepare prepare, Act act) {
  const Log headless = recordedHeadless(prepare, act);
  const Log real = recordedReal(prepare, act);
  EXPECT_EQ(real, headless);
  return real;
}

template <class User>
void see(User& user, SampleForm& form) {
  user.settle();
  form.log("state", form.state());
}

}  // namespace

TEST(EventOrder, OfEveryKindOfControlIsTheModels) {
  const Log log = sameOnBoth(kNothing, [](auto& user, SampleForm& form) {
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

TEST(EventOrder, MessageBoxInsideLostFocusDropsTheClickThatCausedIt) {
  for (const bool byEnter : {false, true}) {
    const auto prepare = [byEnter](auto& desktop, SampleForm& form) {
      desktop.onMessage = [&form, byEnter](const screen::MessageBox& box) {
        form.log("message", box.text);
        return screen::HeadlessDesktop::Reply<screen::Answer>{screen::Answer::Ok, byEnter};
      };
      form.Text1(0).LostFocus = [&form] {
        form.log("Text1(0)", "LostFocus");
        form.Tag = "e";
        screen::MsgBox("No existe");
        form.Text1(0).SetFocus();
      };
    };
    const Log log = sameOnBoth(prepare, [](auto& user, SampleForm& form) {
      user.click(form.save);
      see(user, form);
      user.stroke(*keyNamed("Tab"));
      see(user, form);
      user.stroke(*keyNamed("Enter"));
      see(user, form);
    });
    EXPECT_THAT(log, Not(Contains("save Click")));
    EXPECT_THAT(log, Contains("message No existe"));
  }
}

TEST(EventOrder, EnterThatClosedAMessageComesUpOverTheFormBelow) {
  const auto prepare = [](auto& desktop, SampleForm& form) {
    desktop.onMessage = [](const screen::MessageBox&) {
      return screen::HeadlessDesktop::Reply<screen::Answer>{screen::Answer::Yes, true};
    };
    form.save.Click = [&form] {
      form.Tag = "e";
      const auto answer = screen::MsgBox("¿Seguro?", screen::style::YesNo);
      form.log("answer", answer == screen::Answer::Yes ? "yes" : "no");
    };
  };
  const Log log = sameOnBoth(prepare, [](auto& user, SampleForm& form) {
    form.events.clear();
    user.click(form.save);
    user.settle();
    form.log("tag", form.Tag());
  });
  EXPECT_THAT(log, ElementsAre("Text1(0) LostFocus", "save GotFocus", "answer yes",
                               "Form KeyUp 13/0", "tag ", "Form Unload", "SampleForm closed"));
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
    const Log log = sameOnBoth([&](auto&, SampleForm& form) { closer(form); },
                               [](auto& user, SampleForm& form) {
                                 const auto open = [&] { return form.loaded(); };
                                 if (open()) user.type("1");
                                 if (open()) user.click(form.check);
                                 if (open()) user.stroke(*keyNamed("a"));
                                 if (open()) user.click(form.save);
                               });
    EXPECT_EQ(log.back(), "SampleForm closed");
  }
}

TEST(EventOrder, ReleaseOfTheKeyThatOpenedAWindowStaysThere) {
  SampleForm* inner = nullptr;
  const auto prepare = [&inner](auto&, SampleForm& form) {
    form.save.Click = [&form, &inner] {
      SampleForm second;
      inner = &second;
      second.Show();
      for (const std::string& event : second.events) form.log("second:", event);
    };
  };
  const Log log = sameOnBoth(prepare, [](auto& user, SampleForm& form) {
    user.moveFocus(form.save);
    form.events.clear();
    user.stroke(*keyNamed("Enter"));
    see(user, form);
  });
  EXPECT_THAT(log, Not(Contains(testing::HasSubstr("KeyUp 13"))));

  const auto asksForFile = [](auto& desktop, SampleForm& form) {
    desktop.onFile = [](const screen::FileDialog&) { return std::optional<std::string>("a.bmp"); };
    form.save.Click = [&form] {
      form.log("file", form.files.ShowOpen() ? form.files.FileName() : "");
    };
  };
  EXPECT_THAT(sameOnBoth(asksForFile,
                         [](auto& user, SampleForm& form) {
                           user.moveFocus(form.save);
                           form.events.clear();
                           user.stroke(*keyNamed("Enter"));
                         }),
              ElementsAre("file a.bmp", "Form Unload", "SampleForm closed"));
}

}  // namespace korvantes::desktop
