#include <gtest/gtest.h>

#include "component/KORVAN.h"
#include "tests/component/exact_commission.h"
#include "tests/support/temporary_database.h"

namespace korvantes {
namespace {

constexpr const char* kRows[] = {
    "INSERT INTO Cav (Cav_Id, Cav_Dto1, Cav_DTO2) VALUES (1, 10, 5), (2, 10, Null), (4, 10, 0)",
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
  } cases[] = {
      {3, 1, 0, 1.93},      {3, 1, 11, 0.64}, {3, 999, 12, 1.29}, {3, 2, 0, 0},
      {3, 99, 0, 0},        {3, 1, 999, 0},   {3, 4, 41, 0},      {3, 4, 42, -9.04},
      {3, 4, 43, 9.04},     {3, 4, 0, 0},     {2, 1, 0, 12.35},   {2, 9, 11, 12.35},
      {2, 9, 0, 0},         {2, 1, 21, 0},    {2, 1, -9, 0},      {3, -2147483647 - 1, 0, 0},
      {3, 7, 2147483647, 0}};
  for (const auto& [origin, document, line, commission] : cases)
    EXPECT_EQ(component->msComisionAgente(origin, document, line), commission)
        << origin << " " << document << " " << line;
  for (const std::int16_t origin : std::initializer_list<std::int16_t>{0, 1, 4, 5, -3})
    EXPECT_THROW(component->msComisionAgente(origin, 1, 0), ado::Error);
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
