#pragma once

#include <string>
#include <sys/types.h>

namespace korvantes::sqlite {

/// Remembers which file a path leads to, so that one that was deleted, renamed or replaced is
/// noticed. The answer is exact while the file is open: its number is not given to another one.
class FilePlace {
 public:
  explicit FilePlace(std::string path);

  /// Whether the path led to a file when this was made.
  bool isKnown() const { return inode_ != 0; }
  /// Whether the path still leads to the same file. Costs one system call.
  bool holds() const;
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  dev_t device_ = 0;
  ino_t inode_ = 0;
};

}  // namespace korvantes::sqlite
