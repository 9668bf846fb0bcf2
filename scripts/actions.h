#pragma once

#include <string_view>

#include "scripts/run.h"

namespace korvantes::scripts {

/// Performs one line of a script: a verb and its words. What happens is written to the transcript;
/// the resulting events have run when this returns.
/// Throws Failure for a line that cannot be done; exceptions of a screen being opened propagate.
void performAction(Run& run, std::string_view line);

/// The action "ver": prints a control, one of its properties, a property of the form, "foco" or
/// "pantalla".
void showOnTranscript(Run& run, std::string_view subject);

}  // namespace korvantes::scripts
