#include "desktop/qt_desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

#include "desktop/choice_dialog.h"
#include "desktop/file_dialog.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/message_dialog.h"
#include "desktop/pictures.h"
#include "desktop/print_preview.h"
#include "desktop/save_dialog.h"
#include "desktop/window_stack.h"
#include "runtime/ado/utf8.h"

namespace korvantes::desktop {

namespace {

constexpr int kHourglass = 11;
constexpr int kArrowWithHourglass = 13;

std::optional<Qt::CursorShape> busyShape(int mousePointer) {
  if (mousePointer == kHourglass) return Qt::WaitCursor;
  if (mousePointer == kArrowWithHourglass) return Qt::BusyCursor;
  return std::nullopt;
}

void usePointer(int mousePointer) {
  if (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  if (const auto shape = busyShape(mousePointer)) QApplication::setOverrideCursor(*shape);
}

/// Shows the usual pointer while a dialog waits for the user during long work.
class UsualPointer {
 public:
  explicit UsualPointer(int former) : former_(former) { usePointer(0); }
  ~UsualPointer() { usePointer(former_); }
  UsualPointer(const UsualPointer&) = delete;
  UsualPointer& operator=(const UsualPointer&) = delete;

 private:
  int former_;
};

}  // namespace

QtDesktop::QtDesktop() : stack_(std::make_unique<WindowStack>()) {}

QtDesktop::~QtDesktop() {
  usePointer(0);
}

void QtDesktop::mainWindow(QWidget* window) {
  stack_->mainWindow(window);
}

void QtDesktop::showModal(screen::Form& form) {
  const UsualPointer pointer(mousePointer());
  FormWindow window(form, *stack_, stack_->owner());
  // Whatever happens, the form ends up closed and off the stack.
  struct Shown {
    QtDesktop& desktop;
    screen::Form& form;
    FormWindow& window;
    ~Shown() { desktop.close(form, window); }
  } const guard{*this, form, window};
  forms_.push_back(&form);
  window.open();
  stack_->rethrow();
  attend(form, window);
}

void QtDesktop::attend(screen::Form&, FormWindow& window) {
  window.waitUntilClosed();
  stack_->rethrow();
}

void QtDesktop::attend(const screen::MessageBox&, MessageDialog& dialog) {
  dialog.exec();
}

void QtDesktop::attend(const screen::ListDialog&, ChoiceDialog& dialog) {
  dialog.exec();
}

void QtDesktop::close(screen::Form& form, FormWindow& window) {
  try {
    form.Unload();
  } catch (const std::exception&) {
    // Another exception may be propagating; the form is closed in any case.
  }
  std::erase(forms_, &form);
  stack_->closed(window);
  closed(form);
}

screen::Answer QtDesktop::messageBox(const screen::MessageBox& box) {
  const UsualPointer pointer(mousePointer());
  MessageDialog dialog(*stack_, box);
  dialog.open();
  attend(box, dialog);
  return dialog.answer();
}

std::optional<std::size_t> QtDesktop::chooseFromList(const screen::ListDialog& list) {
  const UsualPointer pointer(mousePointer());
  ChoiceDialog dialog(*stack_, list);
  dialog.open();
  attend(list, dialog);
  return dialog.chosen();
}

std::optional<std::string> QtDesktop::chooseFile(const screen::FileDialog& dialog) {
  const UsualPointer pointer(mousePointer());
  return askForFile(*stack_, dialog.filter);
}

void QtDesktop::preview(const PrintDocument& document) {
  const UsualPointer pointer(mousePointer());
  PrintPreview(*this, *stack_, document).showPages();
}

std::optional<std::filesystem::path> QtDesktop::askWhereToSave(const SaveRequest& request) {
  const UsualPointer pointer(mousePointer());
  if (saveFolder_.empty()) saveFolder_ = documentsFolder();
  const auto file = desktop::askWhereToSave(*this, *stack_, request, saveFolder_);
  if (file) saveFolder_ = file->parent_path();
  return file;
}

void QtDesktop::offerToOpen(const std::filesystem::path& file, const std::string& question) {
  constexpr int kQuestion = screen::style::Question | screen::style::YesNo;
  const std::string title(kDefaultTitle);
  if (messageBox({question, kQuestion, title}) != screen::Answer::Yes) return;
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(file.string()))))
    messageBox({"No se ha podido abrir " + file.string() +
                    ". Compruebe que hay un programa instalado para ese tipo de ficheros.",
                screen::style::Exclamation, title});
}

void QtDesktop::sendKeys(std::string_view keys) {
  for (const char32_t character : ado::toCodePoints(keys))
    stack_->sendKey(screen::keyTyping(character));
}

void QtDesktop::processEvents() {
  QCoreApplication::processEvents();
  stack_->settle();
}

screen::Picture QtDesktop::loadPicture(const std::string& path) {
  return readPicture(path);
}

void QtDesktop::savePicture(const screen::Picture& picture, const std::string& path) {
  writePicture(picture, path);
}

void QtDesktop::mousePointer(int shape) {
  Desktop::mousePointer(shape);
  usePointer(shape);
}

}  // namespace korvantes::desktop
