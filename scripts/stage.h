#pragma once

#include <filesystem>
#include <vector>

#include "scripts/cues.h"
#include "scripts/user.h"

namespace korvantes::scripts {

/// A desktop and its user, for a script or a test. Set the cues, which are members of the stage,
/// and act through user().
class Stage : public Cues {
 public:
  Stage() = default;
  virtual ~Stage() = default;
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  virtual screen::Desktop& desktop() = 0;
  virtual User& user() = 0;
  Cues& cues() { return *this; }
  /// The open forms, topmost last.
  virtual const std::vector<screen::Form*>& forms() const = 0;

  /// Whether there are windows of which pictures can be taken.
  virtual bool draws() const = 0;
  /// Saves a picture of the topmost window, form or dialog, as a png file. Does nothing if no
  /// window is open or the stage draws none. Throws ado::Error if the file cannot be written.
  virtual void capture(const std::filesystem::path& file) = 0;
};

}  // namespace korvantes::scripts
