#pragma once

#include <string_view>

#include "runtime/screen/desktop.h"

namespace korvantes::host {

// The version of the program, as VERSION.txt has it.
constexpr std::string_view kVersionText = KORVANTES_VERSION;
constexpr screen::ProgramVersion kVersion = {KORVANTES_VERSION_NUMBERS};

}  // namespace korvantes::host
