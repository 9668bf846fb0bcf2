#include "component/private_folder.h"

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/ado/error.h"

namespace korvantes {

namespace {

constexpr const char* kLastPlace = "/tmp";

/// True for a folder of the user or the system in which others cannot rename files that are not
/// theirs.
bool isSafe(const char* place) {
  struct stat state {};
  if (place[0] != '/' || ::stat(place, &state) != 0 || !S_ISDIR(state.st_mode)) return false;
  const bool ours = state.st_uid == ::geteuid() || state.st_uid == 0;
  const bool closed = (state.st_mode & (S_IWGRP | S_IWOTH)) == 0;
  return ours && (closed || (state.st_mode & S_ISVTX) != 0);
}

}  // namespace

ado::TemporaryFolder makePrivateFolder() {
  for (const char* place : {std::getenv("XDG_RUNTIME_DIR"), std::getenv("TMPDIR")}) {
    if (place == nullptr || !isSafe(place)) continue;
    try {
      return ado::TemporaryFolder(place);
    } catch (const ado::Error&) {
      // Full or read-only; try the next place.
    }
  }
  return ado::TemporaryFolder(kLastPlace);
}

}  // namespace korvantes
