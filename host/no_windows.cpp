#include "host/windows.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

Failure refusal() {
  return Failure("--escritorio: esta versión del programa no lleva ventanas");
}

}  // namespace

bool hasWindows() {
  return false;
}

bool displayAvailable() {
  return false;
}

std::unique_ptr<scripts::Stage> makeWindowStage() {
  throw refusal();
}

void runDesktop(const CommandLine&) {
  throw refusal();
}

}  // namespace korvantes::host
