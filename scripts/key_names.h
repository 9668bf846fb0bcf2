#pragma once

#include <optional>
#include <string_view>

#include "runtime/screen/key.h"

namespace korvantes::scripts {

/// The key that a script names: "Enter", "Tab", "Escape", "F1", "Mayús+Tab", "Alt+B", or the
/// character that it types. Empty for an unknown name.
std::optional<screen::Key> keyNamed(std::string_view name);

}  // namespace korvantes::scripts
