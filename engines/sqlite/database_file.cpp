#include "engines/sqlite/database_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"

namespace korvantes::sqlite {

namespace {

[[noreturn]] void fail(const std::string& path, int number, const std::string& words) {
  throw ado::Error(number, "No se puede abrir la base de datos " + path + ": " + words);
}

[[noreturn]] void fail(const std::string& path, int number) {
  fail(path, number, ado::systemWords(number));
}

/// The path with its folder's links resolved, so that a link can only be the file itself.
std::string absolutePath(const std::string& path) {
  const std::filesystem::path given(path);
  if (!given.has_filename()) fail(path, EISDIR, "no es el nombre de un fichero");
  std::error_code error;
  const auto folder = std::filesystem::canonical(
      given.has_parent_path() ? given.parent_path() : std::filesystem::path("."), error);
  if (error) fail(path, error.value(), "no existe la carpeta " + given.parent_path().string());
  return (folder / given.filename()).string();
}

/// True when an ordinary file stands there, false when nothing does.
bool isThere(const std::string& path) {
  struct stat state {};
  if (::lstat(path.c_str(), &state) != 0) {
    if (errno == ENOENT) return false;
    fail(path, errno);
  }
  if (S_ISLNK(state.st_mode)) fail(path, ELOOP, "es un enlace simbólico");
  if (!S_ISREG(state.st_mode)) fail(path, EINVAL, "no es un fichero ordinario");
  return true;
}

void make(const std::string& path) {
  // Exclusive: a link or a file that appeared meanwhile is not taken over.
  const int file =
      ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file < 0) fail(path, errno);
  ::close(file);
}

}  // namespace

DatabaseFiles findDatabaseFiles(const std::string& path, bool create) {
  const std::string file = absolutePath(path);
  const std::string partner = file + ".vespara";
  const bool partnerThere = isThere(partner);
  if (!isThere(file)) {
    if (!create) fail(file, ENOENT, "el fichero no existe");
    make(file);
  }
  if (!partnerThere && create) make(partner);
  return {file, partnerThere || create ? partner : std::string()};
}

}  // namespace korvantes::sqlite
