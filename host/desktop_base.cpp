#include "host/desktop_base.h"

#include <utility>
#include <vector>

#include "host/create_base.h"
#include "scripts/failure.h"

namespace korvantes::host {

void DesktopBase::open(const std::optional<std::string>& url) {
  Database database = openDatabase(url);
  const std::vector<std::string> missing = missingTables(database);
  if (!missing.empty()) {
    std::string names;
    for (const std::string& name : missing) names += (names.empty() ? "" : ", ") + name;
    throw Failure("a la base " + inQuotes(database.name) +
                  " le faltan tablas del programa: " + names);
  }
  use(std::move(database));
}

void DesktopBase::makeSample(const std::string& path) {
  if (!createBase(path, BaseContents::SampleData))
    throw Failure("ya existe la base " + inQuotes(path) + "; elija otro nombre");
  use(openFile(path));
}

void DesktopBase::use(Database database) {
  // A session that ends detaches the component's database, so the old one must end before the new
  // one begins.
  session_.reset();
  database_ = std::move(database);
  session_.emplace(database_);
}

}  // namespace korvantes::host
