#include "scripts/headless_desktop.h"
#include "tests/screen/on_stage.h"

std::unique_ptr<korvantes::scripts::Stage> korvantes::screen::makeStage() {
  return std::make_unique<scripts::HeadlessDesktop>();
}
