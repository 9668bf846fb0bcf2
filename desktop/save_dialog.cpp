#include "desktop/save_dialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "desktop/file_dialog.h"
#include "desktop/look.h"
#include "desktop/qt_desktop.h"
#include "desktop/window_stack.h"

namespace korvantes::desktop {

namespace {

constexpr QSize kSize(720, 460);

/// Asks before replacing a file, with our own message box.
class SaveDialog : public QFileDialog {
 public:
  SaveDialog(QtDesktop& desktop, WindowStack& stack, const SaveRequest& request,
             const std::filesystem::path& folder)
      : QFileDialog(stack.owner(), toQt(request.title)), desktop_(desktop) {
    speakSpanish(*this, "&Guardar");
    setAcceptMode(QFileDialog::AcceptSave);
    setFileMode(QFileDialog::AnyFile);
    setOption(QFileDialog::DontConfirmOverwrite);
    setNameFilters(filtersOf(request.filter));
    setDefaultSuffix(toQt(request.suffix));
    resize(kSize);
    setDirectory(toQt(folder.string()));
    selectFile(toQt(request.name));
  }

 protected:
  void accept() override {
    const QFileInfo file(selectedFiles().value(0));
    if (file.isFile() && !mayReplace(file)) return;
    QFileDialog::accept();
  }

 private:
  bool mayReplace(const QFileInfo& file) {
    return desktop_.messageBox(
               {"Ya existe " + fromQt(file.fileName()) + ". ¿Desea reemplazarlo?",
                screen::style::Exclamation | screen::style::YesNo | screen::style::DefaultSecond,
                fromQt(windowTitle())}) == screen::Answer::Yes;
  }

  QtDesktop& desktop_;
};

}  // namespace

std::filesystem::path documentsFolder() {
  for (const auto location : {QStandardPaths::DocumentsLocation, QStandardPaths::HomeLocation}) {
    const QString folder = QStandardPaths::writableLocation(location);
    if (QFileInfo(folder).isDir()) return fromQt(folder);
  }
  return {};
}

std::optional<std::filesystem::path> askWhereToSave(QtDesktop& desktop, WindowStack& stack,
                                                    const SaveRequest& request,
                                                    const std::filesystem::path& folder) {
  SaveDialog dialog(desktop, stack, request, folder);
  stack.opened(dialog);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  stack.closed(dialog);
  const QStringList files = dialog.selectedFiles();
  if (!accepted || files.isEmpty()) return std::nullopt;
  return std::filesystem::path(fromQt(files.first()));
}

}  // namespace korvantes::desktop
