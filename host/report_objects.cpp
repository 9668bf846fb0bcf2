#include <string>
#include <utility>

#include "host/office_names.h"
#include "host/office_objects.h"
#include "office/print/folder_report_outlet.h"
#include "office/print/mz_print.h"

namespace korvantes::host {

void offerReportsInFolder(office::Registry& objects, std::shared_ptr<office::OutputFolder> folder,
                          Transcript& transcript) {
  const auto outlet = std::make_shared<office::FolderReportOutlet>(
      std::move(folder), [&transcript](int number, std::size_t rows, const auto& file) {
        transcript.happening("informe " + std::to_string(number),
                             std::to_string(rows) + " filas | " + file.string());
      });
  objects.add(kReportObject, [outlet] { return std::make_unique<office::MZPrint>(outlet); });
}

}  // namespace korvantes::host
