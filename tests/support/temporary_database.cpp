#include "tests/support/temporary_database.h"

#include "data/schema.h"
#include "engines/tsql/compiler.h"

namespace korvantes::support {

TemporaryDatabase::TemporaryDatabase() {
  connection_ = std::make_shared<sqlite::SqliteConnection>(
      path(), sqlite::OpenOptions{.create = true, .busyMilliseconds = 100});
  connection_->BeginTrans();
  for (const std::string& statement : tsql::splitStatements(data::kSchema))
    connection_->Execute(statement);
  connection_->CommitTrans();
}

}  // namespace korvantes::support
