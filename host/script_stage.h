#pragma once

#include "host/queued_answers.h"
#include "host/screens.h"
#include "host/transcript.h"
#include "outside/ado/connection.h"
#include "outside/screen/headless_desktop.h"

namespace korvantes::host {

/// What the actions of a script act on.
struct ScriptStage {
  screen::HeadlessDesktop& desktop;
  ado::Connection& base;
  const Screens& screens;
  Transcript& transcript;
  QueuedAnswers& answers;

  /// The topmost form. Throws Failure when none is open.
  screen::Form& form() const;
};

}  // namespace korvantes::host
