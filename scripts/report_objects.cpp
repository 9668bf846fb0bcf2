#include <string>
#include <utility>

#include "office/print/folder_report_outlet.h"
#include "office/print/mz_print.h"
#include "scripts/office_names.h"
#include "scripts/office_objects.h"

namespace korvantes::scripts {

void offerReportsInFolder(office::Registry& objects, std::shared_ptr<office::OutputFolder> folder,
                          Transcript& transcript) {
  const auto outlet = std::make_shared<office::FolderReportOutlet>(
      std::move(folder), [&transcript](int number, std::size_t rows, const auto& file) {
        transcript.happening("informe " + std::to_string(number),
                             std::to_string(rows) + " filas | " + file.string());
      });
  objects.add(kReportObject, [outlet] { return std::make_unique<office::MZPrint>(outlet); });
}

}  // namespace korvantes::scripts
