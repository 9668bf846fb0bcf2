#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "runtime/screen/desktop.h"
#include "runtime/screen/user_input.h"

namespace korvantes::screen {

/// A desktop without a display, driven by a script or a test.
///
/// The driver sets the functions below; each has a default that leaves (lists, files) or takes the
/// default button (messages). While a form is shown, `whileShown` is called again and again with
/// the topmost form until that form is closed; it plays the user, through user(), and closes the
/// form itself when it has nothing more to do.
class HeadlessDesktop : public Desktop {
 public:
  HeadlessDesktop();

  /// Answer to a dialog, and whether it was given by the Enter key, whose release then reaches the
  /// form below once the running event has ended.
  template <class T>
  struct Reply {
    T value;
    bool byEnter = false;
  };

  std::function<void(Form&)> whileShown;
  std::function<Reply<Answer>(const MessageBox&)> onMessage;
  std::function<Reply<std::optional<std::size_t>>(const ListDialog&)> onList;
  std::function<std::optional<std::string>(const FileDialog&)> onFile;
  /// A form was closed.
  std::function<void(const Form&)> onClosed;
  /// Fixed clock; the machine's when empty.
  std::optional<ado::Moment> clock;

  /// The open forms, topmost last.
  const std::vector<Form*>& forms() const { return forms_; }
  /// Input to the topmost form; std::logic_error when none is open. Call settle() afterwards.
  UserInput user() const;
  /// Presses and releases a key on the topmost form. When the press opened or closed a window, the
  /// release went to that window and the form below does not see it.
  void stroke(const Key& key);
  /// Types a text key by key.
  void type(std::string_view text);
  /// Runs what is queued: keys sent, releases of the Enter that closed a dialog. After stroke and
  /// type this has happened already.
  void settle();

  void showModal(Form& form) override;
  Answer messageBox(const MessageBox& box) override;
  std::optional<std::size_t> chooseFromList(const ListDialog& dialog) override;
  std::optional<std::string> chooseFile(const FileDialog& dialog) override;
  void sendKeys(std::string_view keys) override;
  void processEvents() override;
  /// Knows bmp, jpg, gif and tif by their first bytes and keeps the file as it is.
  Picture loadPicture(const std::string& path) override;
  void savePicture(const Picture& picture, const std::string& path) override;
  ado::Moment now() const override;

 private:
  struct Queued {
    Key key;
    bool press = false;
    bool release = false;
  };
  void run(const Queued& queued);
  void close(Form& form);
  template <class T>
  T answered(const Reply<T>& reply);

  std::vector<Form*> forms_;
  std::deque<Queued> queue_;
  std::size_t windowChanges_ = 0;
};

/// The key that types a character, or that a script names ("Enter", "Tab", "Escape", "F1",
/// "Mayús+Tab", "Alt+B"); nothing for an unknown name.
Key keyTyping(char32_t character);
std::optional<Key> keyNamed(std::string_view name);

}  // namespace korvantes::screen
