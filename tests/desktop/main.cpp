#include <cstdlib>
#include <gmock/gmock.h>

#include "desktop/application.h"
#include "scripts/windows/window_desktop.h"
#include "tests/screen/on_stage.h"

std::unique_ptr<korvantes::scripts::Stage> korvantes::screen::makeStage() {
  return std::make_unique<scripts::WindowDesktop>();
}

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  // Another platform can be asked for from outside.
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  // No printers, whatever the machine has.
  setenv("CUPS_SERVER", "127.0.0.1:1", 1);
  const korvantes::desktop::Application application("desktop_test");
  return RUN_ALL_TESTS();
}
