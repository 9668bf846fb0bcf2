#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>

#include "scripts/stage.h"
#include "scripts/transcript.h"

namespace korvantes::scripts {

/// Takes the pictures of windows that a script asks for. A name without a folder goes to the folder
/// of the program's output, which is created if missing. Each picture is an event of the
/// transcript, "[captura] NAME", or "[captura] sin pantalla" on a stage that draws nothing.
class Pictures {
 public:
  Pictures(Stage& stage, Transcript& transcript, std::filesystem::path folder)
      : stage_(stage), transcript_(transcript), folder_(std::move(folder)) {}

  /// Of the topmost window. Throws Failure or ado::Error if it cannot be written.
  void take(const std::string& name);
  /// Of the next message box or list dialog, before it is answered.
  void takeOfNextDialog(std::string name) { waiting_.push_back(std::move(name)); }
  /// A message box or list dialog has come up. A picture that fails is an error of the transcript.
  void dialogShown();

 private:
  Stage& stage_;
  Transcript& transcript_;
  std::filesystem::path folder_;
  std::deque<std::string> waiting_;
};

}  // namespace korvantes::scripts
