// Ways for text to get into a field, and the caret and selection there.
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <gmock/gmock.h>

#include "desktop/input_events.h"
#include "tests/desktop/stages.h"

namespace korvantes::desktop {

namespace {

using Typing = OnWindows;

QLineEdit& fieldOf(const screen::TextBox& box) {
  return static_cast<QLineEdit&>(widgetOf(box));
}

void drop(QLineEdit& field, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter(QPoint(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&field, &enter);
  QDropEvent event(QPointF(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&field, &event);
}

void compose(QLineEdit& field, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QCoreApplication::sendEvent(&field, &event);
}

}  // namespace

TEST(KeyFilter, AndLengthHoldForEveryWayIntoAField) {
  const std::vector<std::function<void(Robot&, QLineEdit&)>> ways{
      [](Robot& robot, QLineEdit&) { robot.type("1x2-3456789"); },
      [](Robot& robot, QLineEdit&) {
        QGuiApplication::clipboard()->setText("1x2-3456789");
        robot.stroke(*screen::keyNamed("Ctrl+V"));
      },
      [](Robot& robot, QLineEdit&) { robot.paste("1x2-3456789"); },
      [](Robot&, QLineEdit& field) { drop(field, "1x2-3456789"); },
      [](Robot&, QLineEdit& field) { compose(field, "1x2-3456789"); },
  };
  for (const auto& way : ways) {
    RealStage desktop;
    SampleForm form;
    playReal(desktop, form, [&](Robot& robot) {
      QLineEdit& field = fieldOf(form.Text1(0));
      way(robot, field);
      EXPECT_EQ(form.Text1(0).Text(), "123456");
      EXPECT_EQ(field.text(), "123456");
    });
  }
}

TEST_F(Typing, ReadOnlyFieldsTakeNothingAndCanBeCopied) {
  form.Text1(1).Text = "1.234,56";
  form.Text1(1).Locked = true;
  play([&](Robot& robot) {
    robot.moveFocus(form.Text1(1));
    robot.type("9");
    drop(fieldOf(form.Text1(1)), "9");
    robot.stroke(*screen::keyNamed("Ctrl+A"));
    robot.stroke(*screen::keyNamed("Ctrl+C"));
    robot.stroke(*screen::keyNamed("Ctrl+X"));
    EXPECT_EQ(form.Text1(1).Text(), "1.234,56");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1.234,56");
  });
}

TEST_F(Typing, CutTakesTheSelectionOutThroughTheModel) {
  form.Text1(1).Text = "abcdef";
  play([&](Robot& robot) {
    robot.moveFocus(form.Text1(1));
    robot.stroke(*screen::keyNamed("Mayús+Left"));
    robot.stroke(*screen::keyNamed("Mayús+Left"));
    EXPECT_EQ(fieldOf(form.Text1(1)).selectedText(), "ef");
    robot.stroke(*screen::keyNamed("Ctrl+X"));
    EXPECT_EQ(form.Text1(1).Text(), "abcd");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "ef");
    robot.type("z");
    EXPECT_EQ(fieldOf(form.Text1(1)).text(), "abcdz");
    EXPECT_EQ(fieldOf(form.Text1(1)).cursorPosition(), 5);
  });
}

TEST_F(Typing, MousePlacesTheModelsCaretInCharacters) {
  form.Text1(1).Text = "\U0001F600ñab";  // the first character takes two of Qt's units
  play([&](Robot& robot) {
    robot.moveFocus(form.Text1(1));
    QLineEdit& field = fieldOf(form.Text1(1));
    EXPECT_EQ(form.Text1(1).SelStart(), 4);
    EXPECT_EQ(field.cursorPosition(), 5);
    field.setCursorPosition(3);
    const QPoint behindSecond = field.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    field.setCursorPosition(5);
    sendClick(field, behindSecond);
    EXPECT_EQ(form.Text1(1).SelStart(), 2);
    robot.type("X");
    EXPECT_EQ(form.Text1(1).Text(), "\U0001F600ñXab");
  });
}

TEST_F(Typing, WhatIsDroppedLandsWhereItIsDropped) {
  form.Text1(1).Text = "abc";
  play([&](Robot&) {
    drop(fieldOf(form.Text1(1)), "X");  // at the left end
    EXPECT_EQ(form.ActiveControl(), &form.Text1(1));
    EXPECT_EQ(form.Text1(1).Text(), "Xabc");
  });
}

TEST_F(Typing, ProgramsTextIsShownWholeWhateverTheMaximum) {
  play([&](Robot&) {
    form.Text1(0).Text = "123456789012";
    EXPECT_EQ(fieldOf(form.Text1(0)).text(), "123456789012");
  });
}

}  // namespace korvantes::desktop
