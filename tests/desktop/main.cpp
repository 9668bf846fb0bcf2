// Also the main function of host_window_test.
#include <cstdlib>
#include <gmock/gmock.h>

#include "desktop/application.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  // Another platform can be asked for from outside.
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  // No printers, whatever the machine has.
  setenv("CUPS_SERVER", "127.0.0.1:1", 1);
  const korvantes::desktop::Application application("korvantes-test");
  return RUN_ALL_TESTS();
}
