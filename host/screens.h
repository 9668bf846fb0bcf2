#pragma once

#include "component/KORVAN.h"
#include "scripts/screens.h"

namespace korvantes::host {

/// Those of the component: liquidacion (on an empty settlement, or with a number on that one, as
/// the report screen opens it), informe, agentes. Throw Failure for a number that is not taken, and
/// what a form throws while it is loaded.
scripts::Screens screensOf(KORVAN& component);

}  // namespace korvantes::host
