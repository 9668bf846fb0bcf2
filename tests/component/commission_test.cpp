#include <gtest/gtest.h>

#include "component/KORVAN.h"
#include "data/money_rule_sql.h"
#include "tests/component/exact_commission.h"
#include "tests/support/rows.h"
#include "tests/support/temporary_database.h"

namespace korvantes {
namespace {

constexpr const char* kRows[] = {
    "INSERT INTO Cav (Cav_Id, Cav_Dto1, Cav_DTO2) VALUES (1, 10, 5), (2, 10, Null), (3, 0, 0), "
    "(4, 10, 0)",
    "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (11, 1, 10.05, 7.5), "
    "(12, 1, 20.05, 7.5), (21, 2, 100, 10), (41, 4, 100, Null), (42, 4, -10.05, 100), "
    "(43, 4, 10.0496, 100)",
    "INSERT INTO PedCa (PedCa_Id, PedCa_Dto1, PEDCA_DTO2) VALUES (1, 0, 50)",
    "INSERT INTO PedLi (LiPed_Id, PedLi_IdPedca, PedLi_Importe, PedLi_Comi) "
    "VALUES (11, 1, 200, 12.345)"};

TEST(Commission, OfDocumentsLinesAndKeysThatMatchNothing) {
  support::TemporaryDatabase database;
  for (const char* row : kRows) database.connection()->Execute(row);
  const auto component = KORVAN::Create();
  component->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));
  const struct {
    std::int16_t origin;
    std::int32_t document, line;
    double commission;
  } cases[] = {{3, 1, 0, 1.93},   {3, 1, 11, 0.64}, {3, 999, 12, 1.29}, {3, 2, 0, 0},
               {3, 3, 0, 0},      {3, 99, 0, 0},    {3, 1, 999, 0},     {3, 4, 41, 0},
               {3, 4, 42, -9.04}, {3, 4, 43, 9.04}, {3, 4, 0, 0},       {2, 1, 0, 12.35},
               {2, 9, 11, 12.35}, {2, 9, 0, 0},     {2, 1, 21, 0}};
  for (const auto& [origin, document, line, commission] : cases)
    EXPECT_DOUBLE_EQ(component->msComisionAgente(origin, document, line), commission)
        << origin << " " << document << " " << line;
  EXPECT_THROW(component->msComisionAgente(5, 1, 0), ado::Error);
  // Added as doubles, a hundred times ten cents would be 9.99999999999998.
  for (int line = 100; line < 200; ++line)
    database.connection()->Execute(
        "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (" +
        std::to_string(line) + ", 3, 0.10, 100)");
  EXPECT_EQ(component->msComisionAgente(3, 3, 0), 10.0);
}

TEST(Commission, TheListedAmountDiscountsTheSumOfTheLines) {
  support::TemporaryDatabase database;
  for (const char* row : kRows) database.connection()->Execute(row);
  EXPECT_EQ(support::rowsOf(database.connection()->Execute(
                "SELECT Cav_Id, " + std::string(data::sql::kNoteNet) +
                "FROM laV where laV_Idcav= cav_id) as Importe FROM Cav ORDER BY Cav_Id")),
            (std::vector<std::string>{"1|25.7400", "2|NULL", "3|NULL", "4|90.0000"}));
}

TEST(Commission, TheIndependentComputationAgreesWithTheWorkedExample) {
  const Discounts discounts{1000, 500};
  EXPECT_EQ(exactNet(discounts, {100500, 7500}), 859);
  EXPECT_EQ(exactCommission(discounts, {100500, 7500}), 64);
  EXPECT_EQ(exactNet(discounts, {200500, 7500}), 1714);
  EXPECT_EQ(exactCommission(discounts, {200500, 7500}), 129);
  EXPECT_EQ(exactCommission({1000, 0}, {-100500, 100000}), -904);
}

}  // namespace
}  // namespace korvantes
