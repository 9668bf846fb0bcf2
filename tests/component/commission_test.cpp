#include <gmock/gmock.h>

#include "component/KORVAN.h"
#include "data/money_rule.h"
#include "data/money_rule_sql.h"
#include "tests/component/exact_commission.h"
#include "tests/support/temporary_database.h"

namespace korvantes {
namespace {

using ado::Decimal;
using ado::Variant;

/// Notes 1 and 2 and order 1 with their lines, on a real database.
struct CommissionTest : testing::Test {
  CommissionTest() {
    for (const char* statement :
         {"INSERT INTO Cav (Cav_Id, Cav_Dto1, Cav_DTO2) VALUES (1, 10, 5)",
          "INSERT INTO Cav (Cav_Id, Cav_Dto1, Cav_DTO2) VALUES (2, 10, Null)",
          "INSERT INTO Cav (Cav_Id, Cav_Dto1, Cav_DTO2) VALUES (3, 0, 0)",
          "INSERT INTO Cav (Cav_Id, Cav_Dto1, Cav_DTO2) VALUES (4, 10, 0)",
          "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (11, 1, 10.05, 7.5)",
          "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (12, 1, 20.05, 7.5)",
          "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (21, 2, 100, 10)",
          "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (41, 4, 100, Null)",
          "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (42, 4, -10.05, 100)",
          "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (43, 4, 10.0496, 100)",
          "INSERT INTO PedCa (PedCa_Id, PedCa_Dto1, PEDCA_DTO2) VALUES (1, 0, 50)",
          "INSERT INTO PedLi (LiPed_Id, PedLi_IdPedca, PedLi_Importe, PedLi_Comi) "
          "VALUES (11, 1, 200, 12.345)"}) {
      database.connection()->Execute(statement);
    }
    component->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));
  }

  support::TemporaryDatabase database;
  std::shared_ptr<KORVAN> component = KORVAN::Create();
};

TEST_F(CommissionTest, RoundsEachStageToCents) {
  const struct {
    std::int16_t origin;
    std::int32_t document, line;
    double commission;
  } cases[] = {{3, 1, 0, 1.93},   {3, 1, 11, 0.64}, {3, 999, 12, 1.29}, {3, 2, 0, 0},
               {3, 3, 0, 0},      {3, 99, 0, 0},    {3, 1, 999, 0},     {3, 4, 41, 0},
               {3, 4, 42, -9.04}, {3, 4, 43, 9.04}, {3, 4, 0, 0},       {2, 1, 0, 12.35},
               {2, 9, 11, 12.35}, {2, 9, 0, 0},     {2, 1, 21, 0}};
  for (const auto& each : cases) {
    EXPECT_DOUBLE_EQ(component->msComisionAgente(each.origin, each.document, each.line),
                     each.commission)
        << each.origin << " " << each.document << " " << each.line;
  }
}

TEST_F(CommissionTest, TheIndependentComputationAgreesWithTheWorkedExample) {
  const Discounts discounts{1000, 500};
  EXPECT_EQ(exactNet(discounts, {100500, 7500}), 859);
  EXPECT_EQ(exactCommission(discounts, {100500, 7500}), 64);
  EXPECT_EQ(exactNet(discounts, {200500, 7500}), 1714);
  EXPECT_EQ(exactCommission(discounts, {200500, 7500}), 129);
  EXPECT_EQ(exactCommission({1000, 0}, {-100500, 100000}), -904);
}

// Added as doubles, a hundred times ten cents would be 9.99999999999998.
TEST_F(CommissionTest, TheSumOfManyLinesIsTheNearestDouble) {
  for (int line = 100; line < 200; ++line)
    database.connection()->Execute(
        "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) "
        "VALUES (" +
        std::to_string(line) + ", 3, 0.10, 100)");
  EXPECT_EQ(component->msComisionAgente(3, 3, 0), 10.0);
}

TEST_F(CommissionTest, AnUnknownOriginIsAnError) {
  EXPECT_THROW(component->msComisionAgente(5, 1, 0), ado::Error);
  EXPECT_DOUBLE_EQ(component->msComisionAgente(3, 1, 0), 1.93);
}

TEST_F(CommissionTest, TheListedAmountDiscountsTheSumOfTheLines) {
  ado::Recordset rows = database.connection()->Execute(
      "SELECT Cav_Id, " + std::string(data::sql::kNoteNet) +
      "FROM laV where laV_Idcav= cav_id) as Importe FROM Cav ORDER BY Cav_Id");
  const Variant expected[] = {Decimal::money(257400), Variant(), Variant(), Decimal::money(900000)};
  ASSERT_EQ(rows.RecordCount(), 4U);
  for (std::size_t row = 0; row < 4; ++row) EXPECT_EQ(rows.cell(row, 1), expected[row]) << row;
}

}  // namespace
}  // namespace korvantes
