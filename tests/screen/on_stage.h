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

/// The stage that this program plays on; each program defines its own.
std::unique_ptr<scripts::Stage> makeStage();

/// A test with a form on a stage, which is the current desktop and has Spanish settings. Message
/// boxes are written down as "[16] title | text" and get their default answer.
class OnStage : public testing::Test {
 protected:
  OnStage();
  ~OnStage() override { Desktop::makeCurrent(nullptr); }

  /// Shows the form, lets the user act on it and closes it. What happened before is forgotten.
  void play(const std::function<void()>& act);
  void press(std::string_view key) { user.stroke(scripts::keyNamed(key).value()); }
  /// What pressing a key, or clicking, brings about.
  std::string pressing(std::string_view key);
  std::string clicking(Control& control);

 private:
  const std::unique_ptr<scripts::Stage> owned_ = makeStage();

 protected:
  scripts::Stage& stage = *owned_;
  scripts::User& user = stage.user();
  SampleForm form;
  std::vector<std::string> messages;
};

}  // namespace korvantes::screen
