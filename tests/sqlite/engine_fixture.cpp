#include "tests/sqlite/engine_fixture.h"

#include <fstream>
#include <sstream>

#include "engines/tsql/compiler.h"

namespace korvantes::testing_engines {

void makeTables(ado::Connection& connection) {
  std::ifstream file(KORVANTES_SCHEMA_FILE);
  std::stringstream text;
  text << file.rdbuf();
  connection.BeginTrans();
  for (const std::string& statement : tsql::splitStatements(text.str())) {
    connection.Execute(statement);
  }
  connection.CommitTrans();
}

std::string EngineTest::cell(std::string_view statement) {
  const auto lines = rows(statement);
  EXPECT_EQ(lines.size(), 1U) << statement;
  return lines.empty() ? "no row" : lines.front();
}

long EngineTest::failure(std::string_view statement) {
  try {
    run(statement);
  } catch (const ado::Error& error) {
    EXPECT_NE(std::string(error.what()), "");
    EXPECT_EQ(error.subject(), ado::subjectOf(statement));
    return error.number();
  }
  ADD_FAILURE() << "no error: " << statement;
  return 0;
}

}  // namespace korvantes::testing_engines
