#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace korvantes::office {

/// A folder for the documents of one run of the program without a display. Documents of earlier
/// runs are overwritten, those of this run never are.
class OutputFolder {
 public:
  /// The folder is created with the first document.
  explicit OutputFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// "NAME.EXT" in the folder; the second time "NAME-2.EXT", and so on. Throws ado::Error when
  /// the folder does not exist and cannot be created.
  std::filesystem::path fileFor(const std::string& name);

 private:
  std::filesystem::path folder_;
  std::map<std::string, int> given_;
};

}  // namespace korvantes::office
