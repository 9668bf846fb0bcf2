#pragma once

#include <memory>
#include <string>

class QWidget;

namespace korvantes::desktop {

/// Starts and ends the window system: create it first in main, before any window, and destroy it
/// last.
///
/// It chooses the platform (windows if there is a display, otherwise Qt's offscreen one, on which
/// pictures and PDF still work), provides what Qt would otherwise warn about (a private runtime
/// folder, a UTF-8 character set), and sets style, fonts and Spanish texts. Only one at a time.
class Application {
 public:
  explicit Application(std::string programName = "korvantes");
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// Whether there is a display (DISPLAY or WAYLAND_DISPLAY is set).
  static bool displayAvailable();
  /// Whether anybody can see what is shown: false on the offscreen platform.
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
