#pragma once

#include <memory>
#include <string>

class QWidget;

namespace korvantes::desktop {

/// Guard of the window system: made first in main, before any window, and ended last.
///
/// It chooses the platform (windows where there is a display, otherwise Qt's offscreen one, on
/// which pictures and PDF still work), gives the process what Qt would complain about when missing
/// (a private runtime folder, a UTF-8 character set), and sets look, type and Spanish words. One at
/// a time.
class Application {
 public:
  explicit Application(std::string programName = "korvantes");
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// A display is there (DISPLAY or WAYLAND_DISPLAY is set).
  static bool displayAvailable();
  /// What is shown can be seen by somebody: false on the offscreen platform.
  bool visible() const;

  /// Shows the main window and returns when it has been closed.
  int run(QWidget& mainWindow);

 private:
  struct Environment;
  struct Toolkit;
  std::unique_ptr<Environment> environment_;
  std::unique_ptr<Toolkit> toolkit_;
};

}  // namespace korvantes::desktop
