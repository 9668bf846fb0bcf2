#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/screen/headless_desktop.h"

class QWidget;

namespace korvantes::desktop {

class WindowStack;
struct PrintDocument;
struct SaveRequest;

/// The desktop of real windows. Needs an Application that outlives it.
///
/// A form is shown in a window that is modal to the whole program; its frame button, Alt+F4 and
/// whatever the form does with Escape unload it. When the program ends while forms are open, they
/// are unloaded from the topmost down and the calls that show them return.
///
/// Without the functions below a user sits in front of it. A script sets them, as on the headless
/// desktop, and plays the user through a Robot: the same script then gives the same events in the
/// same order.
class QtDesktop : public screen::Desktop {
 public:
  template <class T>
  using Reply = screen::HeadlessDesktop::Reply<T>;

  QtDesktop();
  ~QtDesktop() override;

  /// Called again and again with the topmost form while it is shown, in place of waiting for a
  /// user. With it set, dialogs without an answer of their own get the headless desktop's.
  std::function<void(screen::Form&)> whileShown;
  /// What the robot does to a dialog once it is on the screen.
  std::function<Reply<screen::Answer>(const screen::MessageBox&)> onMessage;
  std::function<Reply<std::optional<std::size_t>>(const screen::ListDialog&)> onList;
  /// Answers in place of the dialog, which is not shown then.
  std::function<std::optional<std::string>(const screen::FileDialog&)> onFile;
  /// A dialog has just come up, and waits for its answer.
  std::function<void()> onDialogShown;
  /// A form was closed.
  std::function<void(const screen::Form&)> onClosed;
  /// Fixed clock; the machine's when empty.
  std::optional<ado::Moment> clock;

  /// Window that forms and dialogs belong to while no form is open; nullptr for none. The first
  /// form leaves it free, so that it can be closed: while it shows a form it takes no other input.
  void mainWindow(QWidget* window);
  /// The open forms, topmost last.
  const std::vector<screen::Form*>& forms() const { return forms_; }
  /// Saves a picture of the topmost window, form or dialog, as a png file. False when no window is
  /// open; throws ado::Error when the file cannot be written.
  bool capture(const std::string& path);

  // Documents, which nobody but a user in front of the windows can deal with.

  /// Shows the pages of a document and returns when the user has done with it. Throws what painting
  /// them threw.
  void preview(const PrintDocument& document);
  /// Asks for the file to save under, beginning in the folder where the last one was saved, at
  /// first in the user's documents. Nothing when the dialog was left.
  std::optional<std::filesystem::path> askWhereToSave(const SaveRequest& request);
  /// Asks the question, and at a Yes opens the file with the program that the user has for it.
  void offerToOpen(const std::filesystem::path& file, const std::string& question);

  void showModal(screen::Form& form) override;
  screen::Answer messageBox(const screen::MessageBox& box) override;
  std::optional<std::size_t> chooseFromList(const screen::ListDialog& dialog) override;
  std::optional<std::string> chooseFile(const screen::FileDialog& dialog) override;
  void sendKeys(std::string_view keys) override;
  void processEvents() override;
  /// bmp, jpg, gif or tif, at most 64 MiB and 20 megapixels.
  screen::Picture loadPicture(const std::string& path) override;
  void savePicture(const screen::Picture& picture, const std::string& path) override;
  using Desktop::mousePointer;
  void mousePointer(int shape) override;
  ado::Moment now() const override;

 private:
  friend class Robot;
  bool scripted() const { return static_cast<bool>(whileShown); }
  void close(screen::Form& form, QWidget& window);
  void dialogShown();

  std::unique_ptr<WindowStack> stack_;
  std::vector<screen::Form*> forms_;
  std::filesystem::path saveFolder_;
};

}  // namespace korvantes::desktop
