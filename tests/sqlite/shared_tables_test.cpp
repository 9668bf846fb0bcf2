#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class SharedTablesTest : public EngineTest {
 protected:
  void rate(int id, const std::string& date, const std::string& percent) {
    run("insert into Vespara.dbo.Tivas (Tiva_Id, Tiva_reg, Tiva_Art, Tiva_Fecha, Tiva_Iva, "
        "Tiva_Ret)"
        " values (" +
        std::to_string(id) + ", 2, 1, '" + date + "', " + percent + ", 15)");
  }
  std::vector<std::string> rateOn(const std::string& condition) {
    return rows("Select Top 1 * from Vespara.dbo.Tivas WHERE Tiva_reg = 2 AND Tiva_Art = 1 " +
                condition + " ORDER BY Tiva_Fecha Desc");
  }
};

TEST_P(SharedTablesTest, TheRateInForceIsTheLatestNotAfterTheDay) {
  rate(1, "01/07/2010", "18");
  rate(2, "01/09/2012", "21");
  EXPECT_EQ(rateOn(" AND Tiva_Fecha <= '31/08/2012'"),
            std::vector<std::string>{"1|2|1|01/07/2010|18.00|15.00"});
  EXPECT_EQ(rateOn(" AND Tiva_Fecha <= '01/09/2012'"),
            std::vector<std::string>{"2|2|1|01/09/2012|21.00|15.00"});
  EXPECT_EQ(rateOn("").size(), 1U);
  EXPECT_TRUE(rateOn(" AND Tiva_Fecha <= '30/06/2010'").empty());
}

TEST_P(SharedTablesTest, TheyAreNamedWithTheirDatabaseInAnyCase) {
  run("insert into VESPARA.dbo.prov (PROV_COD, PROV_NOM) values (28, 'Madrid')");
  run("insert into vespara.dbo.PROV (PROV_COD, PROV_NOM) values (1, 'Álava')");
  EXPECT_EQ(rows("Select * from vespara.dbo.PROV"),
            (std::vector<std::string>{"1|Álava", "28|Madrid"}));
  failure("Select * from PROV");
  const auto other = connect();
  EXPECT_EQ(rowsOf(other->Execute("Select PROV_NOM from Vespara.dbo.PROV where PROV_COD = 28")),
            std::vector<std::string>{"Madrid"});
}

KORVANTES_ON_EACH_ENGINE(SharedTablesTest);

}  // namespace
}  // namespace korvantes::testing_engines
