#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "component/KORVAN.h"

namespace korvantes::host {

/// The screens that can be opened, by the names that scripts use. Each opens its screen modally and
/// returns when it has been closed; a number, where the screen takes one, is the stored document to
/// open it on.
using Screens =
    std::map<std::string, std::function<void(std::optional<std::int32_t> number)>, std::less<>>;

/// Those of the component: liquidacion (on an empty settlement, or with a number on that one, as
/// the report screen opens it), informe, agentes. Throw Failure for a number that is not taken, and
/// what a form throws while it is loaded.
Screens screensOf(KORVAN& component);

}  // namespace korvantes::host
