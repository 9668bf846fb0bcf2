// The same tests on every kind of stage. screen_test plays them headless; desktop_test plays the
// same ones on windows.
#pragma once

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "scripts/key_names.h"
#include "scripts/stage.h"
#include "tests/screen/sample_form.h"

namespace korvantes::screen {

/// A stage that is the current desktop, with Spanish settings, and a form to play on it. Message
/// boxes are written down as "[16] title | text" and get their default answer.
class Played {
 protected:
  explicit Played(std::unique_ptr<scripts::Stage> stage);
  ~Played();
  Played(const Played&) = delete;
  Played& operator=(const Played&) = delete;

  /// Shows the form, lets the user act on it and closes it. What happened before is forgotten.
  void play(SampleForm& shown, const std::function<void()>& act);
  void play(const std::function<void()>& act) { play(form, act); }
  void press(std::string_view key) { user.stroke(scripts::keyNamed(key).value()); }
  /// What pressing a key, or clicking, brings about.
  std::string pressing(std::string_view key);
  std::string clicking(Control& control);

 private:
  std::unique_ptr<scripts::Stage> owned_;

 protected:
  scripts::Stage& stage = *owned_;
  scripts::User& user = stage.user();
  SampleForm form;
  std::vector<std::string> messages;
};

struct StageKind {
  const char* name;
  std::unique_ptr<scripts::Stage> (*make)();
  friend std::ostream& operator<<(std::ostream& out, const StageKind& kind) {
    return out << kind.name;
  }
};
/// The kind that this program plays on; each program has its own.
StageKind stageKind();

class OnStage : public testing::TestWithParam<StageKind>, protected Played {
 protected:
  OnStage() : Played(GetParam().make()) {}
};

}  // namespace korvantes::screen
