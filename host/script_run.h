#pragma once

#include "host/queued_answers.h"
#include "host/screens.h"
#include "host/script_pictures.h"
#include "host/script_stage.h"
#include "host/transcript.h"
#include "outside/ado/connection.h"

namespace korvantes::host {

/// What the actions of a script act on.
struct ScriptRun {
  ScriptStage& stage;
  ado::Connection& base;
  const Screens& screens;
  Transcript& transcript;
  QueuedAnswers& answers;
  ScriptPictures& pictures;

  /// The topmost form. Throws Failure when none is open.
  screen::Form& form() const;
};

}  // namespace korvantes::host
