#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engines/sqlite/sqlite_connection.h"
#include "tests/support/rows.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::testing_engines {

using support::rowsOf;
using support::TemporaryFolder;

/// Runs statements of data/schema.sql, all tables empty.
void makeTables(ado::Connection& connection);

/// A database with all tables, and a connection to it.
class EngineTest : public testing::Test {
 protected:
  EngineTest() { makeTables(*connection_); }
  /// A further connection, which waits for other writers as little as it can.
  std::unique_ptr<ado::Connection> connect() {
    return std::make_unique<sqlite::SqliteConnection>(folder_.file("empresa.db"),
                                                      sqlite::OpenOptions{true, 20});
  }
  ado::Recordset run(std::string_view statement) { return connection_->Execute(statement); }
  std::vector<std::string> rows(std::string_view statement) { return rowsOf(run(statement)); }
  /// The one cell of a result.
  std::string cell(std::string_view statement);
  /// The number of the Error that a statement ends in; fails the test when it runs.
  long failure(std::string_view statement);

  TemporaryFolder folder_;
  std::unique_ptr<ado::Connection> connection_ = connect();
};

}  // namespace korvantes::testing_engines
