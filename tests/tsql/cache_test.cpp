#include <gmock/gmock.h>

#include "tests/tsql/cases.h"

namespace korvantes::tsql {
namespace {

using testing::ElementsAre;

StoredValue whole(std::int64_t value) {
  return value;
}
StoredValue text(const char* value) {
  return std::string(value);
}

class Cache : public testing::Test {
 protected:
  /// Whether both texts are one compiled statement.
  bool share(const char* a, const char* b) {
    const auto first = compiler_.compile(a).statement;
    return first == compiler_.compile(b).statement;
  }

  Compiler compiler_{schema()};
};

TEST_F(Cache, TextsThatDifferInTheirValuesAreOneStatement) {
  EXPECT_TRUE(share("SELECT Cav_Id FROM Cav WHERE Cav_id = 1",
                    "SELECT Cav_Id FROM Cav WHERE Cav_id = 4711"));
  EXPECT_TRUE(share("SELECT * FROM Lca WHERE Lca_Fecha <= '01/02/2026'",
                    "SELECT * FROM Lca WHERE Lca_Fecha <= '28/2/2026 '"));
  EXPECT_TRUE(share("INSERT INTO Lca (Lca_IdAg,Lca_Obs,Lca_Base) VALUES (1,'a',12.5)",
                    "INSERT INTO Lca (Lca_IdAg,Lca_Obs,Lca_Base) VALUES (2,'b''c',0.50)"));
  EXPECT_TRUE(share("UPDATE Cav SET Cav_IdLca = 1where Cav_Id = 2",
                    "UPDATE Cav SET Cav_IdLca = 3where Cav_Id = 4"));
}

TEST_F(Cache, TextsThatDifferInWhatDecidesTheirFormAreTwo) {
  const std::pair<const char*, const char*> pairs[] = {
      {"SELECT TOP 1 * FROM Cav", "SELECT TOP 2 * FROM Cav"},
      {"SELECT ROUND(Lav_Importe, 2) FROM Lav", "SELECT ROUND(Lav_Importe, 1) FROM Lav"},
      {"SELECT Cav_Dto1 / 100 FROM Cav", "SELECT Cav_Dto1 / 10 FROM Cav"},
      {"SELECT CAST(Cav_Id AS char(5)) FROM Cav", "SELECT CAST(Cav_Id AS char(6)) FROM Cav"},
      {"SELECT Cav_Id, Cav_Serie FROM Cav ORDER BY 1",
       "SELECT Cav_Id, Cav_Serie FROM Cav ORDER BY 2"},
      {"SELECT 'a' FROM Cav", "SELECT 'ab' FROM Cav"},
      {"SELECT * FROM Cav WHERE Cav_Id = 1", "SELECT * FROM Cav WHERE Cav_Id = '1'"},
      {"SELECT * FROM Cav WHERE Cav_Id = 1", "SELECT * FROM Cav WHERE Cav_Id = 1.5"},
  };
  for (const auto& [a, b] : pairs) {
    EXPECT_FALSE(share(a, b)) << b;
    EXPECT_TRUE(share(b, b)) << b;
    EXPECT_TRUE(share(a, a)) << a;
  }
}

TEST_F(Cache, ValuesComeInTheFormOfTheColumnTheyMeet) {
  const auto parameters = [&](const char* statement) {
    // The second time they come from the cache.
    EXPECT_EQ(compiler_.compile(statement).parameters, compiler_.compile(statement).parameters);
    return compiler_.compile(statement).parameters;
  };
  EXPECT_THAT(
      parameters(
          "SELECT * FROM Lav WHERE Lav_Importe = 12.5 AND Lav_Comi = 7 AND Lav_Id IN ('3', -4)"),
      ElementsAre(whole(125000), whole(7000), whole(3), whole(-4)));
  EXPECT_THAT(parameters("SELECT * FROM Fav WHERE Fav_Fecha BETWEEN '1/2/2026 ' AND '28/02/2026'"),
              ElementsAre(text("2026-02-01"), text("2026-02-28")));
  EXPECT_THAT(
      parameters("INSERT INTO Age (AGE_ID, AGE_NOM, AGE_PRO, AGE_COM, AGE_REG, AGE_CP) "
                 "VALUES ('13', N'O''Hara', 28, 7.5005, 2.9, 'ab        ')"),
      ElementsAre(whole(13), text("O'Hara"), text("28"), whole(7501), whole(2), text("ab      ")));
  EXPECT_THAT(
      parameters(
          "UPDATE Lca SET Lca_Base = -12.34567, Lca_PorIva = 21, Lca_Iva = '1.5', Lca_Cob = ''"),
      ElementsAre(whole(-123457), whole(2100), whole(15000), whole(0)));
}

TEST_F(Cache, AValueThatDoesNotFitIsRefusedAlsoWhenTheStatementIsKnown) {
  ASSERT_EQ(refusalOf(compiler_, "UPDATE Cav SET Cav_Serie = 'A', Cav_Dto1 = 1.5"), "");
  EXPECT_EQ(refusalOf(compiler_, "UPDATE Cav SET Cav_Serie = 'ABCDEFGHIJK', Cav_Dto1 = 1.5"),
            "Línea 1, columna 28: El texto es demasiado largo para la columna «Cav_Serie».");
  EXPECT_EQ(refusalOf(compiler_, "UPDATE Cav SET Cav_Serie = 'A', Cav_Dto1 = 1000.0"),
            "Línea 1, columna 44: el número 1000.0 no cabe en decimal(5,2).");
}

TEST_F(Cache, CommentsAndQuotesCannotPassForOneAnother) {
  EXPECT_FALSE(share("SELECT Cav_Id /* 1 */ FROM Cav WHERE Cav_Id = 1",
                     "SELECT Cav_Id FROM Cav WHERE Cav_Id = 1"));
  const char* quoted = "SELECT Cav_Id FROM Cav WHERE Cav_Serie = ''' OR 1=1 --'";
  EXPECT_TRUE(share("SELECT Cav_Id FROM Cav WHERE Cav_Serie = 'a'", quoted));
  EXPECT_THAT(compiler_.compile(quoted).parameters, ElementsAre(text("' OR 1=1 --")));
  EXPECT_NE(refusalOf(compiler_, "SELECT Cav_Id FROM Cav WHERE Cav_Serie = \x01"), "");
}

TEST_F(Cache, ForgetsOnDemandAndDoesNotGrowForEver) {
  const auto before = compiler_.compile("SELECT Cav_Id FROM Cav").statement;
  compiler_.clear();
  EXPECT_NE(compiler_.compile("SELECT Cav_Id FROM Cav").statement, before);
  const auto oldest = compiler_.compile("SELECT Cav_Id FROM Cav").statement;
  for (int i = 0; i < 3000; ++i) {
    compiler_.compile("SELECT " + std::to_string(i) + " FROM Cav");
    compiler_.compile("SELECT Cav_Id AS c" + std::to_string(i) + " FROM Cav");
  }
  EXPECT_NE(compiler_.compile("SELECT Cav_Id FROM Cav").statement, oldest);
}

}  // namespace
}  // namespace korvantes::tsql
