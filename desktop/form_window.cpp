#include "desktop/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <utility>

#include "desktop/icons.h"
#include "desktop/keys.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"
#include "desktop/window_stack.h"

namespace korvantes::desktop {

namespace {

/// Graphical controls are below those that take input, in whatever order they were created.
bool isGraphical(const screen::Control& control) {
  using Kind = screen::Control::Kind;
  return control.kind() == Kind::Label || control.kind() == Kind::Image ||
         control.kind() == Kind::Shape;
}

}  // namespace

FormWindow::FormWindow(screen::Form& form, WindowStack& stack, QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint),
      form_(form),
      stack_(stack),
      scroll_(makeChild<QScrollArea>(this)),
      canvas_(makeChild<QWidget>()) {
  // The main window ignores input itself, so that it can be closed while a form is open.
  const bool onMainWindow = parent != nullptr && parent == stack.mainWindow();
  setWindowModality(onMainWindow ? Qt::NonModal : Qt::ApplicationModal);
  setFocusPolicy(Qt::NoFocus);
  setWindowIcon(iconNamed("liquidacion"));
  scroll_.setFocusPolicy(Qt::NoFocus);
  scroll_.setFrameShape(QFrame::NoFrame);
  canvas_.setAutoFillBackground(true);
  makeFaces();
  showForm();
  scroll_.setWidget(&canvas_);
  stackFaces();
  form_.observe(this);
}

FormWindow::~FormWindow() {
  if (form_.observer() == this) form_.observe(nullptr);
}

void FormWindow::makeFaces() {
  // Frames first, and the outer before the inner: they are the parents of their contents.
  const std::function<QWidget&(const screen::Frame*)> parentIn =
      [&](const screen::Frame* frame) -> QWidget& {
    if (frame == nullptr) return canvas_;
    const auto known = faces_.find(frame);
    if (known != faces_.end()) return known->second->widget();
    QWidget& parent = parentIn(frame->container());
    auto face = makeFaceOf(const_cast<screen::Frame&>(*frame), *this, parent);
    return faces_.emplace(frame, std::move(face)).first->second->widget();
  };
  for (screen::Control* control : form_.controls()) {
    if (faces_.contains(control)) continue;
    if (control->kind() == screen::Control::Kind::Frame) {
      parentIn(static_cast<screen::Frame*>(control));
      continue;
    }
    auto face = makeFaceOf(*control, *this, parentIn(control->container()));
    if (face != nullptr) faces_.emplace(control, std::move(face));
  }
  for (const auto& [control, face] : faces_) {
    face->widget().installEventFilter(this);
    face->place();
    face->show();
    face->showRows();
  }
}

void FormWindow::stackFaces() {
  for (const bool graphical : {true, false})
    for (const screen::Control* control : form_.controls())
      if (ControlFace* face = faceOf(*control);
          face != nullptr && isGraphical(*control) == graphical)
        face->widget().raise();
}

void FormWindow::showForm() {
  setWindowTitle(toQt(form_.Caption()));
  QPalette colors = canvas_.palette();
  colors.setColor(QPalette::Window, colorOf(form_.BackColor()));
  canvas_.setPalette(colors);
  const QSize size(pixels(form_.Width()), pixels(form_.Height()));
  canvas_.setFixedSize(size);
  // If the screen is smaller than the form, so is the window, which then scrolls. The size of the
  // offscreen platform's screen does not matter, and pictures of forms must be complete.
  const bool seen = QGuiApplication::platformName() != QLatin1String("offscreen");
  const QSize most = screen()->availableSize() - QSize(16, 48);
  const QSize shown = seen ? size.boundedTo(most) : size;
  if (shown == size) {
    setFixedSize(size);
  } else {
    setMaximumSize(size);
    resize(shown);
  }
  scroll_.setGeometry(QRect(QPoint(), shown));
}

void FormWindow::open() {
  show();
  activateWindow();
  stack_.opened(*this, this);
  report([](screen::UserInput& user) { user.shown(); });
}

void FormWindow::waitUntilClosed() {
  if (!form_.loaded()) return;
  QEventLoop loop;
  loop_ = &loop;
  loop.exec();
  loop_ = nullptr;
}

void FormWindow::report(const Action& action) {
  screen::UserInput user(form_);
  try {
    action(user);
  } catch (...) {
    // Exceptions must not pass through Qt: this one propagates from the call that shows the form.
    stack_.keepFailure(std::current_exception());
    if (loop_ != nullptr) loop_->quit();
  }
  showNow();
}

void FormWindow::showNow() {
  showingLater_ = false;
  if (!form_.loaded()) return;
  for (ControlFace* face : std::exchange(rowsToShow_, {})) face->showRows();
  syncFocus();
}

void FormWindow::takeFocusBack() {
  if (!form_.loaded()) return;
  if (QApplication::activeWindow() != this) activateWindow();
  syncFocus();
}

/// Sets Qt's focus to the widget of the model's active control, or to the window, so that keys
/// still reach the form.
void FormWindow::syncFocus() {
  if (stack_.top() != this) return;
  const screen::Control* active = form_.ActiveControl();
  ControlFace* face = active != nullptr ? faceOf(*active) : nullptr;
  QWidget* target = face != nullptr ? &face->widget() : this;
  if (focusWidget() == target && target->hasFocus()) return;
  target->setFocus(Qt::OtherFocusReason);
  if (face != nullptr) {
    face->show();
    reveal(*active);
  }
}

void FormWindow::reveal(const screen::Control& control) {
  if (ControlFace* face = faceOf(control)) scroll_.ensureWidgetVisible(&face->widget(), 8, 8);
}

ControlFace* FormWindow::faceOf(const screen::Control& control) const {
  const auto known = faces_.find(&control);
  return known == faces_.end() ? nullptr : known->second.get();
}

void FormWindow::propertyChanged(screen::Control* control, const screen::PropertyBase& property) {
  if (control == nullptr) {
    if (&property == &form_.Caption || &property == &form_.BackColor || &property == &form_.Width ||
        &property == &form_.Height)
      showForm();
    return;
  }
  ControlFace* face = faceOf(*control);
  if (face == nullptr) return;
  const bool moved = &property == &control->Left || &property == &control->Top ||
                     &property == &control->Width || &property == &control->Height;
  if (moved) face->place();
  face->show();
  // The contents of a frame look disabled with it.
  if (&property == &control->Enabled && control->kind() == screen::Control::Kind::Frame)
    for (const auto& [each, other] : faces_)
      if (each->container() != nullptr) other->show();
}

void FormWindow::rowsChanged(screen::Control& control) {
  if (ControlFace* face = faceOf(control)) rowsToShow_.insert(face);
  showLater();
}

void FormWindow::activeControlChanged() {
  // The field left shows its beginning, the one entered its caret.
  for (const auto& [control, face] : faces_)
    if (control->kind() == screen::Control::Kind::TextBox) face->show();
  showLater();
}

/// For changes outside a user action, and in long events that let others run.
void FormWindow::showLater() {
  if (std::exchange(showingLater_, true)) return;
  QTimer::singleShot(0, this, [this] {
    if (showingLater_) showNow();
  });
}

void FormWindow::unloaded() {
  hide();
  if (loop_ != nullptr) loop_->quit();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (stack_.topVisible() == this) report([](screen::UserInput& user) { user.close(); });
  event->setAccepted(!form_.loaded());
}

bool FormWindow::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:  // no key of a form is a shortcut of Qt
      event->accept();
      return true;
    case QEvent::KeyPress:
      keyPressed(static_cast<QKeyEvent&>(*event));
      return true;
    case QEvent::KeyRelease:
      keyReleased(static_cast<QKeyEvent&>(*event));
      return true;
    default:
      return QWidget::eventFilter(object, event);
  }
}

/// Keys arrive here while no control has the focus.
bool FormWindow::event(QEvent* event) {
  const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                   event->type() == QEvent::ShortcutOverride;
  return key ? eventFilter(this, event) : QWidget::event(event);
}

void FormWindow::keyPressed(const QKeyEvent& event) {
  if (stack_.top() != this) return;
  const quint64 identity = pressIdentity(event);
  // A key held down since before this window came to the top does nothing here.
  if (event.isAutoRepeat() && !pressed_.contains(identity)) return;
  const screen::Key key = keyOf(event);
  pressed_[identity] = key.code;
  report([&](screen::UserInput& user) { user.keyDown(key); });
  if (!form_.loaded() || form_.ActiveControl() == nullptr) return;
  if (ControlFace* face = faceOf(*form_.ActiveControl())) face->command(event);
}

void FormWindow::keyReleased(const QKeyEvent& event) {
  const auto press = pressed_.find(pressIdentity(event));
  if (event.isAutoRepeat() || press == pressed_.end()) return;
  // If Shift is released first, it is another key for Qt, but not for the user.
  screen::Key key = keyOf(event);
  key.code = press->second;
  pressed_.erase(press);
  report([&](screen::UserInput& user) { user.keyUp(key); });
}

}  // namespace korvantes::desktop
