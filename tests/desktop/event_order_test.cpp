// One user on the headless desktop and on windows: everything that happens, in one order.
#include "scripts/headless_desktop.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

namespace {

/// What happens to the sample form while it is played on a stage.
struct Recording : screen::Played {
  explicit Recording(std::unique_ptr<scripts::Stage> made) : Played(std::move(made)) {
    // Enter moves on, as on the screens.
    form.keyUp = [this](int& code) {
      if (code == screen::key::Enter) {
        code = 0;
        screen::SendKeys("\t");
      } else {
        screen::DoEvents();
      }
    };
    play([this] { act(); });
  }

  void see() {
    user.settle();
    form.log.push_back(form.state());
  }
  void press(std::initializer_list<const char*> keys) {
    for (const char* key : keys) Played::press(key);
  }
  void act() {
    user.type("12a3");
    see();
    user.moveFocus(form.Text1(1));
    user.paste("pegado\nen línea");
    see();
    press({"Home", "ñ", "Espacio", "¿", "Shift+Right", "Supr"});
    see();
    press({"Tab", "x", "9"});
    user.clearText();
    press({"Mayús+Tab"});
    user.click(form.check);
    user.click(form.second);
    see();
    press({"Arriba"});
    user.selectEntry(form.fixedList, 2);
    user.type("A");
    user.typeEntry(form.openList, "Otro");
    user.type("!");
    see();
    user.tick(form.list, 30, true);
    user.clickColumn(form.list, 2);
    press({"AvPág", "Espacio"});
    see();
    user.selectRow(form.grid, 45);
    press({"Arriba"});
    user.pressCellButton(form.grid, 2);
    see();
    press({"Alt+G", "Enter", "Espacio"});
    user.click(form.leave);
    user.moveFocus(form.Text1(0));
    press({"Retroceso", "Enter", "F1", "Decimal"});
    see();
  }
  using Played::form;
};

}  // namespace

TEST(EventOrderOnWindows, OfEveryKindOfControlIsTheModels) {
  const Log log = Recording(std::make_unique<scripts::WindowDesktop>()).form.log;
  EXPECT_EQ(log, Recording(std::make_unique<scripts::HeadlessDesktop>()).form.log);
  EXPECT_THAT(log, testing::IsSupersetOf({"Text1(2) KeyPress 120", "second Click",
                                          "fixedList Click", "openList Change Otro!",
                                          "list ItemCheck F31 on", "list ColumnClick 2",
                                          "grid ButtonClick 2", "save Click", "Form KeyUp 112"}));
}

}  // namespace korvantes::desktop
