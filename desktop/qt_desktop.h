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
/// A form is shown in an application-modal window; its close button, Alt+F4 and whatever the form
/// does with Escape unload it. When the program ends while forms are open, they are unloaded from
/// the topmost down and the calls that show them return.
class QtDesktop : public screen::Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  /// The parent of forms and dialogs while no form is open; nullptr for none. The first form does
  /// not block it, so that it can be closed: it must not take other input while a form is open.
  void mainWindow(QWidget* window);
  /// The open forms, topmost last.
  const std::vector<screen::Form*>& forms() const { return forms_; }

  // Documents.

  /// Shows the pages of a document and returns when the user has closed it. Propagates exceptions
  /// of the painting.
  void preview(const PrintDocument& document);
  /// Asks where to save a file, starting in the folder of the last one, at first in the user's
  /// documents. Empty if the user cancels.
  std::optional<std::filesystem::path> askWhereToSave(const SaveRequest& request);
  /// Asks the question and, if the answer is Yes, opens the file with the program registered for
  /// it.
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
  // Wait for the user to deal with a new window. A derived class may play the user.

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
