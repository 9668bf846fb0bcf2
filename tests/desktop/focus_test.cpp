#include <QKeyEvent>
#include <QTimer>
#include <QWindow>

#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Focus = OnWindows;

void sendKey(QEvent::Type type, int key, bool repeated = false, quint32 scanCode = 0) {
  QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, QString(), repeated);
  QCoreApplication::sendEvent(openWindow<FormWindow>().windowHandle(), &event);
}

Log keyUps(const Log& events) {
  Log found;
  for (const std::string& event : events)
    if (event.starts_with("Form KeyUp")) found.push_back(event);
  return found;
}

}  // namespace

TEST_F(Focus, OfTheToolkitFollowsTheModels) {
  play([&] {
    const auto expectFocus = [&](screen::Control& control) {
      EXPECT_EQ(form.ActiveControl(), &control);
      EXPECT_TRUE(widgetOf(control).hasFocus()) << control.identity();
    };
    expectFocus(form.Text1(0));
    for (int i = 0; i < 11; ++i) {
      press("Tab");
      expectFocus(*form.ActiveControl());
    }
    // A handler that hides or disables the control with the focus sends it on.
    form.Text1(0).Change = [&] { form.box.Enabled = false; };
    user.moveFocus(form.Text1(0));
    user.type("1");
    expectFocus(form.fixedList);
    EXPECT_FALSE(widgetOf(form.Text1(0)).isEnabled() || widgetOf(form.check).isEnabled());
    form.box.Enabled = true;
    EXPECT_TRUE(widgetOf(form.check).isEnabled());
  });
}

TEST_F(Focus, StrayReleasesAndKeysHeldSinceBeforeDoNothing) {
  play([&] {
    sendKey(QEvent::KeyRelease, Qt::Key_Escape);
    sendKey(QEvent::KeyPress, Qt::Key_F2, true);
    sendKey(QEvent::KeyRelease, Qt::Key_F2, true);
    sendKey(QEvent::KeyRelease, Qt::Key_F2);
    EXPECT_THAT(form.log, IsEmpty());
    // Held down here it repeats, and comes up once.
    sendKey(QEvent::KeyPress, Qt::Key_F2);
    sendKey(QEvent::KeyRelease, Qt::Key_F2, true);
    sendKey(QEvent::KeyPress, Qt::Key_F2, true);
    sendKey(QEvent::KeyRelease, Qt::Key_F2);
    EXPECT_THAT(keyUps(form.taken()), ElementsAre("Form KeyUp 113"));
    // What is let go is the key that was pressed, whatever the layout makes of it meanwhile.
    sendKey(QEvent::KeyPress, Qt::Key_Backtab, false, 23);
    sendKey(QEvent::KeyRelease, Qt::Key_7, false, 23);
    EXPECT_THAT(keyUps(form.taken()), ElementsAre("Form KeyUp 9"));
  });
}

TEST_F(Focus, FrameButtonAndEscapeEndTheModalCall) {
  form.Text1(0).KeyUp = [&](int& code, int) {
    if (code == screen::key::Escape) form.Unload();
  };
  const std::function<void()> ways[] = {
      [&] { user.close(); }, [&] { openWindow<FormWindow>().close(); }, [&] { press("Escape"); }};
  for (const auto& way : ways) {
    play([&] {
      way();
      EXPECT_FALSE(form.loaded());
    });
    EXPECT_EQ(form.log.back(), "Form Unload");
  }
}

TEST_F(Focus, EndOfTheProgramUnloadsTheFormsThatAreOpen) {
  Log closed;
  stage.onMessage = nullptr;
  stage.onClosed = [&](const screen::Form& shown) { closed.push_back(shown.Caption()); };
  SampleForm inner;
  inner.Caption = "inner";
  inner.save.GotFocus = [&] {
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    screen::MsgBox("¿Sigue?", screen::style::YesNo);
  };
  form.save.GotFocus = [&] { inner.Show(); };
  form.save.TabIndex = -1;
  inner.save.TabIndex = -1;
  QTimer::singleShot(0, [&] { form.Show(); });
  QApplication::exec();
  EXPECT_THAT(closed, ElementsAre("inner", "Muestra"));
}

}  // namespace korvantes::desktop
