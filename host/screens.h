#pragma once

#include "component/KORVAN.h"
#include "scripts/screens.h"

namespace korvantes::host {

/// The screens of the component: liquidacion (empty, or with the number of a stored settlement, as
/// the report screen opens it), informe, agentes. Throw Failure for a number where none is
/// expected; exceptions of a loading form propagate.
scripts::Screens screensOf(KORVAN& component);

}  // namespace korvantes::host
