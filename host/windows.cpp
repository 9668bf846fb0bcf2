#include "host/windows.h"

#include <cstdlib>

#include "host/desktop_window.h"
#include "host/display.h"
#include "host/office_windows.h"
#include "scripts/failure.h"
#include "scripts/windows/window_desktop.h"

namespace korvantes::host {

bool hasWindows() {
  return true;
}

bool displayAvailable() {
  return displayAnswers();
}

std::unique_ptr<scripts::Stage> makeWindowStage() {
  if (!displayAvailable()) ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  return std::make_unique<scripts::WindowStage>();
}

void runDesktop(const CommandLine& line) {
  // Nobody could close a window that is not visible. Naming a platform overrides this.
  if (!displayAvailable() && std::getenv("QT_QPA_PLATFORM") == nullptr)
    throw Failure("--escritorio: no hay pantalla; véase --ayuda");
  desktop::Application application;
  desktop::QtDesktop desktop;
  if (line.regional) desktop.regional(*line.regional);
  offerDocumentsOnWindows(desktop);
  // No screen may use the desktop once its destruction begins.
  struct Current {
    explicit Current(screen::Desktop& desktop) { screen::Desktop::makeCurrent(&desktop); }
    ~Current() { screen::Desktop::makeCurrent(nullptr); }
  } const current(desktop);
  DesktopWindow window(desktop);
  window.openBase(line.base);
  application.run(window);
}

}  // namespace korvantes::host
