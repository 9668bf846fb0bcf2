#pragma once

#include <deque>
#include <optional>
#include <string>

#include "scripts/cues.h"
#include "scripts/transcript.h"

namespace korvantes::scripts {

/// The answers that a script has queued for the next dialogs. Each dialog is written to the
/// transcript and takes the first answer of its kind; without one, a message box gets a click on
/// its default button and the others are cancelled. An answer that does not suit its dialog is an
/// error in the transcript, and is consumed.
class QueuedAnswers {
 public:
  /// What answers a message box: a button, or the Enter key on the default one.
  enum class Button { Ok, Yes, No, EnterKey };

  struct ListChoice {
    std::optional<std::size_t> row;  ///< from 1; empty: cancel the dialog
    bool byEnter = false;
  };

  explicit QueuedAnswers(Transcript& transcript) : transcript_(transcript) {}

  void add(Button button) { buttons_.push_back(button); }
  void add(ListChoice choice) { choices_.push_back(choice); }
  /// Empty: cancel the dialog.
  void addFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }

  Reply<screen::Answer> answer(const screen::MessageBox& box);
  Reply<std::optional<std::size_t>> answer(const screen::ListDialog& dialog);
  std::optional<std::string> answer(const screen::FileDialog& dialog);

 private:
  Transcript& transcript_;
  std::deque<Button> buttons_;
  std::deque<ListChoice> choices_;
  std::deque<std::optional<std::string>> files_;
};

}  // namespace korvantes::scripts
