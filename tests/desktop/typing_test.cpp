// Ways for text to get into a field, and the caret and selection there.
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>

#include "scripts/windows/input_events.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

namespace {

class TypingOnWindows : public OnWindows {
 protected:
  QLineEdit& field() const { return static_cast<QLineEdit&>(widgetOf(box)); }
  void drop(const QString& text) const {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(QPoint(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field(), &enter);
    QDropEvent event(QPointF(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field(), &event);
  }
  screen::TextBox& box = form.Text1(1);
};

}  // namespace

TEST_F(TypingOnWindows, KeyFilterAndLengthHoldForEveryWayIntoAField) {
  const std::string typed = "1x2-3456789";
  const std::function<void()> ways[] = {[&] { user.type(typed); },
                                        [&] {
                                          QGuiApplication::clipboard()->setText(typed.c_str());
                                          press("Ctrl+V");
                                        },
                                        [&] { user.paste(typed); }, [&] { drop(typed.c_str()); }};
  box.MaxLength = 6;
  box.KeyPress = form.Text1(2).KeyPress;
  for (const auto& way : ways)
    play([&] {
      user.moveFocus(box);
      user.clearText();
      way();
      EXPECT_EQ(box.Text(), "123456");
      EXPECT_EQ(field().text(), "123456");
    });
}

TEST_F(TypingOnWindows, ReadOnlyFieldsTakeNothingAndCanBeCopied) {
  box.Text = "1.234,56";
  box.Locked = true;
  play([&] {
    user.moveFocus(box);
    user.type("9");
    drop("9");
    for (const char* key : {"Ctrl+A", "Ctrl+C", "Ctrl+X"}) press(key);
    EXPECT_EQ(box.Text(), "1.234,56");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1.234,56");
  });
}

TEST_F(TypingOnWindows, CutTakesTheSelectionOutThroughTheModel) {
  box.Text = "abcdef";
  play([&] {
    user.moveFocus(box);
    press("Mayús+Left");
    press("Mayús+Left");
    EXPECT_EQ(field().selectedText(), "ef");
    press("Ctrl+X");
    EXPECT_EQ(box.Text(), "abcd");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "ef");
    user.type("z");
    EXPECT_EQ(field().text(), "abcdz");
    EXPECT_EQ(field().cursorPosition(), 5);
  });
}

TEST_F(TypingOnWindows, MousePlacesTheModelsCaretInCharacters) {
  box.Text = "\U0001F600ñab";  // the first character takes two of Qt's units
  play([&] {
    user.moveFocus(box);
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_EQ(field().cursorPosition(), 5);
    field().setCursorPosition(3);
    const QPoint afterSecond = field().inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    field().setCursorPosition(5);
    scripts::sendClick(field(), afterSecond);
    EXPECT_EQ(box.SelStart(), 2);
    user.type("X");
    EXPECT_EQ(box.Text(), "\U0001F600ñXab");
  });
}

TEST_F(TypingOnWindows, TextLandsWhereItIsDroppedAndTheProgramsIsShownWhole) {
  play([&] {
    box.MaxLength = 2;
    box.Text = "abc";
    EXPECT_EQ(field().text(), "abc");
    box.MaxLength = 0;
    drop("X");  // at the left end
    EXPECT_EQ(form.ActiveControl(), &box);
    EXPECT_EQ(box.Text(), "Xabc");
  });
}

}  // namespace korvantes::desktop
