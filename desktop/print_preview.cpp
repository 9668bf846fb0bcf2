#include "desktop/print_preview.h"

#include <QGraphicsView>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <stdexcept>

#include "desktop/icons.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"
#include "desktop/preview_bar.h"
#include "desktop/qt_desktop.h"
#include "desktop/save_dialog.h"
#include "desktop/window_stack.h"

namespace korvantes::desktop {

namespace {

constexpr QSize kSize(1000, 1000);
constexpr double kShareOfScreen = 0.9;

}  // namespace

PrintPreview::PrintPreview(QtDesktop& desktop, WindowStack& stack, const PrintDocument& document)
    : ModalDialog(stack, toQt(document.title)),
      desktop_(desktop),
      stack_(stack),
      document_(document),
      printer_(QPrinter::HighResolution),
      pages_(makeChild<QPrintPreviewWidget>(&printer_, this)),
      bar_(makeChild<PreviewBar>(pages_, this)) {
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setWindowIcon(iconNamed("informe"));
  resize(kSize.boundedTo(screen()->availableSize() * kShareOfScreen));
  document_.setUp(printer_);

  auto& layout = makeChild<QVBoxLayout>(this);
  layout.setContentsMargins(10, 10, 10, 10);
  layout.setSpacing(10);
  layout.addWidget(&bar_);
  layout.addWidget(&pages_, 1);
  addButtons();

  connect(&pages_, &QPrintPreviewWidget::paintRequested, this,
          [this](QPrinter* printer) { paintPages(*printer); });
  connect(&pages_, &QPrintPreviewWidget::previewChanged, &bar_, &PreviewBar::showPlace);
  pages_.fitToWidth();
  // The arrow keys scroll the pages from the start.
  if (auto* view = pages_.findChild<QGraphicsView*>()) view->setFocus();
}

void PrintPreview::addButtons() {
  QPushButton& print = addButton("Im&primir…");
  print.setIcon(iconNamed("imprimir"));
  print.setShortcut(QKeySequence("Ctrl+P"));
  connect(&print, &QPushButton::clicked, this, [this] { attempt([this] { this->print(); }); });
  QPushButton& save = addButton("&Guardar como PDF…");
  save.setIcon(iconNamed("pdf"));
  connect(&save, &QPushButton::clicked, this, [this] { attempt([this] { savePdf(); }); });
  QPushButton& close = addButton("&Cerrar");
  close.setIcon(iconNamed("salir"));
  connect(&close, &QPushButton::clicked, this, &QDialog::reject);
  bar_.addLeft(print);
  bar_.addLeft(save);
  bar_.addRight(close);
}

void PrintPreview::showPages() {
  open();
  if (!failure_) exec();
  if (failure_) std::rethrow_exception(failure_);
}

/// Exceptions must not pass through Qt.
void PrintPreview::paintPages(QPrinter& printer) {
  try {
    document_.paint(printer);
  } catch (...) {
    failure_ = std::current_exception();
    reject();
  }
}

void PrintPreview::print() {
  if (QPrinterInfo::availablePrinters().isEmpty()) {
    tell("No hay ninguna impresora instalada. Puede guardar el documento como PDF.",
         screen::style::Information);
    return;
  }
  QPrinter printer(QPrinter::HighResolution);
  document_.setUp(printer);
  printer.setDocName(toQt(document_.title));
  QPrintDialog dialog(&printer, this);
  // Not PrintPageRange: without it the print server selects the pages and we paint all of them. Nor
  // PrintToFile: saving as PDF does that.
  dialog.setOptions(QAbstractPrintDialog::PrintCollateCopies);
  stack_.opened(dialog);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  stack_.closed(dialog);
  if (!accepted) return;
  document_.paint(printer);
  if (printer.printerState() == QPrinter::Error)
    throw std::runtime_error("La impresora no ha aceptado el documento.");
}

void PrintPreview::savePdf() {
  const auto file = desktop_.askWhereToSave(
      {"Guardar como PDF", "Documentos PDF|*.pdf", "pdf", document_.title + ".pdf"});
  if (file) document_.savePdf(*file);
}

void PrintPreview::attempt(const std::function<void()>& work) {
  try {
    work();
  } catch (const std::exception& failure) {
    tell(failure.what(), screen::style::Critical);
  }
}

void PrintPreview::tell(const std::string& words, int style) {
  desktop_.messageBox({words, style, document_.title});
}

}  // namespace korvantes::desktop
