#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>

#include "office/outlets.h"
#include "office/output_folder.h"

namespace korvantes::office {

/// Writes spreadsheets to the output folder without asking, for hosts without a display.
class FolderSheetOutlet : public SheetOutlet {
 public:
  using Written = std::function<void(const std::filesystem::path& file, std::size_t rows)>;

  /// @param written called for each complete file; may be empty
  explicit FolderSheetOutlet(std::shared_ptr<OutputFolder> folder, Written written = {})
      : folder_(std::move(folder)), written_(std::move(written)) {}

  std::optional<std::filesystem::path> fileFor(const std::string& suggestedName) override {
    return folder_->fileFor(suggestedName);
  }
  void written(const std::filesystem::path& file, std::size_t rows) override {
    if (written_) written_(file, rows);
  }

 private:
  std::shared_ptr<OutputFolder> folder_;
  Written written_;
};

}  // namespace korvantes::office
