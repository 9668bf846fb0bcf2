#include "engines/sqlite/database_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "engines/sqlite/database.h"
#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"

namespace korvantes::sqlite {

namespace {

[[noreturn]] void fail(const std::string& path, int number, const std::string& words) {
  throw ado::Error(ado::systemErrorKind(number), number,
                   "No se puede abrir la base de datos " + path + ": " + words);
}

[[noreturn]] void fail(const std::string& path, int number) {
  fail(path, number, ado::systemWords(number));
}

/// The size of an ordinary file; empty if there is none. Throws Error for anything else.
std::optional<std::size_t> sizeOf(const std::string& path) {
  struct stat state {};
  if (::lstat(path.c_str(), &state) != 0) {
    if (errno == ENOENT) return std::nullopt;
    fail(path, errno);
  }
  if (S_ISLNK(state.st_mode)) fail(path, ELOOP, "es un enlace simbólico");
  if (!S_ISREG(state.st_mode)) fail(path, EINVAL, "no es un fichero ordinario");
  return static_cast<std::size_t>(state.st_size);
}

bool isThere(const std::string& path) {
  struct stat state {};
  return ::stat(path.c_str(), &state) == 0;
}

std::string uriOf(const std::string& path, const char* query) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string uri = "file:";
  for (const char c : path) {
    if (c != '%' && c != '?' && c != '#') {
      uri += c;
      continue;
    }
    uri += '%';
    uri += kDigits[static_cast<unsigned char>(c) >> 4U];
    uri += kDigits[static_cast<unsigned char>(c) & 0xFU];
  }
  return uri + query;
}

Content lookInto(const std::string& path, const char* query) {
  try {
    Database database(uriOf(path, query), Database::ReadOnly{});
    return database.content("main");
  } catch (const ado::Error& error) {
    throw ado::Error(error.kind(), error.number(),
                     "No se puede abrir la base de datos " + path + ": " + error.what());
  }
}

}  // namespace

DatabaseFiles databaseFilesOf(const std::string& path) {
  // With the folder's links resolved, only the file itself can still be a link.
  const std::filesystem::path given(path);
  if (!given.has_filename()) fail(path, EISDIR, "no es el nombre de un fichero");
  std::error_code error;
  const auto folder = std::filesystem::canonical(
      given.has_parent_path() ? given.parent_path() : std::filesystem::path("."), error);
  if (error) fail(path, error.value(), "no existe la carpeta " + given.parent_path().string());
  const std::string file = (folder / given.filename()).string();
  return {file, file + ".vespara"};
}

Content contentOf(const std::string& path) {
  const auto size = sizeOf(path);
  if (!size) return Content::Missing;
  if (*size == 0) return Content::Empty;
  // The log of a program that was killed, or that is at work, may hold what the file does not yet.
  const auto log = sizeOf(path + "-wal");
  const bool hasLog = log && *log > 0;
  try {
    // Immutable: SQLite takes no lock and looks for no companion file.
    const Content content = lookInto(path, "?immutable=1");
    if (content == Content::Ours || !hasLog) return content;
  } catch (const ado::Error&) {
    if (!hasLog) throw;
  }
  return lookInto(path, isThere(path + "-shm") ? "?readonly_shm=1" : "");
}

void requireNotForeign(const std::string& path, Content content) {
  if (content != Content::Foreign) return;
  throw ado::Error(ado::ErrorKind::Damaged, SQLITE_NOTADB,
                   "El fichero " + path +
                       " es una base de datos de otro programa; no se ha cambiado nada en él");
}

void makeFile(const std::string& path) {
  // Exclusive: a link that has appeared since is not followed.
  const int file =
      ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file >= 0) {
    ::close(file);
  } else if (errno != EEXIST || !sizeOf(path)) {
    fail(path, errno);
  }
}

}  // namespace korvantes::sqlite
