#pragma once

#include <string>

namespace korvantes {

/// A folder for passing files that nobody else may see (mode 0700), under a name that nobody can
/// foretell, made anew for each use: two instances of the program never meet. It goes with all that
/// is in it, however the use ends.
///
/// It lies in XDG_RUNTIME_DIR, which is in memory and ends with the user's session; else in TMPDIR,
/// else in /tmp. A place where others could exchange the folder is passed over.
class PrivateFolder {
 public:
  /// Throws ado::Error with the system's words when no place takes a folder.
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  /// Path of a file in it.
  std::string file(const std::string& name) const { return path_ + '/' + name; }

 private:
  std::string path_;
};

}  // namespace korvantes
