#include <algorithm>
#include <gmock/gmock.h>

#include "data/commission_rule.h"
#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

const std::string kPending =
    "SELECT Cav_Id,Cav_NFiscal,Fav_Serie,Fav_Numero,Fav_Fecha, (Cav_Serie + '/' + cast(Cav_Numero "
    "as varchar(5))) as Albaran, (SELECT (round(cast((ROUND(cast(SUM(lav_Importe) as money),2)) - "
    " (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2)) -  (round(cast "
    "(((((ROUND(cast(SUM(lav_Importe) as money),2)) -  (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / "
    "100)as money),2))) * Cav_Dto2 /100)) as money),2))as money),2)) FROM laV where laV_Idcav= "
    "cav_id) as Importe FROM Cav INNER JOIN Fav ON  Fav_Id = Cav_IdFactura WHERE (Cav_IdLca Is "
    "Null Or Cav_IdLca = 0) And Cav_Situa = 2 AND Cav_Agente = 5";
const std::string kCollected =
    " AND Fav_Id IN (SELECT Rec_IdFac  FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit <> 8 GROUP "
    "BY Rec_IdFac HAVING COUNT(Rec_Id)= (SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id "
    "AND Rec_Sit=5))";
const std::string kUnpaid =
    " AND Fav_Id IN (SELECT Rec_IdFac  FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit <> 8 GROUP "
    "BY Rec_IdFac HAVING COUNT(Rec_Id)= (SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id "
    "AND Rec_Sit IN(1,2,3,4)))";
const std::string kBoth =
    " AND Fav_Id  in (SELECT Rec_idfac FROM REc where Rec_IdFac = Fav_Id and  Rec_Sit <= 5 AND "
    "Rec_Sit <> 8)";
const std::string kRates =
    "Select Top 1 * from Vespara.dbo.Tivas WHERE Tiva_reg = 2 AND Tiva_Art = 1  ";
const std::string kNewestFirst = " order by Fav_Fecha desc ";

TEST(SettlementStatements, TheSearchSendsOneStatementWithTheChosenConditions) {
  struct Case {
    bool collected, pending;
    std::string limit, condition;
  };
  const Case cases[] = {
      {false, false, "", ""},
      {true, false, "", kCollected},
      {false, true, "", kUnpaid},
      {true, true, "10102026", kBoth + " AND Fav_Fecha <= '10/10/2026'"},
  };
  World world;
  for (const Case& each : cases) {
    world.show([&](Screen& screen) {
      screen.paste(4, each.limit);
      screen.go("cmbBuscarFacturas");
      world.connection->forgetCalls();
      screen.search("005", each.collected, each.pending);
      const auto& calls = world.connection->calls();
      EXPECT_EQ(calls.at(0), "SELECT Age_ID,Age_NOM,Age_Reg FROM Age WHERE  Age_id = 5");
      EXPECT_EQ(calls.at(1), kPending + each.condition + kNewestFirst);
      for (std::size_t row = 0; row < screen.list().Count(); ++row)
        EXPECT_EQ(calls.at(2 + row),
                  data::sentenciaComision(3, std::stoi(screen.list().item(row).Tag), 0));
    });
  }
}

TEST(SettlementStatements, TheRatesAreAskedForByRegimeAndDay) {
  World world;
  world.show([&](Screen& screen) {
    screen.search("5", false, false);
    EXPECT_EQ(world.connection->calls().back(), kRates + "ORDER BY Tiva_Fecha Desc");
    screen.type(2, "30062026");
    screen.go("cmdGrabar");
    EXPECT_EQ(world.connection->calls().back(),
              kRates + "AND Tiva_Fecha <= '30/06/2026' ORDER BY Tiva_Fecha Desc");
  });
}

TEST(SettlementStatements, ASearchDuringAnotherListsNoNoteTwice) {
  World world;
  world.show([&](Screen& screen) {
    screen.search("5", false, false);
    const auto listed = screen.contents();
    screen.click("cmdCancelar");
    screen.go("cmbBuscarFacturas");
    // A second Enter on the button, while the first search lets pending events run.
    world.desktop.sendKeys("\r");
    world.connection->forgetCalls();
    world.desktop.user().click(screen.control("cmbBuscarFacturas"));
    EXPECT_EQ(std::ranges::count(world.connection->calls(), kPending + kNewestFirst), 2);
    EXPECT_EQ(screen.contents().size(), listed.size());
  });
}

TEST(SettlementStatements, ReplacingASettlementRemovesItAndWritesANewOne) {
  World world;
  const int old = world.settle({1, 3});
  const std::string sOld = std::to_string(old), sNew = std::to_string(old + 1);
  world.show(
      [&](Screen& screen) {
        screen.tick(screen.rowOf(3), false);
        world.connection->forgetCalls();
        screen.click("cmdGrabar");
      },
      old);
  EXPECT_THAT(
      world.connection->calls(),
      ElementsAre("Select Lcd_IdCav from Lcd where Lcd_IdLca = " + sOld, "BeginTrans",
                  "Update Cav set Cav_IdLca = Null where Cav_IdLca = " + sOld,
                  "delete from Lcd where Lcd_IdLca=" + sOld, "delete from Lca where Lca_Id=" + sOld,
                  StartsWith("INSERT INTO Lca ("), "Select max(Lca_id) from Lca",
                  StartsWith("INSERT INTO Lcd ("),
                  "Update Cav set Cav_IdLca = " + sNew + "where cav_id = 1", "CommitTrans"));
}

}  // namespace
}  // namespace korvantes::settlement
