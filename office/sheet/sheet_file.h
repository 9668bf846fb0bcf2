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

/// A file that appears complete under its name or not at all. It is written in a private folder
/// next to its target; the folder is then removed.
class SheetFile {
 public:
  /// Throws ado::Error if the file could not be put there: no such folder, no permission, or the
  /// existing file is write-protected, locked by another program, or not a regular file. Follows a
  /// symbolic link.
  explicit SheetFile(const std::filesystem::path& place);

  /// For temporary files, on the same disk.
  const std::filesystem::path& folder() const { return folder_->path(); }
  /// Where to write the contents.
  std::filesystem::path draft() const;
  /// Moves the draft to its target once its bytes are on the disk, keeping the permissions of a
  /// file that it replaces. Throws ado::Error.
  void commit();

 private:
  std::filesystem::path place_;
  std::optional<ado::TemporaryFolder> folder_;
};

}  // namespace korvantes::office
