#pragma once

#include <memory>

#include "host/command_line.h"
#include "scripts/stage.h"

namespace korvantes::host {

// What the program does with real windows. In a build without them, the functions that need windows
// throw Failure.

/// Whether the program was built with windows.
bool hasWindows();
/// Whether there is a display to show them on.
bool displayAvailable();

/// A stage of real windows, on the display or, without one, drawn in memory. One at a time.
std::unique_ptr<scripts::Stage> makeWindowStage();

/// Opens the main window and returns when it has been closed. Throws Failure without a display.
void runDesktop(const CommandLine& line);

}  // namespace korvantes::host
