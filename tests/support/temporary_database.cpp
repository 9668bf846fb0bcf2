#include "tests/support/temporary_database.h"

#include <stdexcept>
#include <stdlib.h>

#include "data/schema.h"
#include "engines/tsql/compiler.h"

namespace korvantes::support {

TemporaryDatabase::TemporaryDatabase() {
  std::string name = (std::filesystem::temp_directory_path() / "korvantes-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder_ = name;
  connection_ = std::make_shared<sqlite::SqliteConnection>(
      path(), sqlite::OpenOptions{.create = true, .busyMilliseconds = 100});
  connection_->BeginTrans();
  for (const std::string& statement : tsql::splitStatements(data::kSchema))
    connection_->Execute(statement);
  connection_->CommitTrans();
}

TemporaryDatabase::~TemporaryDatabase() {
  connection_.reset();
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

}  // namespace korvantes::support
