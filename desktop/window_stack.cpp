#include "desktop/window_stack.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "desktop/form_window.h"
#include "desktop/keys.h"

namespace korvantes::desktop {

WindowStack::WindowStack() {
  QCoreApplication::instance()->installEventFilter(this);
}

WindowStack::~WindowStack() = default;

void WindowStack::opened(QWidget& window, FormWindow* form) {
  windows_.push_back({&window, form});
  changed();
}

void WindowStack::closed(QWidget& window) {
  std::erase_if(windows_, [&](const Window& each) { return each.widget == &window; });
  changed();
  FormWindow* const form = topForm();
  if (form == nullptr) {
    queue_.clear();
    enterOwed_ = false;
    return;
  }
  if (top() == form) form->takeFocusBack();
}

void WindowStack::changed() {
  ++changes_;
  // A release belongs to the window that saw the press.
  for (const Window& each : windows_)
    if (each.form != nullptr) each.form->forgetPresses();
  if (!queue_.empty()) settleLater();
}

FormWindow* WindowStack::topForm() const {
  for (auto each = windows_.rbegin(); each != windows_.rend(); ++each)
    if (each->form != nullptr) return each->form;
  return nullptr;
}

QWidget* WindowStack::topVisible() const {
  for (auto each = windows_.rbegin(); each != windows_.rend(); ++each)
    if (each->widget->isVisible()) return each->widget;
  return nullptr;
}

QWidget* WindowStack::owner() const {
  if (QWidget* top = topVisible()) return top;
  return mainWindow_ != nullptr ? mainWindow_ : QApplication::activeWindow();
}

void WindowStack::sendKey(const screen::Key& key) {
  queue_.push_back({key, true, true});
  settleLater();
}

void WindowStack::oweEnterRelease() {
  enterOwed_ = windows_.size() > 1 && windows_[windows_.size() - 2].form != nullptr;
}

/// The release of the Enter that closed a dialog arrives wherever the window system has put the
/// focus in the meantime.
bool WindowStack::eventFilter(QObject*, QEvent* event) {
  if (!enterOwed_) return false;
  if (event->type() != QEvent::KeyRelease && event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (!isEnter(key) || key.isAutoRepeat()) return false;
  enterOwed_ = false;
  if (event->type() == QEvent::KeyPress)
    return false;  // pressed again: the earlier release is lost
  queue_.push_back({screen::keyTyping(U'\r'), false, true});
  settleLater();
  return true;
}

void WindowStack::settleLater() {
  if (std::exchange(settlingLater_, true)) return;
  QTimer::singleShot(0, this, [this] {
    settlingLater_ = false;
    FormWindow* const form = topForm();
    if (form != nullptr && top() == form) settle();
  });
}

void WindowStack::settle() {
  // Keys that a closing form has not received go to the form below once it is on top.
  while (!queue_.empty() && topForm() != nullptr && topForm()->form().loaded()) {
    const Queued next = queue_.front();
    queue_.pop_front();
    run(next);
  }
}

void WindowStack::run(const Queued& queued) {
  const std::size_t before = changes_;
  if (queued.press) topForm()->report([&](screen::UserInput& user) { user.keyDown(queued.key); });
  FormWindow* const form = topForm();
  if (queued.release && changes_ == before && form != nullptr)
    form->report([&](screen::UserInput& user) { user.keyUp(queued.key); });
}

void WindowStack::rethrow() {
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

}  // namespace korvantes::desktop
