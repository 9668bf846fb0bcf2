#include "host/database.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

#include "data/schema.h"
#include "engines/sqlite/sqlite_connection.h"
#include "engines/tsql/compiler.h"
#include "runtime/ado/system_words.h"
#include "sample/data.h"
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

/// After a failure that is the one to be told: a failure of the rollback itself is not.
void rollBack(ado::Connection& connection) {
  try {
    if (connection.inTransaction()) connection.RollbackTrans();
  } catch (const ado::Error&) {
  }
}

Database openSample(OpenMode mode) {
  const fs::path folder = dataFolder();
  makePrivateFolder(folder);
  const std::string path = (folder / kSampleFile).string();
  Database database = openFile(path, OpenMode::Create);
  if (mode == OpenMode::Create || database.hasTables()) return database;
  if (createTables(database, sample::loadSampleData)) return database;
  // Another process made them in the meantime; the connection must learn of them.
  return openFile(path, OpenMode::Existing);
}

}  // namespace

Database openFile(const std::string& path, OpenMode mode) {
  sqlite::OpenOptions options;
  options.create = mode == OpenMode::Create;
  auto connection = std::make_shared<sqlite::SqliteConnection>(path, options);
  return {connection, [connection] { return connection->hasTables(); }, path};
}

Database openDatabase(const std::optional<std::string>& url, OpenMode mode) {
  if (!url) return openSample(mode);
  if (url->starts_with(kSqlite) && url->size() > kSqlite.size())
    return openFile(url->substr(kSqlite.size()), mode);
  if (url->starts_with(kOdbc))
    throw Failure("--base: las bases odbc: no están disponibles en esta versión del programa");
  throw Failure("--base: se espera sqlite:RUTA u odbc:CADENA DE CONEXIÓN");
}

bool createTables(const Database& database, const std::function<void(ado::Connection&)>& fill) {
  ado::Connection& connection = *database.connection;
  connection.BeginTrans();
  try {
    const bool fresh = !database.hasTables();
    if (fresh) {
      for (const std::string& statement : tsql::splitStatements(data::kSchema))
        connection.Execute(statement);
      if (fill) fill(connection);
    }
    connection.CommitTrans();
    return fresh;
  } catch (...) {
    rollBack(connection);
    throw;
  }
}

}  // namespace korvantes::host
