#include "tests/sqlite/engine_fixture.h"

#include <fstream>
#include <sstream>

#include "engines/sqlite/sqlite_connection.h"
#include "engines/tsql/compiler.h"

namespace korvantes::testing_engines {

namespace {

class SqliteDatabase : public TestDatabase {
 public:
  std::unique_ptr<ado::Connection> connect() override {
    return std::make_unique<sqlite::SqliteConnection>(folder_.file("empresa.db"),
                                                      sqlite::OpenOptions{true, 20});
  }

 private:
  TemporaryFolder folder_;
};

}  // namespace

std::vector<Engine> engines() {
  return {{"SQLite",
           []() -> std::unique_ptr<TestDatabase> { return std::make_unique<SqliteDatabase>(); }}};
}

std::string nameOf(const testing::TestParamInfo<Engine>& info) {
  return info.param.name;
}

std::string shown(const ado::Variant& value) {
  using Kind = ado::VariantKind;
  switch (value.kind()) {
    case Kind::Null:
      return "NULL";
    case Kind::Boolean:
      return value.boolean() ? "True" : "False";
    case Kind::Whole:
      return std::to_string(value.whole());
    case Kind::Decimal:
      return value.decimal().text();
    case Kind::Date:
      return value.date().dayFirst();
    case Kind::Text:
      return value.text();
    case Kind::Bytes:
      return std::to_string(value.bytes().size()) + " bytes";
    case Kind::Double:
      break;
  }
  return "a double: " + std::to_string(value.asDouble());  // no engine gives one
}

std::vector<std::string> rowsOf(const ado::Recordset& rows) {
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
    std::string line;
    for (std::size_t field = 0; field < rows.definitions().size(); ++field) {
      line += (field == 0 ? "" : "|") + shown(rows.cell(row, field));
    }
    lines.push_back(line);
  }
  return lines;
}

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

EngineTest::EngineTest() : database_(GetParam().make()), connection_(database_->connect()) {
  makeTables(*connection_);
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
