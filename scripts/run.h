#pragma once

#include "runtime/ado/connection.h"
#include "scripts/pictures.h"
#include "scripts/queued_answers.h"
#include "scripts/screens.h"
#include "scripts/stage.h"
#include "scripts/transcript.h"

namespace korvantes::scripts {

/// What the actions of a script act on.
struct Run {
  Stage& stage;
  ado::Connection& base;
  const Screens& screens;
  Transcript& transcript;
  QueuedAnswers& answers;
  Pictures& pictures;

  User& user() const { return stage.user(); }
  /// The topmost form. Throws Failure if none is open.
  screen::Form& form() const;
};

}  // namespace korvantes::scripts
