#include "desktop/modal_dialog.h"

#include <QKeyEvent>
#include <QPushButton>

#include "desktop/icons.h"
#include "desktop/keys.h"
#include "desktop/owned_child.h"
#include "desktop/window_stack.h"

namespace korvantes::desktop {

ModalDialog::ModalDialog(WindowStack& stack, const QString& title)
    : QDialog(stack.owner(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                 Qt::WindowCloseButtonHint),
      stack_(stack) {
  setWindowTitle(title);
  setWindowModality(Qt::ApplicationModal);
  setWindowIcon(iconNamed("liquidacion"));
}

ModalDialog::~ModalDialog() {
  if (onStack_) stack_.closed(*this);
}

void ModalDialog::open() {
  onStack_ = true;
  stack_.opened(*this);
  show();
  activateWindow();
}

void ModalDialog::done(int result) {
  if (!onStack_) return;
  QDialog::done(result);
  onStack_ = false;
  if (byEnter_) stack_.oweEnterRelease();
  stack_.closed(*this);
}

QPushButton& ModalDialog::addButton(const QString& caption) {
  auto& button = makeChild<QPushButton>(caption, this);
  button.setAutoDefault(false);
  button.setMinimumWidth(92);
  button.installEventFilter(this);
  return button;
}

void ModalDialog::closeByEnter(const std::function<void()>& act, const QKeyEvent& event) {
  // An Enter still held down from the window below must not answer.
  if (event.isAutoRepeat()) return;
  byEnter_ = true;
  act();
  byEnter_ = false;
}

bool ModalDialog::eventFilter(QObject* object, QEvent* event) {
  auto* button = dynamic_cast<QPushButton*>(object);
  if (button == nullptr || event->type() != QEvent::KeyPress)
    return QDialog::eventFilter(object, event);
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (!isEnter(key)) return false;
  closeByEnter([button] { button->click(); }, key);
  return true;
}

void ModalDialog::keyPressEvent(QKeyEvent* event) {
  if (isEnter(*event))
    closeByEnter([this] { enterPressed(); }, *event);
  else if (event->key() == Qt::Key_F4 && event->modifiers().testFlag(Qt::AltModifier))
    reject();
  else
    QDialog::keyPressEvent(event);
}

}  // namespace korvantes::desktop
