#include "scripts/office_objects.h"

#include <string>
#include <utility>

#include "office/output_folder.h"
#include "office/sheet/folder_sheet_outlet.h"
#include "office/sheet/spreadsheet.h"
#include "scripts/office_names.h"

namespace korvantes::scripts {

void offerSpreadsheets(office::Registry& objects, std::shared_ptr<office::SheetOutlet> outlet) {
  objects.add(kSpreadsheetObject, [outlet = std::move(outlet)] {
    return std::make_unique<office::Spreadsheet>(outlet);
  });
}

void offerDocumentsInFolder(office::Registry& objects, std::filesystem::path folder,
                            Transcript& transcript) {
  const auto documents = std::make_shared<office::OutputFolder>(std::move(folder));
  offerSpreadsheets(objects, std::make_shared<office::FolderSheetOutlet>(
                                 documents, [&transcript](const auto& file, std::size_t rows) {
                                   transcript.happening(
                                       "hoja", std::to_string(rows) + " filas | " + file.string());
                                 }));
  offerReportsInFolder(objects, documents, transcript);
}

void withdrawDocuments(office::Registry& objects) {
  for (const char* name : {kSpreadsheetObject, kReportObject})
    objects.add(name, [] { return std::unique_ptr<office::Object>(); });
}

}  // namespace korvantes::scripts
