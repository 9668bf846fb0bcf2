#include <gtest/gtest.h>
#include <limits>

#include "engines/sqlite/sqlite_connection.h"
#include "engines/tsql/runtime.h"
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

  std::string failureOf(const std::string& statement) {
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
      {"t = i", "varchar(20) 7"},
      {"t = t + t + t + t", "! El texto es demasiado largo para la columna «t»."},
      {"t = c + '            ' + c", "varchar(20) ab               ab "},
      {"c = i", "char(5) 7    "},
      {"c = t", "char(5) Ñandú"},
      {"c = k", "! El texto es demasiado largo para la columna «c»."},
      {"f = t", "! El texto no es una fecha: «Ñandú »."},
      {"b = i - 7", "bit False"},
  };
  for (const auto& [change, expected] : cases) {
    connection_.BeginTrans();
    const std::string refusal = failureOf(std::string("UPDATE V SET ") + change);
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
  EXPECT_EQ(rows("SELECT COUNT(*) FROM T GROUP BY A HAVING COUNT(*) > 1"), "2 ");
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

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

TEST(Units, RoundsHalfAwayFromZeroAndCutsQuotientsOff) {
  EXPECT_EQ(rescaleUnits(10045000, 8, 4), 1005);
  EXPECT_EQ(rescaleUnits(10044999, 8, 4), 1004);
  EXPECT_EQ(rescaleUnits(-10045000, 8, 4), -1005);
  EXPECT_EQ(rescaleUnits(kMost, 18, 0), 9);
  EXPECT_EQ(roundUnits(-10050, 4, 2), -10100);
  EXPECT_EQ(roundUnits(12350, 0, -2), 12400);
  EXPECT_EQ(roundUnits(49, 0, -30), 0);
  EXPECT_EQ(divideUnits(kMost, kMost, 18), 1000000000000000000);
  EXPECT_EQ(divideUnits(129, 1, -1), 12);
}

TEST(Units, NothingIsReturnedBeyondSixtyFourBits) {
  EXPECT_EQ(addUnits(kMost, 1), std::nullopt);
  EXPECT_EQ(subtractUnits(0, kLeast), std::nullopt);
  EXPECT_EQ(multiplyUnits(3037000500, 3037000500), std::nullopt);
  EXPECT_EQ(multiplyUnits(kLeast, 1), kLeast);
  EXPECT_EQ(rescaleUnits(kMost, 0, 1), std::nullopt);
  EXPECT_EQ(roundUnits(kMost, 4, 0), std::nullopt);
  EXPECT_EQ(divideUnits(kLeast, -1, 0), std::nullopt);
  EXPECT_EQ(divideUnits(1, 0, 0), std::nullopt);
  EXPECT_EQ(divideUnits(kMost, 1, 30), std::nullopt);
}

}  // namespace
}  // namespace korvantes::tsql
