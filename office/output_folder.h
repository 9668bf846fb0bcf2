#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace korvantes::office {

/// A folder for the documents of one run of the program, without a display. Documents of an earlier
/// run are written over; those of this run never are.
class OutputFolder {
 public:
  /// The folder is made when the first document comes.
  explicit OutputFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// "NAME.EXT" in the folder; the second time "NAME-2.EXT", and so on. Throws ado::Error when
  /// there is no such folder and none can be made.
  std::filesystem::path fileFor(const std::string& name);

 private:
  std::filesystem::path folder_;
  std::map<std::string, int> given_;
};

}  // namespace korvantes::office
