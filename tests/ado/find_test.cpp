#include <gtest/gtest.h>

#include "runtime/ado/error.h"
#include "runtime/ado/recordset.h"

namespace korvantes::ado {
namespace {

Recordset people() {
  std::vector<Variant> rows{1.0, "Muñoz", Decimal(105000, 4), Date{2024, 1, 31}};
  rows.insert(rows.end(), {2.0, "O'Neill", {}, Date{2025, 1, 1}});
  rows.insert(rows.end(), {3.0, "muñoz ", Decimal(200000, 4), {}});
  const auto fields = std::make_shared<const std::vector<FieldDefinition>>(
      std::vector<FieldDefinition>{{"Id", FieldType::Double, 0, 0},
                                   {"Nombre", FieldType::VarChar, 40, 0},
                                   {"Base", FieldType::Currency, 0, 4},
                                   {"Alta", FieldType::Date, 0, 0}});
  return {fields, std::move(rows)};
}

TEST(FindTest, StopsAtTheFirstMatchFromTheCurrentRowOn) {
  const Bookmark none;
  const std::pair<const char*, Bookmark> cases[] = {{"Id = 1", 0},
                                                    {"id=3", 2},
                                                    {"Id = 3.5", none},
                                                    {"[Id] >= 2", 1},
                                                    {"Nombre = 'MUÑOZ'", 0},
                                                    {"Nombre = 'o''neill'", 1},
                                                    {"Base = 10.5", 0},
                                                    {"Base <> 10.5", 2},
                                                    {"Base < 0", none},
                                                    {"Alta > '31/01/2024'", 1},
                                                    {"Alta <= '31/1/2024 '", 0}};
  for (const auto& [criterion, position] : cases) {
    Recordset rows = people();
    rows.Find(criterion);
    EXPECT_EQ(rows.position(), position) << criterion;
    EXPECT_EQ(rows.isEOF(), !position) << criterion;
  }
}

TEST(FindTest, SkipsRowsSearchesBackwardsAndNeedsARowToStartFrom) {
  Recordset rows = people();
  rows.Find("Nombre = 'muñoz'", 1);
  EXPECT_EQ(rows.position(), 2U);
  rows.Find("Nombre = 'muñoz'", 1, Recordset::Direction::Backward);
  EXPECT_EQ(rows.position(), 0U);
  rows.Find("Id = 1", 1, Recordset::Direction::Backward);
  EXPECT_TRUE(rows.isBOF());
  rows.MoveFirst();
  rows.Find("Id = 1", 999'999);
  EXPECT_TRUE(rows.isEOF());
  EXPECT_THROW(rows.Find("Id = 1"), Error);  // no row to start from
  Recordset empty;
  empty.Fields().Append("Id", FieldType::Double);
  empty.Open();
  empty.Find("Id = 12");
  EXPECT_TRUE(empty.isEOF());
}

TEST(FindTest, RefusesOtherTexts) {
  for (const char* criterion : {"", "Id", "Id =", "Id == 1", "Id = 1 AND Id = 2", "Id = 1,5",
                                "Id = '1'", "Nombre = x", "Nombre = 'a", "Nombre = 'a'b'",
                                "Nombre like 'a'", "Alta = '31/02/2024'", "Alta = 1", "Otro = 1"}) {
    Recordset rows = people();
    EXPECT_THROW(rows.Find(criterion), Error) << criterion;
    EXPECT_EQ(rows.position(), 0U);
  }
}

}  // namespace
}  // namespace korvantes::ado
