#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/screen/desktop.h"

class QWidget;

namespace korvantes::desktop {

class ChoiceDialog;
class FormWindow;
class MessageDialog;
class WindowStack;
struct PrintDocument;
struct SaveRequest;

/// The desktop of real windows. Needs an Application that outlives it.
///
/// A form is shown in a window that is modal to the whole program; its frame button, Alt+F4 and
/// whatever the form does with Escape unload it. When the program ends while forms are open, they
/// are unloaded from the topmost down and the calls that show them return.
class QtDesktop : public screen::Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  /// Window that forms and dialogs belong to while no form is open; nullptr for none. The first
  /// form leaves it free, so that it can be closed: while it shows a form it takes no other input.
  void mainWindow(QWidget* window);
  /// The open forms, topmost last.
  const std::vector<screen::Form*>& forms() const { return forms_; }

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

 protected:
  // Who deals with what has just come up: a user, unless a derived class plays one.

  /// Returns when the form has been unloaded.
  virtual void attend(screen::Form& form, FormWindow& window);
  /// Return when the dialog has been closed.
  virtual void attend(const screen::MessageBox& box, MessageDialog& dialog);
  virtual void attend(const screen::ListDialog& list, ChoiceDialog& dialog);
  /// A form was closed and is off the stack.
  virtual void closed(const screen::Form&) {}

  WindowStack& stack() { return *stack_; }

 private:
  void close(screen::Form& form, FormWindow& window);

  std::unique_ptr<WindowStack> stack_;
  std::vector<screen::Form*> forms_;
  std::filesystem::path saveFolder_;
};

}  // namespace korvantes::desktop
