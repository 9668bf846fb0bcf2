#include "scripts/headless_desktop.h"
#include "tests/screen/on_stage.h"

namespace korvantes::screen {

StageKind stageKind() {
  return {"headless", [] { return std::unique_ptr<scripts::Stage>(new scripts::HeadlessDesktop); }};
}

}  // namespace korvantes::screen
