#include "office/sheet/sheet_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "runtime/ado/system_words.h"

namespace korvantes::office {

namespace fs = std::filesystem;

namespace {

// The runtime's numbers for these failures.
constexpr long kPermissionDenied = 70;
constexpr long kPathAccess = 75;
constexpr long kPathNotFound = 76;

/// A file descriptor; below 0 when it could not be opened.
class Descriptor {
 public:
  Descriptor(const fs::path& file, int flags) : number_(::open(file.c_str(), flags | O_CLOEXEC)) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }

 private:
  int number_;
};

/// Checks both kinds of lock that programs use.
bool lockedElsewhere(int file) {
  struct flock wanted {};
  wanted.l_type = F_WRLCK;
  wanted.l_whence = SEEK_SET;
  if (::fcntl(file, F_GETLK, &wanted) == 0 && wanted.l_type != F_UNLCK) return true;
  if (::flock(file, LOCK_EX | LOCK_NB) != 0) return errno == EWOULDBLOCK;
  ::flock(file, LOCK_UN);
  return false;
}

/// Checks that an existing file may be replaced.
void requireReplaceable(const fs::path& file, const fs::file_status& status) {
  if (fs::is_directory(status)) throw writeFailure(file, EISDIR);
  if (!fs::is_regular_file(status)) throw writeFailure(file, "no es un fichero corriente");
  constexpr fs::perms kWritable =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((status.permissions() & kWritable) == fs::perms::none)
    throw ado::Error(kPermissionDenied, "El fichero " + file.string() +
                                            " está protegido contra escritura; elija otro nombre");
  const Descriptor opened(file, O_RDWR);
  if (opened.number() < 0) throw writeFailure(file, errno);
  if (lockedElsewhere(opened.number()))
    throw ado::Error(kPermissionDenied, "El fichero " + file.string() +
                                            " está abierto en otro programa; ciérrelo o elija "
                                            "otro nombre");
}

}  // namespace

ado::Error writeFailure(const fs::path& file, const std::string& words) {
  return {kPathAccess, "No se ha podido escribir " + file.string() + ": " + words};
}

ado::Error writeFailure(const fs::path& file, int errorNumber) {
  return writeFailure(file, ado::systemWords(errorNumber));
}

SheetFile::SheetFile(const fs::path& place) : place_(place) {
  std::error_code failure;
  if (fs::is_symlink(fs::symlink_status(place_, failure))) {
    const fs::path target = fs::read_symlink(place_, failure);
    if (!failure) place_ = fs::weakly_canonical(place_.parent_path() / target, failure);
    if (failure) throw writeFailure(place, ado::systemWords(failure));
  }
  const fs::path beside = place_.has_parent_path() ? place_.parent_path() : fs::path(".");
  if (!fs::is_directory(beside, failure))
    throw ado::Error(kPathNotFound, "No existe la carpeta " + beside.string());
  const fs::file_status status = fs::status(place_, failure);
  if (fs::exists(status)) requireReplaceable(place_, status);

  try {
    folder_.emplace(beside, ".korvantes-");
  } catch (const ado::Error& error) {
    throw writeFailure(place_, static_cast<int>(error.number()));
  }
}

fs::path SheetFile::draft() const {
  return folder() / "hoja.xlsx";
}

void SheetFile::commit() {
  {
    const Descriptor written(draft(), O_RDONLY);
    if (written.number() < 0 || ::fsync(written.number()) != 0) throw writeFailure(place_, errno);
  }
  std::error_code failure;
  const fs::file_status replaced = fs::status(place_, failure);
  if (fs::exists(replaced)) fs::permissions(draft(), replaced.permissions(), failure);
  fs::rename(draft(), place_, failure);
  if (failure) throw writeFailure(place_, ado::systemWords(failure));
}

}  // namespace korvantes::office
