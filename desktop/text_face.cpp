#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>

#include "desktop/control_face.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

/// Position in a QString of character `index`; the model counts characters, Qt UTF-16 units.
int toQtPlace(const QString& text, int index) {
  int place = 0;
  for (; index > 0 && place < text.size(); --index)
    place += text.at(place).isHighSurrogate() && place + 1 < text.size() ? 2 : 1;
  return place;
}

int fromQtPlace(const QString& text, int place) {
  int index = 0;
  for (int i = 0; i < place && i < text.size(); ++index)
    i += text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
  return index;
}

/// A text field. Qt draws text, caret and selection; what is typed, pasted, dropped or composed
/// goes to the model, which filters it, and the field then shows the model's text.
class TextWidget : public QLineEdit {
 public:
  TextWidget(screen::TextBox& box, FaceWindow& window, QWidget& parent)
      : QLineEdit(&parent), box_(box), window_(window) {
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    setAcceptDrops(true);
  }

  void showSelection() {
    if (selecting_) return;
    const int start = toQtPlace(text(), box_.SelStart());
    const int end = toQtPlace(text(), box_.SelStart() + box_.SelLength());
    if (end > start)
      setSelection(start, end - start);
    else if (cursorPosition() != start || hasSelectedText())
      setCursorPosition(start);
  }

  void copySelection(QClipboard::Mode mode = QClipboard::Clipboard) const {
    if (hasSelectedText()) QGuiApplication::clipboard()->setText(selectedText(), mode);
  }
  void cut() {
    if (!hasSelectedText()) return;
    copySelection();
    window_.report([](screen::UserInput& user) { user.keyDown({screen::key::Delete, 0, 0}); });
  }
  void pasteFrom(QClipboard::Mode mode) { give(QGuiApplication::clipboard()->text(mode)); }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    const bool hadFocus = hasModelFocus();
    window_.report([&](screen::UserInput& user) { user.moveFocus(box_); });
    if (!hasModelFocus() || event->button() != Qt::LeftButton) return;
    // Keep a selection that the model made when the focus arrived.
    if (!hadFocus && box_.SelLength() > 0) return;
    selectByMouse([&] { QLineEdit::mousePressEvent(event); });
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons().testFlag(Qt::LeftButton) && hasModelFocus())
      selectByMouse([&] { QLineEdit::mouseMoveEvent(event); });
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (!hasModelFocus()) return;
    if (event->button() == Qt::MiddleButton) {
      if (!QGuiApplication::clipboard()->supportsSelection()) return;
      moveCaret(event->position());
      pasteFrom(QClipboard::Selection);
    } else if (event->button() == Qt::LeftButton) {
      if (QGuiApplication::clipboard()->supportsSelection()) copySelection(QClipboard::Selection);
    }
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && hasModelFocus())
      selectByMouse([&] { QLineEdit::mouseDoubleClickEvent(event); });
  }

  void dragEnterEvent(QDragEnterEvent* event) override {
    if (event->mimeData()->hasText()) event->acceptProposedAction();
  }
  void dragMoveEvent(QDragMoveEvent* event) override { event->acceptProposedAction(); }
  void dragLeaveEvent(QDragLeaveEvent*) override {}
  void dropEvent(QDropEvent* event) override {
    const QString text = event->mimeData()->text();
    event->acceptProposedAction();
    window_.report([&](screen::UserInput& user) { user.moveFocus(box_); });
    if (!hasModelFocus()) return;
    moveCaret(event->position());
    give(text);
  }

  /// Text being composed is shown; composed text is pasted.
  void inputMethodEvent(QInputMethodEvent* event) override {
    const QString composed = event->commitString();
    QInputMethodEvent preedit(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&preedit);
    if (!composed.isEmpty()) give(composed);
    event->accept();
  }

  void contextMenuEvent(QContextMenuEvent* event) override {
    if (!hasModelFocus()) return;
    auto& menu = makeChild<QMenu>(this);
    menu.setAttribute(Qt::WA_DeleteOnClose);
    const bool writable = !box_.Locked();
    const auto add = [&menu](const QString& text, bool enabled, auto action) {
      menu.addAction(text, action)->setEnabled(enabled);
    };
    add("Cor&tar", writable && hasSelectedText(), [this] { cut(); });
    add("&Copiar", hasSelectedText(), [this] { copySelection(); });
    add("&Pegar", writable, [this] { pasteFrom(QClipboard::Clipboard); });
    menu.addSeparator();
    add("&Seleccionar todo", !text().isEmpty(), [this] {
      window_.report([](screen::UserInput& user) {
        user.keyDown({'A', screen::key::ControlBit, 0});
      });
    });
    menu.popup(event->globalPos());
  }

 private:
  bool hasModelFocus() const { return window_.form().ActiveControl() == &box_; }

  void moveCaret(const QPointF& place) {
    box_.SelStart = fromQtPlace(text(), cursorPositionAt(place.toPoint()));
    box_.SelLength = 0;
  }

  void give(const QString& text) {
    if (text.isEmpty()) return;
    window_.report([&](screen::UserInput& user) { user.paste(fromQt(text)); });
  }

  /// Lets Qt move caret and selection, and reports them to the model.
  void selectByMouse(const std::function<void()>& move) {
    const QScopedValueRollback guard(selecting_, true);
    move();
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int end = hasSelectedText() ? selectionEnd() : cursorPosition();
    box_.SelStart = fromQtPlace(text(), start);
    box_.SelLength = fromQtPlace(text(), end) - fromQtPlace(text(), start);
  }

  screen::TextBox& box_;
  FaceWindow& window_;
  bool selecting_ = false;
};

class TextFace : public ControlFace {
 public:
  TextFace(screen::TextBox& box, FaceWindow& window, QWidget& parent)
      : ControlFace(box, window), box_(box), widget_(makeChild<TextWidget>(box, window, parent)) {}

  QWidget& widget() const override { return widget_; }

  void command(const QKeyEvent& event) override {
    if (event.matches(QKeySequence::Copy))
      widget_.copySelection();
    else if (event.matches(QKeySequence::Cut) && !box_.Locked())
      widget_.cut();
    else if (event.matches(QKeySequence::Paste))
      widget_.pasteFrom(QClipboard::Clipboard);
  }

 protected:
  void showControl() override {
    widget_.setFont(fontOf(box_.TextFont()));
    widget_.setAlignment(alignmentOf(box_.TextAlignment()) | Qt::AlignVCenter);
    widget_.setReadOnly(box_.Locked());
    showColors();
    const QString text = toQt(box_.Text());
    if (widget_.text() != text) widget_.setText(text);
    showSelection();
  }

 private:
  /// A field that cannot be edited is tinted with the colour around it; its text keeps full
  /// contrast, because such fields show computed amounts.
  void showColors() {
    QColor back = colorOf(box_.BackColor());
    if (!looksEnabled() || box_.Locked()) back = mixed(back, colorOf(background()), 0.45);
    QPalette colors = widget_.palette();
    colors.setColor(QPalette::Base, back);
    colors.setColor(QPalette::Text, colorOf(box_.ForeColor()));
    colors.setColor(QPalette::WindowText, colorOf(box_.ForeColor()));
    if (colors != widget_.palette()) widget_.setPalette(colors);
  }

  /// A text too long for the field shows its beginning while the focus is elsewhere.
  void showSelection() {
    if (window().form().ActiveControl() == &box_)
      widget_.showSelection();
    else if (widget_.cursorPosition() != 0 || widget_.hasSelectedText())
      widget_.setCursorPosition(0);
  }

  screen::TextBox& box_;
  TextWidget& widget_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::TextBox& box, FaceWindow& window, QWidget& parent) {
  return std::make_unique<TextFace>(box, window, parent);
}

}  // namespace korvantes::desktop
