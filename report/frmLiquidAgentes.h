// report: the screen on which stored settlements are searched, printed and exported.
#pragma once

#include "outside/screen/form.h"

namespace korvantes {

/// Search of stored settlements.
class frmLiquidAgentes : public screen::Form {
 public:
  frmLiquidAgentes();
};

}  // namespace korvantes
