// agents: the master screen of the commission agents.
#pragma once

#include "outside/screen/form.h"

namespace korvantes {

/// Master of the commission agents.
class frmAgentes : public screen::Form {
 public:
  frmAgentes();
};

}  // namespace korvantes
