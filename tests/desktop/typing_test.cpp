// Ways for text to get into a field, and the caret and selection there.
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>

#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

namespace {

class TypingOnWindows : public OnWindows {
 protected:
  QLineEdit& field() const { return widgetOf<QLineEdit>(box); }
  void drop(const QString& text) const {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(QPoint(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field(), &enter);
    QDropEvent event(QPointF(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field(), &event);
  }
  screen::TextBox& box = form.text(1);
  QClipboard& clipboard = *QGuiApplication::clipboard();
};

}  // namespace

TEST_F(TypingOnWindows, KeyFilterAndLengthHoldForEveryWayIntoAField) {
  const char* const typed = "1x2-3456789";
  clipboard.setText(typed);
  box.MaxLength = 6;
  box.KeyPress = [](int& code) {
    if (code < '0' || code > '9') code = 0;
  };
  const std::function<void()> ways[] = {[&] { press("Ctrl+V"); }, [&] { drop(typed); }};
  play([&] {
    for (const auto& way : ways) {
      user.moveFocus(box);
      user.clearText();
      way();
      EXPECT_EQ(box.Text(), "123456");
      EXPECT_EQ(field().text(), "123456");
    }
  });
}

TEST_F(TypingOnWindows, CopyAndCutTakeTheSelectionAndReadOnlyFieldsLoseNothing) {
  play([&] {
    user.moveFocus(box);
    box.Text = "abcdef";
    for (const char* key : {"Mayús+Left", "Mayús+Left", "Ctrl+X"}) press(key);
    EXPECT_EQ(field().text() + clipboard.text(), "abcdef");
    user.type("z");
    EXPECT_EQ(field().text(), "abcdz");
    box.Locked = true;
    drop("9");
    for (const char* key : {"9", "Ctrl+A", "Ctrl+C", "Ctrl+X"}) press(key);
    EXPECT_EQ(box.Text() + clipboard.text().toStdString(), "abcdzabcdz");
  });
}

TEST_F(TypingOnWindows, MousePlacesTheModelsCaretInCharacters) {
  box.Text = "\U0001F600ñab";  // the first character takes two of Qt's units
  play([&] {
    user.moveFocus(box);
    EXPECT_EQ(field().cursorPosition(), 5);
    field().setCursorPosition(3);
    const QPoint afterSecond = field().inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    field().setCursorPosition(5);
    scripts::sendClick(field(), afterSecond);
    EXPECT_EQ(box.SelStart(), 2);
    user.type("X");
    EXPECT_EQ(box.Text(), "\U0001F600ñXab");
    drop("Y");  // at the left end
    EXPECT_EQ(box.Text(), "Y\U0001F600ñXab");
  });
}

}  // namespace korvantes::desktop
