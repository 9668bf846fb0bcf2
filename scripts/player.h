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
/// each line after "> " (except blank ones), and below it what happened.
///
/// A line that cannot be done is an "[error]" and the run goes on. A form still open when the
/// script has ended is closed.
class Player {
 public:
  /// Reports, spreadsheets and pictures go to `folder`, pictures only where their names name none.
  Player(Stage& stage, ado::Connection& base, Screens screens, std::ostream& out,
         std::filesystem::path folder = {});
  ~Player();
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  /// Returns the number of errors.
  int play(std::string_view script);

 private:
  bool playNextLine();
  void playTopForm(screen::Form& form);

  Stage& stage_;
  screen::Desktop* formerDesktop_;
  Screens screens_;
  Transcript transcript_;
  QueuedAnswers answers_;
  Pictures pictures_;
  Run run_;
  std::deque<std::string> lines_;
};

}  // namespace korvantes::scripts
