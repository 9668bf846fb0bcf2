#pragma once

#include <deque>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

#include "scripts/run.h"

namespace korvantes::scripts {

/// Plays the user from a script: one action a line, "#" begins a comment line. It drives the real
/// screens on a stage, whose desktop is the current one for its lifetime, and prints a transcript:
/// each line behind "> " (blank ones aside), and under it what happened.
///
/// A line that cannot be done is an "[error]" and the run goes on. A form still open when the
/// script has ended is closed.
class ScriptPlayer {
 public:
  /// Reports, spreadsheets and pictures go to `folder`, pictures only where their names name none.
  ScriptPlayer(ScriptStage& stage, ado::Connection& base, Screens screens, std::ostream& out,
               std::filesystem::path folder = {});
  ~ScriptPlayer();
  ScriptPlayer(const ScriptPlayer&) = delete;
  ScriptPlayer& operator=(const ScriptPlayer&) = delete;

  /// Gives the number of errors.
  int play(std::string_view script);

 private:
  bool playNextLine();
  void playTopForm(screen::Form& form);

  ScriptStage& stage_;
  screen::Desktop* formerDesktop_;
  Screens screens_;
  Transcript transcript_;
  QueuedAnswers answers_;
  ScriptPictures pictures_;
  ScriptRun run_;
  std::deque<std::string> lines_;
};

}  // namespace korvantes::scripts
