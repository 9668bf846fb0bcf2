#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "outside/ado/connection.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::testing_engines {

using support::TemporaryFolder;

/// A database that one engine makes for one test; it can be connected to several times.
class TestDatabase {
 public:
  virtual ~TestDatabase() = default;
  /// Waits for other writers as little as it can.
  virtual std::unique_ptr<ado::Connection> connect() = 0;
};

struct Engine {
  std::string name;
  std::unique_ptr<TestDatabase> (*make)();

  friend void PrintTo(const Engine& engine, std::ostream* out) { *out << engine.name; }
};

/// The engines that the conformance suite runs on.
std::vector<Engine> engines();
std::string nameOf(const testing::TestParamInfo<Engine>& info);

/// A value as text: exact decimals with their scale, dates day first, Null as NULL.
std::string shown(const ado::Variant& value);

/// The rows of a result, cells joined by '|'.
std::vector<std::string> rowsOf(const ado::Recordset& rows);

/// Runs statements of data/schema.sql, all tables empty.
void makeTables(ado::Connection& connection);

/// A database with all tables, and a connection to it.
class EngineTest : public testing::TestWithParam<Engine> {
 protected:
  EngineTest();
  std::unique_ptr<ado::Connection> connect() { return database_->connect(); }
  ado::Recordset run(std::string_view statement) { return connection_->Execute(statement); }
  std::vector<std::string> rows(std::string_view statement) { return rowsOf(run(statement)); }
  /// The one cell of a result.
  std::string cell(std::string_view statement);
  /// The number of the Error that a statement ends in; fails the test when it runs.
  long failure(std::string_view statement);

  std::unique_ptr<TestDatabase> database_;
  std::unique_ptr<ado::Connection> connection_;
};

}  // namespace korvantes::testing_engines

#define KORVANTES_ON_EACH_ENGINE(suite)                                                \
  INSTANTIATE_TEST_SUITE_P(Engines, suite,                                             \
                           testing::ValuesIn(::korvantes::testing_engines::engines()), \
                           ::korvantes::testing_engines::nameOf)
