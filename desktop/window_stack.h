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

/// The desktop's open windows, and the keys waiting for the topmost form: keys sent by the program,
/// and the release of the Enter that closed a dialog. They reach the form when no dialog is above
/// it and the running event has ended, or when the program lets events run.
class WindowStack : public QObject {
 public:
  WindowStack();
  ~WindowStack() override;

  void opened(QWidget& window, FormWindow* form = nullptr);
  void closed(QWidget& window);
  /// Call it when a dialog was answered without being shown.
  void passed() { changed(); }

  /// The topmost window, form or dialog; nullptr if none is open.
  QWidget* top() const { return windows_.empty() ? nullptr : windows_.back().widget; }
  /// The topmost form's window, also under a dialog; nullptr if none is open.
  FormWindow* topForm() const;
  /// The topmost visible one: a closed form hides at once, but leaves the stack only when its event
  /// has ended.
  QWidget* topVisible() const;
  /// The parent of a new window; nullptr for none.
  QWidget* owner() const;
  /// The parent of the first form.
  void mainWindow(QWidget* window) { mainWindow_ = window; }
  QWidget* mainWindow() const { return mainWindow_; }
  /// Counts windows opened and closed.
  std::size_t changes() const { return changes_; }

  void sendKey(const screen::Key& key);
  /// A press of Enter is closing the topmost dialog: its release belongs to the form directly
  /// below.
  void oweEnterRelease();
  /// Hands the waiting keys to the topmost form.
  void settle();

  /// Keeps an exception that must not pass through Qt until rethrow, called outside it, lets it
  /// propagate.
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
