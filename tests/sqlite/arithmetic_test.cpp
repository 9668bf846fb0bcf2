#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class ArithmeticTest : public EngineTest {
 protected:
  /// An expression over the one line and its note.
  std::string value(const std::string& expression) {
    return cell("SELECT " + expression + " AS X FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav");
  }
  void line(const std::string& amount, const std::string& discount = "10") {
    run("delete from Lav where Lav_Id = 1");
    run("delete from Cav where Cav_Id = 1");
    run("insert into Cav (Cav_Id, Cav_Numero, Cav_Dto1, Cav_DTO2) values (1, 12, " + discount +
        ", 5)");
    run("insert into Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) values (1, 1, " + amount +
        ", 7.5)");
  }
};

TEST_P(ArithmeticTest, AmountsKeepTheirDigits) {
  for (const char* amount : {"10.05", "-0.0001", "0.0000", "123456789.1234", "922337203685477.5807",
                             "-922337203685477.5807"}) {
    line(amount);
    EXPECT_EQ(value("Lav_Importe").substr(0, std::string(amount).size()), amount);
  }
  line("10.05");
  EXPECT_EQ(value("Lav_Comi"), "7.500");
  EXPECT_EQ(value("Cav_Dto1"), "10.00");
}

TEST_P(ArithmeticTest, EveryStageRoundsTwiceAndHalfAwayFromZero) {
  const std::string stage = "ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2)";
  const struct {
    const char* amount;
    const char* discount;
    const char* result;
  } cases[] = {{"10.05", "10", "1.0100"},    {"-10.05", "10", "-1.0100"},
               {"10.0496", "10", "1.0100"},  // 1.00496, to money 1.0050, to cents 1.01
               {"10.0494", "10", "1.0000"},  {"0.05", "10", "0.0100"},
               {"-0.05", "10", "-0.0100"},   {"0.0494", "10", "0.0000"},
               {"0.0001", "50", "0.0000"},   {"20.05", "0", "0.0000"},
               {"33.3333", "100", "33.3300"}};
  for (const auto& [amount, discount, result] : cases) {
    line(amount, discount);
    EXPECT_EQ(value(stage), result) << amount << " x " << discount;
  }
}

TEST_P(ArithmeticTest, NullGoesThroughUntilIsnullStopsIt) {
  line("NULL");
  EXPECT_EQ(value("ROUND(CAST(Lav_Importe * Cav_Dto1 / 100 AS money),2)"), "NULL");
  EXPECT_EQ(value("ISNULL(Lav_Importe - 1,0)"), "0.0000");
  EXPECT_EQ(cell("SELECT SUM(Lav_Importe) FROM Lav"), "NULL");
  EXPECT_EQ(cell("select isnull(max(age_id),0) +1 from age"), "1");
  EXPECT_TRUE(rows("SELECT Lav_Id FROM Lav WHERE Lav_Importe = Lav_Importe").empty());
  EXPECT_TRUE(rows("SELECT Lav_Id FROM Lav WHERE Lav_Importe <> 0").empty());
}

TEST_P(ArithmeticTest, AResultThatDoesNotFitIsAnErrorAndNeverAFloat) {
  line("922337203685477.5807");
  for (const char* expression : {"CAST(Lav_Importe * Lav_Comi AS money)", "Lav_Importe + 1",
                                 "ROUND(Lav_Importe - (-1),2)", "SUM(Lav_Importe + Lav_Importe)"}) {
    failure("SELECT " + std::string(expression) + " FROM Lav");
  }
  run("insert into Lav (Lav_Id, Lav_IdCav, Lav_Importe) values (2, 1, 922337203685477.5807)");
  failure("SELECT SUM(Lav_Importe) FROM Lav");
  failure("insert into Lav (Lav_Id, Lav_IdCav, Lav_Importe) values (3, 1, 922337203685477.5808)");
  failure("insert into Lav (Lav_Id, Lav_IdCav, Lav_Comi) values (3, 1, 1000)");
  EXPECT_EQ(cell("SELECT COUNT(Lav_Id) FROM Lav"), "2");
}

TEST_P(ArithmeticTest, DivisionOfWholeNumbersTruncatesAndByZeroFails) {
  line("10.05");
  EXPECT_EQ(value("Cav_Numero / 5"), "2");
  EXPECT_EQ(value("(0 - Cav_Numero) / 5"), "-2");
  failure("SELECT Cav_Numero / (Cav_Numero - 12) FROM Cav");
}

TEST_P(ArithmeticTest, AFailureSpeaksSpanishWithTheServersNumber) {
  line("10.05");
  constexpr long kDivisionByZero = 8134;
  EXPECT_EQ(failure("SELECT 1 / (Cav_Numero - 12) FROM Cav"), kDivisionByZero);
  // The words of one failure do not stick to the next.
  run("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 1)");
  EXPECT_NE(failure("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 1)"), kDivisionByZero);
}

KORVANTES_ON_EACH_ENGINE(ArithmeticTest);

}  // namespace
}  // namespace korvantes::testing_engines
