#include "runtime/ado/recordset.h"

#include <gmock/gmock.h>
#include <stdexcept>

#include "runtime/ado/error.h"

namespace korvantes::ado {
namespace {

/// The first rows of a list.
Recordset people(std::size_t count = 3) {
  const std::vector<FieldDefinition> fields{{"Id", FieldType::Double, 0, 0},
                                            {"Nombre", FieldType::VarChar, 8, 0},
                                            {"Base", FieldType::Currency, 0, 4},
                                            {"Alta", FieldType::Date, 0, 0},
                                            {"ID", FieldType::Integer, 0, 0}};
  std::vector<Variant> rows{1.0, "Muñoz", Decimal(105000, 4), Date{2024, 1, 31}, -1};
  rows.insert(rows.end(), {2.0, "O'Neill", {}, Date{2025, 1, 1}, -2});
  rows.insert(rows.end(), {3.0, "muñoz ", Decimal(200000, 4), {}, -3});
  rows.resize(count * fields.size());
  return {std::make_shared<const std::vector<FieldDefinition>>(fields), std::move(rows)};
}

Recordset byHand() {
  Recordset rows;
  rows.Fields().Append("Id", FieldType::Double);
  rows.Fields().Append("Nombre", FieldType::VarChar, 4);
  rows.Fields().Append("Importe", FieldType::Currency);
  rows.Fields().Append("Dia", FieldType::Date);
  rows.Open();
  return rows;
}

TEST(RecordsetTest, WalksFromTheFirstRowToBothEndsAndFindsFieldsIgnoringCase) {
  Recordset rows = people();
  EXPECT_EQ(rows.Fields("iD").Value(), Variant(1.0));  // the first of two
  EXPECT_EQ(rows.Fields(4).Name(), "ID");
  EXPECT_THROW(rows.Fields(5), Error);
  EXPECT_THAT([&] { rows.Fields("Age_Nif"); },
              testing::ThrowsMessage<Error>(testing::HasSubstr("Age_Nif")));
  rows.MovePrevious();
  EXPECT_TRUE(rows.isBOF());
  EXPECT_FALSE(rows.isEOF());
  EXPECT_THROW(rows.MovePrevious(), Error);
  EXPECT_THROW(rows.Fields(0).Value(), Error);
  for (const Bookmark& place : {Bookmark(0), Bookmark(1), Bookmark(2), Bookmark()}) {
    rows.MoveNext();
    EXPECT_EQ(rows.position(), place);
  }
  EXPECT_TRUE(rows.isEOF());
  EXPECT_THROW(rows.MoveNext(), Error);
  rows.MovePrevious();
  EXPECT_EQ(rows.Collect("id"), Variant(3.0));
}

TEST(RecordsetTest, CopiesShareTheCursorAndClonesDoNot) {
  Recordset rows = people();
  Recordset copy = rows;
  Recordset clone = rows.Clone();
  rows.MoveLast();
  EXPECT_EQ(copy.position(), 2U);
  EXPECT_EQ(clone.position(), 0U);
  clone.Bookmark(copy.Bookmark());
  EXPECT_EQ(clone.Collect("Id"), Variant(3.0));
  EXPECT_THROW(clone.Bookmark(Bookmark()), Error);
  EXPECT_THROW(clone.Bookmark(Bookmark(3)), Error);
  rows.Close();
  EXPECT_FALSE(copy.isOpen());
  EXPECT_EQ(clone.RecordCount(), 3U);
}

TEST(RecordsetTest, AnEmptyOneIsAtBothEndsAndAClosedOneAtNeither) {
  Recordset empty = people(0);
  EXPECT_TRUE(empty.isBOF() && empty.isEOF());
  EXPECT_FALSE(empty.Bookmark());
  EXPECT_THROW(empty.MoveFirst(), Error);
  EXPECT_THROW(empty.Fields("Id").Value(), Error);
  empty.Find("Id = 12");
  EXPECT_TRUE(empty.isEOF());
  EXPECT_THROW(empty.AddNew(), Error);  // was not opened for it
  EXPECT_THROW(people().Collect("Nombre", "otro"), Error);
  Recordset never;
  EXPECT_THROW(never.isEOF(), Error);
  EXPECT_THROW(never.Open(), Error);  // no fields
  Recordset rows = byHand();
  EXPECT_THROW(rows.Open(), Error);
  EXPECT_THROW(rows.Fields().Append("Otro", FieldType::Double), Error);
  rows.AddNew();
  rows.Update();
  rows.Close();
  EXPECT_THROW(rows.RecordCount(), Error);
  rows.Open();
  EXPECT_EQ(rows.RecordCount(), 0U);
}

TEST(RecordsetTest, WhatIsWrittenCountsFromItsUpdateOn) {
  Recordset rows = byHand();
  rows.AddNew();
  EXPECT_FALSE(rows.isEOF());
  EXPECT_FALSE(rows.position());
  rows.Collect("Id", 1);
  EXPECT_EQ(rows.RecordCount(), 0U);
  rows.Update();
  const Recordset other = rows.Clone();
  for (const bool update : {false, true}) {
    rows.Collect("Id", 2);
    EXPECT_EQ(rows.Collect("Id"), Variant(2.0));
    EXPECT_EQ(other.cell(0, 0), Variant(1.0));
    update ? rows.Update() : rows.CancelUpdate();
    EXPECT_EQ(rows.Collect("Id"), Variant(update ? 2.0 : 1.0));
  }
  EXPECT_EQ(other.cell(0, 0), Variant(2.0));
  rows.AddNew();
  rows.CancelUpdate();
  EXPECT_EQ(rows.position(), 0U);
  rows.AddNew();
  rows.MoveFirst();
  rows.Update();  // nothing is pending
  EXPECT_EQ(rows.RecordCount(), 1U);
}

TEST(RecordsetTest, ValuesAreConvertedToTheField) {
  Recordset rows = byHand();
  rows.AddNew();
  rows.Collect("Id", Decimal(1234500, 4));
  rows.Collect("Nombre", "ñandúes");
  rows.Collect("Importe", 2.00005);
  rows.Collect("Dia", Date{2026, 2, 28});
  EXPECT_EQ(rows.Collect("Id"), Variant(123.45));
  EXPECT_EQ(rows.Collect("Nombre"), Variant("ñand"));
  EXPECT_EQ(rows.Collect("Importe").decimal().text(), "2.0001");
  rows.Collect("Nombre", Decimal(15, 1));
  EXPECT_EQ(rows.Collect("Nombre"), Variant("1.5"));
  for (const char* name : {"Id", "Importe", "Dia"}) {
    EXPECT_THROW(rows.Collect(name, "texto"), ConversionError) << name;
    rows.Collect(name, Variant());
    EXPECT_TRUE(rows.Collect(name).isNull());
  }
  EXPECT_THROW(rows.Collect("Importe", 1e15), ConversionError);
}

TEST(RecordsetTest, ReportsEachMoveOfItsOwnCursorOnce) {
  Recordset rows = people();
  Recordset clone = rows.Clone();
  int moves = 0;
  rows.onMoveComplete([&] { ++moves; });
  rows.MoveLast();
  rows.MoveNext();  // to EOF
  Recordset(rows).MoveFirst();
  rows.Bookmark(Bookmark(1));
  rows.Find("Id = 99");
  EXPECT_EQ(moves, 5);
  EXPECT_THROW(rows.MoveNext(), Error);
  clone.MoveLast();
  EXPECT_EQ(moves, 5);
  rows.onMoveComplete([&] {
    rows.onMoveComplete(nullptr);
    throw std::runtime_error("en el manejador");
  });
  EXPECT_THROW(rows.MoveFirst(), std::runtime_error);
  EXPECT_EQ(rows.position(), 0U);  // the move itself was done
}

TEST(FindTest, StopsAtTheFirstMatchFromTheCurrentRowOn) {
  const std::pair<const char*, Bookmark> cases[] = {{"id=3", 2},
                                                    {"[Id] >= 2", 1},
                                                    {"Nombre = 'MUÑOZ'", 0},
                                                    {"Nombre = 'o''neill'", 1},
                                                    {"Base <> 10.5", 2},
                                                    {"Base < 0", Bookmark()},
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
}

TEST(FindTest, RefusesOtherTexts) {
  Recordset rows = people();
  for (const char* criterion : {"", "Id", "Id =", "Id == 1", "Id = 1 AND Id = 2", "Id = 1,5",
                                "Id = '1'", "Nombre = x", "Nombre = 'a", "Nombre = 'a'b'",
                                "Nombre like 'a'", "Alta = '31/02/2024'", "Alta = 1", "Otro = 1"}) {
    EXPECT_THROW(rows.Find(criterion), Error) << criterion;
    EXPECT_EQ(rows.position(), 0U);
  }
}

}  // namespace
}  // namespace korvantes::ado
