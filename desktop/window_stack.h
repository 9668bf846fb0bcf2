#pragma once

#include <QObject>
#include <cstddef>
#include <deque>
#include <exception>
#include <vector>

#include "runtime/screen/user_input.h"

class QWidget;

namespace korvantes::desktop {

class FormWindow;

/// The windows that the desktop has open, and the keys that wait for the topmost form: keys sent
/// by the program, and releases of the Enter that closed a dialog. They reach the form when no
/// dialog lies over it and the running event has ended, or when the program lets events run.
class WindowStack : public QObject {
 public:
  WindowStack();
  ~WindowStack() override;

  void opened(QWidget& window, FormWindow* form = nullptr);
  void closed(QWidget& window);
  /// A dialog came and went that a script answered without showing it.
  void passed() { changed(); }

  /// The topmost window, form or dialog; nullptr when none is open.
  QWidget* top() const { return windows_.empty() ? nullptr : windows_.back().widget; }
  /// The topmost form's window, also under a dialog; nullptr when none is open.
  FormWindow* topForm() const;
  /// The topmost one that is still to be seen: a form that was closed hides at once, and leaves the
  /// stack when its event has ended.
  QWidget* topVisible() const;
  /// The window that a new one belongs to; nullptr for none.
  QWidget* owner() const;
  /// Where the first form belongs to.
  void mainWindow(QWidget* window) { mainWindow_ = window; }
  QWidget* mainWindow() const { return mainWindow_; }
  /// Counts windows opened and closed.
  std::size_t changes() const { return changes_; }

  void sendKey(const screen::Key& key);
  /// A press of Enter closes the topmost dialog: its release is for the form right below it.
  void oweEnterRelease();
  /// Hands the waiting keys to the topmost form.
  void settle();

  /// An exception that must not pass through the toolkit, and the place behind it where it may
  /// travel on.
  void keepFailure(std::exception_ptr failure) { failure_ = std::move(failure); }
  void rethrow();

 private:
  struct Window {
    QWidget* widget;
    FormWindow* form;
  };
  struct Queued {
    screen::Key key;
    bool press = false;
    bool release = false;
  };

  bool eventFilter(QObject* object, QEvent* event) override;
  void changed();
  void settleLater();
  void run(const Queued& queued);

  std::vector<Window> windows_;
  std::deque<Queued> queue_;
  QWidget* mainWindow_ = nullptr;
  std::size_t changes_ = 0;
  bool enterOwed_ = false;
  bool settlingLater_ = false;
  std::exception_ptr failure_;
};

}  // namespace korvantes::desktop
