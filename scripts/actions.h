#pragma once

#include <string_view>

#include "scripts/run.h"

namespace korvantes::scripts {

/// Does what one line of a script says: a verb and its words. What happens goes to the transcript;
/// the events that it set off have run when this returns.
/// Throws Failure for a line that cannot be done, and what a screen that was being opened throws.
void performAction(Run& run, std::string_view line);

/// The action "ver": prints a control, one of its properties, a property of the form, "foco" or
/// "pantalla".
void showOnTranscript(Run& run, std::string_view subject);

}  // namespace korvantes::scripts
