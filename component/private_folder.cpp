#include "component/private_folder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"

namespace korvantes {

namespace {

constexpr const char* kLastPlace = "/tmp";

/// A folder of the user or the system's own, in which others cannot rename what is not theirs.
bool isSafe(const char* place) {
  struct stat state {};
  if (place[0] != '/' || ::stat(place, &state) != 0 || !S_ISDIR(state.st_mode)) return false;
  const bool ours = state.st_uid == ::geteuid() || state.st_uid == 0;
  const bool closed = (state.st_mode & (S_IWGRP | S_IWOTH)) == 0;
  return ours && (closed || (state.st_mode & S_ISVTX) != 0);
}

/// Path of a new folder there, made exclusively; empty, with errno, when there is none.
std::string madeIn(const char* place) {
  std::string path = std::string(place) + "/korvantes-XXXXXX";
  return ::mkdtemp(path.data()) != nullptr ? path : std::string();
}

}  // namespace

PrivateFolder::PrivateFolder() {
  const char* const places[] = {std::getenv("XDG_RUNTIME_DIR"), std::getenv("TMPDIR"), kLastPlace};
  int reason = EACCES;
  for (const char* place : places) {
    if (place == nullptr || !isSafe(place)) continue;
    path_ = madeIn(place);
    if (!path_.empty()) return;
    reason = errno;
  }
  throw ado::Error(reason, std::string("No se puede crear una carpeta temporal en ") + kLastPlace +
                               ": " + ado::systemWords(reason));
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace korvantes
