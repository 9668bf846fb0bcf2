#include "host/windows.h"

#include <cstdlib>

#include "host/desktop_window.h"
#include "host/display.h"
#include "host/office_windows.h"
#include "scripts/failure.h"
#include "scripts/window_stage.h"

namespace korvantes::host {

bool hasWindows() {
  return true;
}

bool displayAvailable() {
  return displayAnswers();
}

std::unique_ptr<scripts::ScriptStage> makeWindowStage() {
  if (!displayAvailable()) ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  return std::make_unique<scripts::WindowStage>();
}

void runDesktop(const CommandLine& line) {
  // A window that nobody sees could not be closed either. Whoever names a platform knows why.
  if (!displayAvailable() && std::getenv("QT_QPA_PLATFORM") == nullptr)
    throw Failure("--escritorio: no hay pantalla; véase --ayuda");
  desktop::Application application;
  desktop::QtDesktop desktop;
  if (line.regional) desktop.regional(*line.regional);
  offerDocumentsOnWindows(desktop);
  // Before the desktop goes, no screen may look for it any more.
  struct Current {
    explicit Current(screen::Desktop& desktop) { screen::Desktop::makeCurrent(&desktop); }
    ~Current() { screen::Desktop::makeCurrent(nullptr); }
  } const current(desktop);
  DesktopWindow window(desktop);
  window.openBase(line.base);
  application.run(window);
}

}  // namespace korvantes::host
