#include "host/desktop_base.h"

#include <filesystem>
#include <utility>

#include "sample/data.h"
#include "scripts/failure.h"

namespace korvantes::host {

void DesktopBase::open(const std::optional<std::string>& url) {
  Database database = openDatabase(url, OpenMode::Existing);
  if (!database.hasTables())
    throw Failure("la base " + inQuotes(database.name) + " no tiene las tablas del programa");
  use(std::move(database));
}

void DesktopBase::makeSample(const std::string& path) {
  std::error_code unknown;
  if (std::filesystem::exists(path, unknown))
    throw Failure("ya existe el fichero " + inQuotes(path) + "; elija otro nombre");
  Database database = openFile(path, OpenMode::Create);
  createTables(database, sample::loadSampleData);
  use(std::move(database));
}

void DesktopBase::use(Database database) {
  // The end of a session takes the database from the component: first the old one, then the new.
  session_.reset();
  database_ = std::move(database);
  session_.emplace(database_);
}

}  // namespace korvantes::host
