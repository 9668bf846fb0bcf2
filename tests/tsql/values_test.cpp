#include <gtest/gtest.h>

#include "engines/sqlite/sqlite_connection.h"
#include "tests/support/failure.h"
#include "tests/support/rows.h"
#include "tests/support/temporary_folder.h"
#include "tests/tsql/cases.h"

namespace korvantes::tsql {
namespace {

using support::shown;

/// A database with the one row of values.sql.
class Values : public testing::Test {
 protected:
  Values() {
    for (const char* table : {kTable, "CREATE TABLE Dos (Fila int)"}) {
      connection_.Execute(table);
      catalogue_->add(*compiler_.compile(table).statement->created);
    }
    connection_.Execute("INSERT INTO Dos VALUES (1), (2)");
    connection_.Execute(
        "INSERT INTO V VALUES (7, NULL, 2147483647, 5, 10.05, 0.0049, 922337203685477.5807, 12.5, "
        "7.5, 'Ñandú ', 'ab', '12.5', '28/02/2026')");
  }

  std::string evaluate(const std::string& expression) {
    const std::string statement = "SELECT " + expression + " FROM V";
    std::string value;
    const std::string refusal = support::failureOf([&] {
      const auto type = nameOf(compiler_.compile(statement).statement->types.front());
      value = type + " " + shown(connection_.Execute(statement).cell(0, 0));
    });
    return refusal.empty() ? value : "! " + refusal;
  }

  std::string failureOf(const char* statement) {
    return support::failureOf([&] { connection_.Execute(statement); });
  }

  static constexpr const char* kTable =
      "CREATE TABLE V (i int, n int, k int, b bit, m money, r money, big money, d decimal(5,2), "
      "e decimal(6,3), t varchar(20), c char(5), z varchar(10), f date)";
  support::TemporaryFolder folder_;
  sqlite::SqliteConnection connection_{folder_.file("base"), {.create = true}};
  std::shared_ptr<Catalogue> catalogue_ = std::make_shared<Catalogue>();
  Compiler compiler_{catalogue_};
};

TEST_F(Values, ExpressionsHaveTheServersTypesAndValues) {
  for (const auto& c : casesOf("values.sql")) {
    EXPECT_EQ(evaluate(c.statement), c.expected) << c.statement;
  }
}

TEST_F(Values, WhatIsAssignedIsConvertedOrRefused) {
  const std::pair<const char*, const char*> cases[] = {
      {"i = m", "int 10"},
      {"i = d + 0.4", "int 12"},
      {"i = k + 1.0", "! El resultado de un cálculo es demasiado grande."},
      {"i = z", "! El texto no es un número: «12.5»."},
      {"m = d * e / 100", "money 0.9375"},
      {"d = m * 100", "! El resultado de un cálculo es demasiado grande."},
      {"d = m / 3", "decimal(5,2) 3.35"},
      {"t = i", "varchar(20) 7"},
      {"t = t + t + t + t", "! El texto es demasiado largo para la columna «t»."},
      {"t = c + '            ' + c", "varchar(20) ab               ab "},
      {"c = i", "char(5) 7    "},
      {"c = t", "char(5) Ñandú"},
      {"c = k", "! El texto es demasiado largo para la columna «c»."},
      {"f = '1/12/2026'", "date 01/12/2026"},
      {"f = t", "! El texto no es una fecha: «Ñandú »."},
      {"b = i - 7", "bit False"},
  };
  for (const auto& [change, expected] : cases) {
    connection_.BeginTrans();
    const std::string refusal = failureOf((std::string("UPDATE V SET ") + change).c_str());
    EXPECT_EQ(refusal.empty() ? evaluate(std::string(1, change[0])) : "! " + refusal, expected)
        << change;
    connection_.RollbackTrans();
  }
}

TEST_F(Values, NullNeverReachesAColumnThatForbidsIt) {
  connection_.Execute("CREATE TABLE K (Id int PRIMARY KEY, A varchar(2) NOT NULL)");
  EXPECT_EQ(failureOf("INSERT INTO K SELECT n, 'a' FROM V"),
            "La columna «Id» no puede quedar vacía.");
  EXPECT_EQ(failureOf("INSERT INTO K (Id, A) VALUES (1, (SELECT t FROM V WHERE i = 8))"),
            "La columna «A» no puede quedar vacía.");
  EXPECT_EQ(failureOf("INSERT INTO K (Id, A) VALUES (1, 'a'), (2, 'b')"), "");
  EXPECT_EQ(failureOf("INSERT INTO K SELECT i, c FROM V"), "");
  EXPECT_EQ(failureOf("INSERT INTO K SELECT i, '' + z FROM V WHERE LEN(z) = 1"), "");
  EXPECT_EQ(failureOf("INSERT INTO K SELECT k, CAST(i AS varchar(1)) FROM V"), "");
  EXPECT_EQ(failureOf("UPDATE K SET A = NULL + 'x'"), "La columna «A» no puede quedar vacía.");
}

TEST_F(Values, GroupsDistinctAndOrderCompareTextsTheSameWay) {
  connection_.Execute("CREATE TABLE T (A varchar(10), N int)");
  connection_.Execute(
      "INSERT INTO T VALUES ('ana', 1), ('ANA ', 2), ('ñu', 3), ('Ola', 4), ('nube', 5), "
      "(NULL, 6)");
  const auto rows = [&](const char* statement) {
    std::string text;
    const auto result = connection_.Execute(statement);
    for (std::size_t row = 0; row < result.RecordCount(); ++row) {
      text += shown(result.cell(row, result.definitions().size() - 1)) + " ";
    }
    return text;
  };
  EXPECT_EQ(rows("SELECT N FROM T ORDER BY A, N DESC"), "6 2 1 5 3 4 ");
  EXPECT_EQ(rows("SELECT A + '' AS B, N FROM T WHERE N > 2 ORDER BY B DESC"), "4 3 5 6 ");
  EXPECT_EQ(rows("SELECT A, COUNT(*) FROM T GROUP BY A ORDER BY 1"), "1 2 1 1 1 ");
  EXPECT_EQ(rows("SELECT COUNT(DISTINCT A) FROM T"), "4 ");
  EXPECT_EQ(rows("SELECT COUNT(DISTINCT A + '.') FROM T"), "5 ");
  EXPECT_EQ(rows("SELECT DISTINCT TOP 2 UPPER(A) X FROM T ORDER BY X"), "NULL ANA ");
  EXPECT_EQ(rows("SELECT LOWER(A) FROM T WHERE N = 2 UNION SELECT A FROM T WHERE N = 1"), "ana ");
  EXPECT_EQ(rows("SELECT MAX(A) FROM T"), "Ola ");
  EXPECT_EQ(rows("SELECT TOP 0 N FROM T"), "");
  EXPECT_EQ(
      rows("SELECT N FROM T a WHERE N = (SELECT MAX(b.N) FROM T b WHERE b.A = a.A) ORDER BY N"),
      "2 3 4 5 ");
}

}  // namespace
}  // namespace korvantes::tsql
