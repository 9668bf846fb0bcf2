#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>

#include "scripts/stage.h"
#include "scripts/transcript.h"

namespace korvantes::scripts {

/// The pictures that a script takes of the windows. A name without a folder of its own lands in
/// that of the program's output, which is made when it is missing. Each picture is a happening of
/// the transcript, "[captura] NAME", or "[captura] sin pantalla" on a stage that draws nothing.
class Pictures {
 public:
  Pictures(Stage& stage, Transcript& transcript, std::filesystem::path folder)
      : stage_(stage), transcript_(transcript), folder_(std::move(folder)) {}

  /// Of the topmost window. Throws Failure or ado::Error when it cannot be written.
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
