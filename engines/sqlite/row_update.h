#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engines/sqlite/database.h"
#include "engines/tsql/catalogue.h"
#include "runtime/ado/recordset.h"

namespace korvantes::sqlite {

/// The open database; a recordset may outlive its connection.
struct Session {
  Session(const std::string& file, int busyMilliseconds)
      : database(file, busyMilliseconds), transaction(database) {}
  Database database;
  Transaction transaction;
};

/// Writes changed fields of one row back. The row is found by the key it was fetched with.
class RowUpdate : public ado::RowWriter {
 public:
  RowUpdate(std::weak_ptr<Session> session, tsql::TableDefinition table);

  /// Takes the key from the first row of a result. Throws Error if a key column is missing.
  void rememberKey(const ado::Recordset& rows);

  void write(const std::vector<std::pair<std::string, ado::Variant>>& changes) override;

 private:
  std::weak_ptr<Session> session_;
  tsql::TableDefinition table_;
  std::vector<tsql::StoredValue> key_;
};

}  // namespace korvantes::sqlite
