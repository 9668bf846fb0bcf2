#include "desktop/file_dialog.h"

#include <QFileDialog>

#include "desktop/look.h"
#include "desktop/window_stack.h"

namespace korvantes::desktop {

QStringList filtersOf(std::string_view filter) {
  const QStringList parts = toQt(filter).split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(u';', Qt::SkipEmptyParts)) {
      const QString trimmed = pattern.trimmed();
      patterns += trimmed == QLatin1String("*.*") ? QStringLiteral("*") : trimmed;
    }
    const QString description = parts[i].section(u'(', 0, 0).trimmed();
    if (!patterns.isEmpty()) filters += description + " (" + patterns.join(u' ') + ")";
  }
  return filters;
}

void speakSpanish(QFileDialog& dialog, const char* accept) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setLabelText(QFileDialog::LookIn, "Buscar en:");
  dialog.setLabelText(QFileDialog::FileName, "&Nombre:");
  dialog.setLabelText(QFileDialog::FileType, "Tipo:");
  dialog.setLabelText(QFileDialog::Accept, accept);
  dialog.setLabelText(QFileDialog::Reject, "&Cancelar");
}

std::optional<std::string> askForFile(WindowStack& stack, std::string_view filter) {
  QFileDialog dialog(stack.owner(), "Abrir");
  speakSpanish(dialog, "&Abrir");
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  const QStringList filters = filtersOf(filter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  stack.opened(dialog);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  stack.closed(dialog);
  const QStringList files = dialog.selectedFiles();
  if (!accepted || files.isEmpty()) return std::nullopt;
  return fromQt(files.first());
}

}  // namespace korvantes::desktop
