#include <fstream>
#include <gmock/gmock.h>

#include "tests/tsql/cases.h"

namespace korvantes::tsql {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Statements, WhatIsInTheSubsetCompilesToItsColumns) {
  Compiler compiler(schema());
  for (const auto& accepted : casesOf("accepted.sql")) {
    SCOPED_TRACE(accepted.statement);
    ASSERT_EQ(refusalOf(compiler, accepted.statement), "");
    EXPECT_EQ(columnsOf(*compiler.compile(accepted.statement).statement), accepted.expected);
  }
}

TEST(Statements, TheExamplesOfTheManualCompile) {
  std::ifstream page(std::string(KORVANTES_SOURCE) + "/docs/sql-subset.md");
  Compiler compiler(schema());
  bool inside = false;
  int statements = 0;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("```")) {
      inside = line == "```sql";
    } else if (inside) {
      ++statements;
      EXPECT_EQ(refusalOf(compiler, line), "") << line;
    }
  }
  EXPECT_GT(statements, 15);
}

TEST(Statements, WhatIsOutsideTheSubsetIsRefusedWithPlaceAndWord) {
  Compiler compiler(schema());
  for (const auto& rejected : casesOf("rejected.sql")) {
    SCOPED_TRACE(rejected.statement);
    EXPECT_EQ(refusalOf(compiler, rejected.statement), rejected.expected);
    // A refusal caches nothing that a second try could run.
    EXPECT_EQ(refusalOf(compiler, rejected.statement), rejected.expected);
  }
}

TEST(Statements, PlacesCountLinesAndCharacters) {
  Compiler compiler(schema());
  EXPECT_EQ(refusalOf(compiler, "/* \n */ SELECT 'ñandú',\n  'él', Xx\nFROM Cav"),
            "Línea 3, columna 9: no existe la columna «Xx».");
  EXPECT_EQ(refusalOf(compiler, " \n -- nada\n"), "La sentencia está vacía.");
  EXPECT_EQ(refusalOf(compiler, ""), "La sentencia está vacía.");
}

TEST(Statements, TextsTooDeepOrTooLongAreRefusedAndNotRun) {
  Compiler compiler(schema());
  const auto repeated = [](std::string_view text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) result += text;
    return result;
  };
  const std::vector<std::string> texts{
      "SELECT " + repeated("(", 5000),
      "SELECT " + repeated("(", 500) + "1" + repeated(")", 500),
      "SELECT " + repeated("- ", 5000) + "1",
      "SELECT 1" + repeated("+1", 5000),
      "SELECT 1 WHERE " + repeated("NOT ", 5000) + "1=1",
      "SELECT " + repeated("(SELECT ", 5000),
      "SELECT " + repeated("CASE WHEN 1=1 THEN ", 5000),
  };
  for (const auto& text : texts) {
    EXPECT_THAT(refusalOf(compiler, text), HasSubstr("la sentencia es demasiado compleja"));
  }
  const auto list = "SELECT Cav_Id FROM Cav WHERE Cav_Id IN (1" + repeated(",1", 40000) + ")";
  EXPECT_THAT(refusalOf(compiler, list), HasSubstr("demasiados valores"));
  EXPECT_EQ(refusalOf(compiler, "SELECT 1 WHERE 1=1" + repeated(" AND 1=1", 300)), "");
}

/// Every prefix of a statement, and the statement with any one character replaced, either compiles
/// or is refused.
TEST(Statements, DamagedTextsNeverDoWorseThanARefusal) {
  Compiler compiler(schema());
  const auto cases = casesOf("accepted.sql");
  for (std::size_t c = 0; c < cases.size(); c += 4) {
    const auto& statement = cases[c].statement;
    for (std::size_t i = 0; i < statement.size(); ++i) {
      refusalOf(compiler, statement.substr(0, i));
      std::string damaged = statement;
      damaged[i] = "'(.;\0["[i % 6];
      refusalOf(compiler, damaged);
    }
  }
}

TEST(Statements, DescribeWhatTheEngineHasToKnow) {
  Compiler compiler(schema());
  const auto one = compiler.compile("select * from AGE where AGE_ID= 7");
  EXPECT_EQ(one.statement->kind, StatementKind::Select);
  EXPECT_EQ(one.statement->table, "Age");
  const auto shared = compiler.compile("select * from VESPARA.dbo.pais");
  EXPECT_EQ(shared.statement->database + "." + shared.statement->table, "Vespara.PAIS");
  EXPECT_EQ(compiler.compile("select * from Cav, Fav").statement->table, "");
  const auto created = compiler.compile(
      "CREATE TABLE vespara.dbo.T (A int IDENTITY(1,1) PRIMARY KEY, B varchar(3) NOT NULL)");
  ASSERT_TRUE(created.statement->created);
  EXPECT_EQ(created.statement->created->database, "Vespara");
  EXPECT_EQ(created.statement->created->primaryKey, std::vector<std::string>{"A"});
  EXPECT_TRUE(created.statement->created->columns[0].identity);
  EXPECT_FALSE(created.statement->created->columns[1].nullable);
  EXPECT_EQ(created.statement->text,
            "CREATE TABLE \"Vespara\".\"T\" (\"A\" INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT, "
            "\"B\" TEXT COLLATE KV_TEXT NOT NULL) STRICT");
  EXPECT_EQ(compiler.compile("DROP TABLE Rec").statement->droppedTable, "Rec");
}

TEST(SplitStatements, CutsAtGoLinesAndAtLinesThatEndInASemicolon) {
  EXPECT_THAT(
      splitStatements("SELECT 1;\n  SELECT\n 2 ;  \nSELECT 3\nGO\nSELECT 4\n  go  \r\nGO\n"),
      ElementsAre("SELECT 1", "SELECT\n 2", "SELECT 3", "SELECT 4"));
  EXPECT_THAT(splitStatements("SELECT 1; SELECT 2;\r\nSELECT 3"),
              ElementsAre("SELECT 1; SELECT 2", "SELECT 3"));
  EXPECT_THAT(splitStatements("\xEF\xBB\xBFSELECT 1; -- one\nSELECT 2; /* two */\n"),
              ElementsAre("SELECT 1", "SELECT 2"));
}

TEST(SplitStatements, LeavesQuotesCommentsAndBracketsWhole) {
  EXPECT_THAT(splitStatements("SELECT 'a;\nGO\n''b;\n';\nSELECT [x;\n] /* ;\nGO\n */ -- ;\n, 1"),
              ElementsAre("SELECT 'a;\nGO\n''b;\n'", "SELECT [x;\n] /* ;\nGO\n */ -- ;\n, 1"));
  EXPECT_THAT(splitStatements("-- only\n/* comments;\n */;\n\n;\nGO\n"), ElementsAre());
  EXPECT_THAT(splitStatements("SELECT 'open;\nGO\n"), ElementsAre("SELECT 'open;\nGO"));
}

}  // namespace
}  // namespace korvantes::tsql
