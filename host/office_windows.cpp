#include "host/office_windows.h"

#include <utility>

#include "desktop/print_preview.h"
#include "desktop/save_dialog.h"
#include "office/print/mz_print.h"
#include "office/print/pdf_file.h"
#include "scripts/office_names.h"
#include "scripts/office_objects.h"

namespace korvantes::host {
namespace {

/// Shows each report, to be printed or saved.
class PreviewReportOutlet : public office::ReportOutlet {
 public:
  explicit PreviewReportOutlet(desktop::QtDesktop& desktop) : desktop_(desktop) {}

  void deliver(std::shared_ptr<const office::Report> report) override {
    desktop_.preview({report->title(), [report](QPrinter& printer) { report->setUp(printer); },
                      [report](QPrinter& printer) { report->paint(printer); },
                      [report](const auto& file) { office::writePdf(*report, file); }});
  }

 private:
  desktop::QtDesktop& desktop_;
};

/// Asks where each spreadsheet goes, and offers to open it.
class DialogSheetOutlet : public office::SheetOutlet {
 public:
  explicit DialogSheetOutlet(desktop::QtDesktop& desktop) : desktop_(desktop) {}

  std::optional<std::filesystem::path> fileFor(const std::string& suggestedName) override {
    return desktop_.askWhereToSave(
        {"Guardar la hoja de cálculo", "Libros de Excel|*.xlsx", "xlsx", suggestedName});
  }
  void written(const std::filesystem::path& file, std::size_t) override {
    desktop_.offerToOpen(
        file, "La hoja de cálculo se ha guardado en " + file.string() + ".\n¿Desea abrirla ahora?");
  }

 private:
  desktop::QtDesktop& desktop_;
};

}  // namespace

void offerDocumentsOnWindows(desktop::QtDesktop& desktop) {
  scripts::offerSpreadsheets(office::objectsOf(desktop),
                             std::make_shared<DialogSheetOutlet>(desktop));
  const auto reports = std::make_shared<PreviewReportOutlet>(desktop);
  office::objectsOf(desktop).add(scripts::kReportObject,
                                 [reports] { return std::make_unique<office::MZPrint>(reports); });
}

}  // namespace korvantes::host
