#include "host/base_file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "desktop/file_dialog.h"
#include "desktop/look.h"

namespace korvantes::host {
namespace {

std::optional<std::string> ask(QFileDialog& dialog, const std::string& current,
                               const char* button) {
  desktop::speakSpanish(dialog, button);
  dialog.setNameFilters({"Bases de datos (*.db)", "Todos los ficheros (*)"});
  dialog.setDirectory(current.empty() ? QDir::homePath()
                                      : QFileInfo(desktop::toQt(current)).absolutePath());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QStringList files = dialog.selectedFiles();
  if (files.isEmpty()) return std::nullopt;
  return desktop::fromQt(files.first());
}

}  // namespace

std::optional<std::string> askForBaseFile(QWidget& parent, const std::string& current) {
  QFileDialog dialog(&parent, "Elegir base de datos");
  dialog.setFileMode(QFileDialog::ExistingFile);
  return ask(dialog, current, "&Abrir");
}

std::optional<std::string> askForNewBaseFile(QWidget& parent, const std::string& current) {
  QFileDialog dialog(&parent, "Nueva base de muestra");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix("db");
  // An existing file is never overwritten, so there is nothing to confirm.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  return ask(dialog, current, "&Crear");
}

}  // namespace korvantes::host
