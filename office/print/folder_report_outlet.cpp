#include "office/print/folder_report_outlet.h"

#include <utility>

#include "office/print/offscreen_application.h"
#include "office/print/pdf_file.h"

namespace korvantes::office {

FolderReportOutlet::FolderReportOutlet(std::shared_ptr<OutputFolder> folder, Written written)
    : folder_(std::move(folder)), written_(std::move(written)) {}

FolderReportOutlet::~FolderReportOutlet() = default;

void FolderReportOutlet::deliver(std::shared_ptr<const Report> report) {
  if (!OffscreenApplication::exists()) application_ = std::make_unique<OffscreenApplication>();
  const std::filesystem::path file = folder_->fileFor(report->title() + ".pdf");
  writePdf(*report, file);
  if (written_) written_(report->number(), report->rows(), file);
}

}  // namespace korvantes::office
