#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "runtime/ado/error.h"
#include "runtime/ado/temporary_folder.h"

namespace korvantes::office {

/// "No se ha podido escribir FILE: words", for a failure of the system.
ado::Error writeFailure(const std::filesystem::path& file, int errorNumber);
ado::Error writeFailure(const std::filesystem::path& file, const std::string& words);

/// A file that appears whole under its name or not at all. It is written in a private
/// folder beside its target, which is removed afterwards.
class SheetFile {
 public:
  /// Throws ado::Error when the file could not be put there: no such folder, no permission, a file
  /// in its place that is write-protected, locked by another program, or no file at all. A symbolic
  /// link in its place is followed.
  explicit SheetFile(const std::filesystem::path& place);

  /// For temporary files, on the same disk.
  const std::filesystem::path& folder() const { return folder_->path(); }
  /// Where to write the contents.
  std::filesystem::path draft() const;
  /// Moves the draft to its target once its bytes are on the disk, with the permissions of a file
  /// that it replaces. Throws ado::Error.
  void commit();

 private:
  std::filesystem::path place_;
  std::optional<ado::TemporaryFolder> folder_;
};

}  // namespace korvantes::office
