#include <QKeyEvent>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>

#include "tests/desktop/stages.h"

namespace korvantes::desktop {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Focus = OnWindows;

void sendKey(QWidget& window, QEvent::Type type, int key, bool repeated = false,
             quint32 scanCode = 0) {
  QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, QString(), repeated);
  QCoreApplication::sendEvent(window.windowHandle(), &event);
}

Log keyUps(const Log& events) {
  Log found;
  for (const std::string& event : events)
    if (event.starts_with("Form KeyUp")) found.push_back(event);
  return found;
}

}  // namespace

TEST_F(Focus, OfTheToolkitFollowsTheModels) {
  play([&](Robot& robot) {
    const auto expectFocus = [&](screen::Control& control) {
      EXPECT_EQ(form.ActiveControl(), &control);
      EXPECT_TRUE(widgetOf(control).hasFocus()) << control.identity();
    };
    expectFocus(form.Text1(0));
    for (int i = 0; i < 11; ++i) {
      robot.stroke(*screen::keyNamed("Tab"));
      expectFocus(*form.ActiveControl());
    }
    // A handler that hides or disables the control with the focus sends it on.
    form.Text1(0).Change = [&] { form.box.Enabled = false; };
    robot.moveFocus(form.Text1(0));
    robot.type("1");
    expectFocus(form.fixedList);
    EXPECT_FALSE(widgetOf(form.Text1(0)).isEnabled());
    EXPECT_FALSE(widgetOf(form.check).isEnabled());
    form.box.Enabled = true;
    EXPECT_TRUE(widgetOf(form.check).isEnabled());
  });
}

TEST_F(Focus, KeysReachTheFormWhileNoControlCanHaveIt) {
  play([&](Robot& robot) {
    for (screen::Control* control : form.controls()) control->Visible = false;
    robot.stroke(*screen::keyNamed("Tab"));
    robot.settle();
    form.events.clear();
    robot.stroke(*screen::keyNamed("F1"));
    EXPECT_EQ(form.ActiveControl(), nullptr);
    EXPECT_THAT(keyUps(form.events), ElementsAre("Form KeyUp 112/0"));
  });
}

TEST_F(Focus, StrayReleasesAndKeysHeldSinceBeforeDoNothing) {
  play([&](Robot&) {
    QWidget& window = *widgetOf(form.save).window();
    form.events.clear();
    sendKey(window, QEvent::KeyRelease, Qt::Key_Escape);
    sendKey(window, QEvent::KeyPress, Qt::Key_F2, true);
    sendKey(window, QEvent::KeyRelease, Qt::Key_F2, true);
    sendKey(window, QEvent::KeyRelease, Qt::Key_F2);
    EXPECT_THAT(form.events, IsEmpty());
    // Held down here it repeats, and comes up once.
    sendKey(window, QEvent::KeyPress, Qt::Key_F2);
    sendKey(window, QEvent::KeyRelease, Qt::Key_F2, true);
    sendKey(window, QEvent::KeyPress, Qt::Key_F2, true);
    sendKey(window, QEvent::KeyRelease, Qt::Key_F2);
    EXPECT_THAT(keyUps(form.events), ElementsAre("Form KeyUp 113/0"));
    // What is let go is the key that was pressed, whatever the layout makes of it meanwhile.
    form.events.clear();
    sendKey(window, QEvent::KeyPress, Qt::Key_Backtab, false, 23);
    sendKey(window, QEvent::KeyRelease, Qt::Key_7, false, 23);
    EXPECT_THAT(keyUps(form.events), ElementsAre("Form KeyUp 9/0"));
  });
}

TEST(ModalCall, EndsByFrameButtonEscapeAndAltF4) {
  const std::vector<std::function<void(Robot&, SampleForm&)>> ways{
      [](Robot& robot, SampleForm&) { robot.close(); },
      [](Robot&, SampleForm& form) { widgetOf(form.save).window()->close(); },
      [](Robot& robot, SampleForm&) { robot.stroke(*screen::keyNamed("Alt+F4")); },
      [](Robot& robot, SampleForm& form) {
        form.Text1(0).KeyUp = [&form](int& code, int) {
          if (code == screen::key::Escape) form.Unload();
        };
        robot.stroke(*screen::keyNamed("Escape"));
      },
  };
  for (const auto& way : ways) {
    RealStage desktop;
    SampleForm form;
    playReal(desktop, form, [&](Robot& robot) {
      way(robot, form);
      EXPECT_FALSE(form.loaded());
    });
    EXPECT_EQ(form.events.back(), "Form Unload");
  }
}

TEST(EndOfTheProgram, UnloadsTheFormsThatAreOpen) {
  RealStage desktop;
  Log closed;
  desktop.onClosed = [&](const screen::Form& form) { closed.push_back(form.Caption()); };
  SampleForm outer, inner;
  outer.Caption = "outer";
  inner.Caption = "inner";
  inner.save.GotFocus = [&] {
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    screen::MsgBox("¿Sigue?", screen::style::YesNo);
  };
  inner.save.TabIndex = -1;
  outer.save.GotFocus = [&] { inner.Show(); };
  outer.save.TabIndex = -1;
  QTimer::singleShot(0, [&] { outer.Show(); });
  QApplication::exec();
  EXPECT_THAT(closed, ElementsAre("inner", "outer"));
}

}  // namespace korvantes::desktop
