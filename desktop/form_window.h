#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <set>

#include "desktop/control_face.h"

class QEventLoop;
class QScrollArea;

namespace korvantes::desktop {

class WindowStack;

/// The window of one form. It shows the state of the form's controls, reports what the user does,
/// and keeps Qt's focus where the model has it: Qt does not move the focus on its own, and its
/// focus events are ignored.
class FormWindow : public QWidget, public FaceWindow, private screen::FormObserver {
 public:
  FormWindow(screen::Form& form, WindowStack& stack, QWidget* parent);
  ~FormWindow() override;

  void report(const Action& action) override;
  const screen::Form& form() const override { return form_; }

  /// Shows the window and gives the first control the focus.
  void open();
  /// Returns when the form has been unloaded or the application ends.
  void waitUntilClosed();
  /// Call it when a window above was opened or closed: the form ignores the release of keys pressed
  /// before.
  void forgetPresses() { pressed_.clear(); }
  /// The window is on top again.
  void takeFocusBack();

  /// nullptr for a control without a face.
  ControlFace* faceOf(const screen::Control& control) const;
  /// Scrolls to a control if the screen is smaller than the form.
  void reveal(const screen::Control& control);
  /// Shows rows and focus at once instead of in the next turn of the event loop.
  void showNow();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }

 private:
  void propertyChanged(screen::Control* control, const screen::PropertyBase& property) override;
  void rowsChanged(screen::Control& control) override;
  void activeControlChanged() override;
  void unloaded() override;

  void makeFaces();
  void stackFaces();
  void showForm();
  void showLater();
  void syncFocus();
  void keyPressed(const QKeyEvent& event);
  void keyReleased(const QKeyEvent& event);

  screen::Form& form_;
  WindowStack& stack_;
  QScrollArea& scroll_;
  QWidget& canvas_;
  std::map<const screen::Control*, std::unique_ptr<ControlFace>> faces_;
  std::set<ControlFace*> rowsToShow_;
  std::map<quint64, int> pressed_;  ///< codes of the keys that are down, by pressIdentity
  bool showingLater_ = false;
  QEventLoop* loop_ = nullptr;
};

}  // namespace korvantes::desktop
