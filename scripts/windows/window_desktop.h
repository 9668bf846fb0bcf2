#pragma once

#include <memory>

#include "desktop/application.h"
#include "desktop/qt_desktop.h"
#include "scripts/stage.h"

namespace korvantes::scripts {

class WindowUser;

/// The desktop of real windows, played by a script or a test: the user's actions are key and mouse
/// events sent to them. Dialogs come up and are answered on the screen, except for the file dialog,
/// whose cue answers in its place. Without `whileShown` a form, and a dialog that has no cue of its
/// own, waits for a real user. Needs a desktop::Application that outlives it.
class WindowDesktop : public desktop::QtDesktop, public Stage {
 public:
  WindowDesktop();
  ~WindowDesktop() override;

  screen::Desktop& desktop() override { return *this; }
  User& user() override;
  const std::vector<screen::Form*>& forms() const override { return QtDesktop::forms(); }
  bool draws() const override { return true; }
  void capture(const std::filesystem::path& file) override;

  std::optional<std::string> chooseFile(const screen::FileDialog& dialog) override;
  ado::Moment now() const override;

 protected:
  void attend(screen::Form& form, desktop::FormWindow& window) override;
  void attend(const screen::MessageBox& box, desktop::MessageDialog& dialog) override;
  void attend(const screen::ListDialog& list, desktop::ChoiceDialog& dialog) override;
  void closed(const screen::Form& form) override;

 private:
  bool played() const { return static_cast<bool>(whileShown); }

  std::unique_ptr<WindowUser> user_;
};

/// A stage of real windows, on the display or, without one, drawn in memory. It is the process's
/// window system for its lifetime.
class WindowStage : private desktop::Application, public WindowDesktop {};

}  // namespace korvantes::scripts
