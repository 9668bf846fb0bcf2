#include <cstdlib>
#include <gmock/gmock.h>

#include "desktop/application.h"
#include "scripts/windows/window_desktop.h"
#include "tests/screen/on_stage.h"

namespace korvantes::screen {

StageKind stageKind() {
  return {"windows", [] { return std::unique_ptr<scripts::Stage>(new scripts::WindowDesktop); }};
}

}  // namespace korvantes::screen

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  // Another platform can be asked for from outside.
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  // No printers, whatever the machine has.
  setenv("CUPS_SERVER", "127.0.0.1:1", 1);
  const korvantes::desktop::Application application("desktop_test");
  return RUN_ALL_TESTS();
}
