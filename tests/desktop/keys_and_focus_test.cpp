// Keys and focus between the toolkit and the model.
#include <QKeyEvent>
#include <QWindow>

#include "desktop/keys.h"
#include "tests/desktop/on_windows.h"

std::unique_ptr<korvantes::scripts::Stage> korvantes::screen::makeStage() {
  return std::make_unique<scripts::WindowDesktop>();
}

namespace korvantes::desktop {

namespace {

using Focus = OnWindows;

void sendKey(QEvent::Type type, int key, bool repeated = false, quint32 scanCode = 0) {
  QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, QString(), repeated);
  QCoreApplication::sendEvent(openWindow<FormWindow>().windowHandle(), &event);
}

}  // namespace

TEST_F(Focus, OfTheToolkitFollowsTheModels) {
  play([&] {
    for (int i = 0; i < 11; ++i) {
      press("Tab");
      EXPECT_TRUE(widgetOf(*form.ActiveControl()).hasFocus()) << form.ActiveControl()->identity();
    }
    // A handler that hides or disables the control with the focus sends it on.
    form.text(0).Change = [&] { form.box.Enabled = false; };
    user.moveFocus(form.text(0));
    user.type("1");
    EXPECT_TRUE(widgetOf(form.fixedList).hasFocus());
    EXPECT_FALSE(widgetOf(form.text(0)).isEnabled() || widgetOf(form.check).isEnabled());
    form.box.Enabled = true;
    EXPECT_TRUE(widgetOf(form.check).isEnabled());
  });
}

TEST_F(Focus, StrayReleasesAndKeysHeldSinceBeforeDoNothing) {
  form.text(0).KeyUp = nullptr;
  play([&] {
    sendKey(QEvent::KeyRelease, Qt::Key_Escape);
    const auto hold = [] {
      sendKey(QEvent::KeyRelease, Qt::Key_F2, true);
      sendKey(QEvent::KeyPress, Qt::Key_F2, true);
      sendKey(QEvent::KeyRelease, Qt::Key_F2);
    };
    hold();
    EXPECT_EQ(form.taken(), "");
    // Held down here it repeats, and comes up once.
    sendKey(QEvent::KeyPress, Qt::Key_F2);
    hold();
    EXPECT_EQ(form.taken(), "form up 113");
    // What is let go is the key that was pressed, whatever the layout makes of it meanwhile.
    sendKey(QEvent::KeyPress, Qt::Key_Backtab, false, 23);
    sendKey(QEvent::KeyRelease, Qt::Key_7, false, 23);
    EXPECT_THAT(form.taken(), testing::HasSubstr("form up 9"));
  });
}

TEST_F(Focus, EndOfTheProgramUnloadsTheFormsThatAreOpen) {
  std::string closed;
  stage.onMessage = nullptr;
  stage.onClosed = [&](const screen::Form& shown) { closed += shown.Caption() + " "; };
  SampleForm inner;
  inner.Caption = "inner";
  inner.text(0).GotFocus = [] {
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    screen::MsgBox("¿Sigue?", screen::style::YesNo);
  };
  form.text(0).GotFocus = [&] { inner.Show(); };
  QTimer::singleShot(0, [&] { form.Show(); });
  QApplication::exec();
  EXPECT_EQ(closed, "inner Muestra ");
}

TEST(KeysOfTheToolkit, OfOtherKeyboardsTypeTheirCharacter) {
  const auto altGr = Qt::AltModifier | Qt::ControlModifier;
  const std::tuple<int, Qt::KeyboardModifiers, const char*, int, char32_t> cases[] = {
      {Qt::Key_At, altGr, "@", screen::key::Packet, U'@'},
      {Qt::Key_V, Qt::ControlModifier, "\x16", 'V', 0},
      {Qt::Key_Enter, Qt::KeypadModifier, "\r", screen::key::Enter, 0},
      {Qt::Key_Comma, Qt::KeypadModifier, ",", screen::key::KeypadDecimal, U','},
      {Qt::Key_5, Qt::KeypadModifier, "5", '5', U'5'},
      {Qt::Key_Delete, Qt::NoModifier, "\x7f", screen::key::Delete, 0},
      {Qt::Key_VolumeUp, Qt::NoModifier, "", 0, 0}};
  for (const auto& [pressed, modifiers, text, code, character] : cases) {
    const auto key = keyOf(QKeyEvent(QEvent::KeyPress, pressed, modifiers, text));
    EXPECT_EQ(std::pair(key.code, key.character), std::pair(code, character));
  }
}

}  // namespace korvantes::desktop
