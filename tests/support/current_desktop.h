#pragma once

#include "scripts/headless_desktop.h"

namespace korvantes::support {

/// A desktop without windows and with Spanish settings, the current one while it exists.
class CurrentDesktop : public scripts::HeadlessDesktop {
 public:
  CurrentDesktop() { regional(screen::Regional::named("es-ES")); }
  ~CurrentDesktop() override { makeCurrent(former_); }

 private:
  screen::Desktop* former_ = makeCurrent(this);
};

}  // namespace korvantes::support
