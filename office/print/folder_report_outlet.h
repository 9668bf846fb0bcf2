#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>

#include "office/outlets.h"
#include "office/output_folder.h"

namespace korvantes::office {

class OffscreenApplication;

/// Writes each report as a PDF file into a folder, for hosts without a display.
class FolderReportOutlet : public ReportOutlet {
 public:
  /// Called for each complete file: report number, rows, path.
  using Written = std::function<void(int number, std::size_t rows, const std::filesystem::path&)>;

  FolderReportOutlet(std::shared_ptr<OutputFolder> folder, Written written);
  ~FolderReportOutlet() override;

  /// Throws ado::Error when the file cannot be written, without calling back. If there is no
  /// application object of Qt yet, the outlet creates one with the first report and keeps it for
  /// its own lifetime.
  void deliver(std::shared_ptr<const Report> report) override;

 private:
  std::shared_ptr<OutputFolder> folder_;
  Written written_;
  std::unique_ptr<OffscreenApplication> application_;
};

}  // namespace korvantes::office
