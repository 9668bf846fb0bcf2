#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scripts/stage.h"

namespace korvantes::scripts {

/// A desktop without a display, played by a script or a test. The user's actions go straight to the
/// models. A form that is shown while `whileShown` is empty is closed at once.
class HeadlessDesktop : public screen::Desktop, public Stage {
 public:
  HeadlessDesktop();
  ~HeadlessDesktop() override;

  screen::Desktop& desktop() override { return *this; }
  User& user() override { return *user_; }
  const std::vector<screen::Form*>& forms() const override { return forms_; }
  bool draws() const override { return false; }
  void capture(const std::filesystem::path&) override {}

  void showModal(screen::Form& form) override;
  screen::Answer messageBox(const screen::MessageBox& box) override;
  std::optional<std::size_t> chooseFromList(const screen::ListDialog& dialog) override;
  std::optional<std::string> chooseFile(const screen::FileDialog& dialog) override;
  void sendKeys(std::string_view keys) override;
  void processEvents() override;
  /// Recognises bmp, jpg, gif and tif by their first bytes and keeps the file unchanged.
  screen::Picture loadPicture(const std::string& path) override;
  void savePicture(const screen::Picture& picture, const std::string& path) override;
  ado::Moment now() const override;

 private:
  class ModelUser;
  struct Queued {
    screen::Key key;
    bool press = false;
    bool release = false;
  };
  screen::UserInput input() const;
  void settle();
  void run(const Queued& queued);
  void close(screen::Form& form);
  template <class T>
  T closedBy(const Reply<T>& reply);

  std::unique_ptr<User> user_;
  std::vector<screen::Form*> forms_;
  std::deque<Queued> queue_;
  std::size_t windowChanges_ = 0;
};

}  // namespace korvantes::scripts
