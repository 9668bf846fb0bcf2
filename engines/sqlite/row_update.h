#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engines/sqlite/database.h"
#include "engines/tsql/catalogue.h"
#include "runtime/ado/recordset.h"

namespace korvantes::sqlite {

/// The open database as a recordset that outlives its connection may still hold it.
struct Session {
  Session(const std::string& file, const std::string& partner, int busyMilliseconds)
      : database(file, partner, busyMilliseconds), transaction(database) {}
  Database database;
  Transaction transaction;
};

/// Writes changed fields of one row back, found by the key that it was fetched with.
class RowUpdate : public ado::RowWriter {
 public:
  RowUpdate(std::weak_ptr<Session> session, tsql::TableDefinition table);

  /// Takes the key from the first row of a result. Throws Error when a column of it is missing.
  void rememberKey(const ado::Recordset& rows);

  void write(const std::vector<std::pair<std::string, ado::Variant>>& changes) override;

 private:
  std::weak_ptr<Session> session_;
  tsql::TableDefinition table_;
  std::vector<tsql::StoredValue> key_;
};

}  // namespace korvantes::sqlite
