#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

const std::string kNet =
    "(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2)"
    "- ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) "
    "as money),2) * Cav_DTO2 /100 AS MONEY),2))";

const std::string kCommission = "SELECT ISNULL(ROUND(CAST( " + kNet +
                                "/100 * Lav_Comi AS Money),2),0) AS Comision "
                                "FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav ";

const std::string kWholeNote =
    "(SELECT (round(cast((ROUND(cast(SUM(lav_Importe) as money),2)) -  "
    "(ROUND(cast((SUM(lav_Importe)"
    " * Cav_Dto1 / 100)as money),2)) -  (round(cast (((((ROUND(cast(SUM(lav_Importe) as money),2)) "
    "-"
    "  (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2))) * Cav_Dto2 /100)) as "
    "money),2))"
    "as money),2)) FROM laV where laV_Idcav= cav_id) as Importe ";

class CommissionTest : public EngineTest {
 protected:
  CommissionTest() {
    run("insert into Cav (Cav_Id, Cav_Dto1, Cav_DTO2) values (1, 10, 5)");
    line(1, "10.05", "7.5");
    line(2, "20.05", "7.5");
  }
  void line(int id, const std::string& amount, const std::string& commission) {
    run("insert into Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) values (" + std::to_string(id) +
        ", 1, " + amount + ", " + commission + ")");
  }
  std::string wholeNote() { return cell("SELECT " + kWholeNote + "FROM Cav "); }
  std::vector<std::string> commissions() { return rows(kCommission + "WHERE Cav_id = 1"); }
};

TEST_P(CommissionTest, EachLineIsRoundedOnItsOwn) {
  EXPECT_EQ(commissions(), (std::vector<std::string>{"0.6400", "1.2900"}));
  EXPECT_EQ(rows(kCommission + " WHERE Lav_Id = 2"), std::vector<std::string>{"1.2900"});
  EXPECT_EQ(rows("SELECT " + kNet + " AS Base FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav"),
            (std::vector<std::string>{"8.5900", "17.1400"}));
  EXPECT_EQ(run(kCommission + "WHERE Cav_id = 1").Fields(0).Name(), "Comision");
  EXPECT_TRUE(rows(kCommission + "WHERE Cav_id = 2").empty());
}

TEST_P(CommissionTest, TheWholeNoteIsDiscountedAfterTheSum) {
  EXPECT_EQ(wholeNote(), "25.7400");
  line(3, "-10.05", "7.5");
  EXPECT_EQ(commissions().back(), "-0.6400");
  run("update Cav set Cav_Dto1 = Null where Cav_Id = 1");
  EXPECT_EQ(wholeNote(), "NULL");
  run("update Cav set Cav_Dto1 = 10 where Cav_Id = 1");
  run("delete from Lav where Lav_IdCav = 1");
  EXPECT_EQ(wholeNote(), "NULL");
}

TEST_P(CommissionTest, ALineWithoutCommissionGivesZeroAndTheOthersCount) {
  line(3, "100", "NULL");
  line(4, "NULL", "7.5");
  EXPECT_EQ(commissions(), (std::vector<std::string>{"0.6400", "1.2900", "0.0000", "0.0000"}));
}

TEST_P(CommissionTest, TheServerSumsANoteInsideTheReportsStatement) {
  run("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (9, 1)");
  run("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (9, 2)");
  EXPECT_EQ(rows("SELECT Lcd_IdCav, (SELECT SUM(ISNULL(ROUND(CAST( " + kNet +
                 "/100 * Lav_Comi AS Money),2),0)) FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav "
                 "WHERE Cav_Id = Lcd_IdCav) AS Comision, Lcd_IdLca FROM Lcd ORDER BY Lcd_IdCav"),
            (std::vector<std::string>{"1|1.9300|9", "2|NULL|9"}));
}

TEST_P(CommissionTest, OrdersFollowTheSameRule) {
  run("insert into PedCa (PedCa_Id, PedCa_Dto1, PEDCA_DTO2) values (4, 10, 5)");
  run("insert into PedLi (LiPed_Id, PedLi_IdPedca, PedLi_Importe, PedLi_Comi) "
      "values (8, 4, 10.05, 7.5)");
  EXPECT_EQ(
      cell("SELECT ISNULL(ROUND(CAST( (ROUND(CAST(PedLi_Importe - ROUND(CAST((PedLi_Importe * "
           "PedCa_Dto1 / 100) AS Money),2) as money),2)- ROUND(CAST(ROUND(CAST(PedLi_Importe - "
           "ROUND(CAST((PedLi_Importe * PedCa_Dto1 / 100) AS Money),2) as money),2) * PEDCA_DTO2 "
           "/100 AS MONEY),2))/100 * PedLi_Comi AS Money),2),0) AS Comision FROM PedLi INNER JOIN "
           "PedCa ON PedCa_Id = PedLi_IdPedca  WHERE LiPed_Id = 8"),
      "0.6400");
}

KORVANTES_ON_EACH_ENGINE(CommissionTest);

}  // namespace
}  // namespace korvantes::testing_engines
