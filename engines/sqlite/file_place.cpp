#include "engines/sqlite/file_place.h"

#include <sys/stat.h>
#include <utility>

namespace korvantes::sqlite {

FilePlace::FilePlace(std::string path) : path_(std::move(path)) {
  struct stat state {};
  if (::stat(path_.c_str(), &state) != 0) return;
  device_ = state.st_dev;
  inode_ = state.st_ino;
}

bool FilePlace::holds() const {
  struct stat state {};
  return ::stat(path_.c_str(), &state) == 0 && state.st_dev == device_ && state.st_ino == inode_;
}

}  // namespace korvantes::sqlite
