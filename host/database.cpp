#include "host/database.h"

#include <cstdlib>
#include <filesystem>

#include "engines/sqlite/sqlite_connection.h"
#include "host/create_base.h"
#include "runtime/ado/system_words.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSqlite = "sqlite:";
constexpr std::string_view kOdbc = "odbc:";
constexpr const char* kSampleFile = "muestra.db";

/// $XDG_DATA_HOME, or ~/.local/share; a relative path in the variable does not count.
fs::path dataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data != nullptr && fs::path(data).is_absolute()) return fs::path(data) / "korvantes";
  const char* home = std::getenv("HOME");
  if (home != nullptr && fs::path(home).is_absolute())
    return fs::path(home) / ".local" / "share" / "korvantes";
  throw Failure("no se sabe cuál es la carpeta de datos del usuario; indique la base con --base");
}

void makePrivateFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder.parent_path(), error);
  if (!error && fs::create_directory(folder, error))
    fs::permissions(folder, fs::perms::owner_all, error);
  if (error)
    throw Failure("no se puede crear la carpeta " + inQuotes(folder.string()) + ": " +
                  ado::systemWords(error));
}

}  // namespace

std::string filePathOf(const std::optional<std::string>& url) {
  if (!url) {
    const fs::path folder = dataFolder();
    makePrivateFolder(folder);
    return (folder / kSampleFile).string();
  }
  if (url->starts_with(kSqlite) && url->size() > kSqlite.size()) return url->substr(kSqlite.size());
  if (url->starts_with(kOdbc))
    throw Failure("--base: las bases odbc: no están disponibles en esta versión del programa");
  throw Failure("--base: se espera sqlite:RUTA u odbc:CADENA DE CONEXIÓN");
}

Database openFile(const std::string& path, OpenMode mode) {
  sqlite::OpenOptions options;
  options.create = mode == OpenMode::Create;
  auto connection = std::make_shared<sqlite::SqliteConnection>(path, options);
  return {connection,
          [connection](std::string_view database, std::string_view table) {
            return connection->hasTable(database, table);
          },
          path};
}

Database openDatabase(const std::optional<std::string>& url) {
  const std::string path = filePathOf(url);
  if (!url) completeSample(path);
  return openFile(path);
}

}  // namespace korvantes::host
