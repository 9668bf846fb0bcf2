#include "tests/sqlite/engine_fixture.h"

#include <fstream>
#include <sstream>

#include "engines/tsql/compiler.h"

namespace korvantes::testing_engines {

ado::Error errorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const ado::Error& error) {
    EXPECT_STRNE(error.what(), "");
    return error;
  }
  ADD_FAILURE() << "no error";
  return {0, ""};
}

void FileTest::makeBase() const {
  std::stringstream text;
  text << std::ifstream(KORVANTES_SCHEMA_FILE).rdbuf();
  SqliteConnection connection(path_, kCreate);
  connection.BeginTrans();
  for (const auto& statement : tsql::splitStatements(text.str())) connection.Execute(statement);
  connection.CommitTrans();
}

std::string EngineTest::row(std::string_view statement) {
  const auto found = rows(statement);
  EXPECT_EQ(found.size(), 1U) << statement;
  return found.empty() ? "no row" : found.front();
}

ado::Error EngineTest::failure(std::string_view statement) {
  SCOPED_TRACE(statement);
  auto error = errorOf([&] { run(statement); });
  EXPECT_EQ(error.subject(), ado::subjectOf(statement));
  return error;
}

}  // namespace korvantes::testing_engines
