#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engines/sqlite/sqlite_connection.h"
#include "tests/support/rows.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::testing_engines {

using ado::ErrorKind;
using sqlite::SqliteConnection;
using support::rowsOf;
using Rows = std::vector<std::string>;

/// Creates what is missing, and waits for other writers as little as it can.
inline constexpr sqlite::OpenOptions kCreate{true, 20};

/// The Error that a call ends in; fails the test if there is none.
ado::Error errorOf(const std::function<void()>& call);

/// A folder for a database and its shared file, both still missing.
class FileTest : public testing::Test {
 protected:
  /// Creates both files with all tables of data/schema.sql, empty.
  void makeBase() const;

  support::TemporaryFolder folder_;
  std::string path_ = folder_.file("empresa.db");
  std::string partner_ = path_ + ".vespara";
};

/// A database with all tables, and a connection to it.
class EngineTest : public FileTest {
 protected:
  EngineTest() { makeBase(); }
  std::unique_ptr<ado::Connection> connect() {
    return std::make_unique<SqliteConnection>(path_, kCreate);
  }
  ado::Recordset run(std::string_view statement) { return connection_->Execute(statement); }
  Rows rows(std::string_view statement) { return rowsOf(run(statement)); }
  /// The one row of a result.
  std::string row(std::string_view statement);
  /// The Error that a statement ends in.
  ado::Error failure(std::string_view statement);

  std::unique_ptr<ado::Connection> connection_ = connect();
};

}  // namespace korvantes::testing_engines
