#include "runtime/ado/recordset.h"

#include <gmock/gmock.h>
#include <stdexcept>

#include "runtime/ado/error.h"

namespace korvantes::ado {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

Recordset agents(int count) {
  static const auto fields = std::make_shared<const std::vector<FieldDefinition>>(
      std::vector<FieldDefinition>{{"AGE_ID", FieldType::Integer, 0, 0},
                                   {"AGE_NOM", FieldType::VarChar, 100, 0},
                                   {"Age_Id", FieldType::Integer, 0, 0}});
  std::vector<Variant> cells;
  for (int i = 1; i <= count; ++i) {
    cells.insert(cells.end(), {i * 10, "agente " + std::to_string(i), -i});
  }
  return {fields, std::move(cells)};
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

TEST(RecordsetTest, WalksFromTheFirstRowToBothEnds) {
  Recordset rows = agents(2);
  EXPECT_EQ(rows.RecordCount(), 2U);
  EXPECT_EQ(rows.Fields(0).Value(), Variant(10));
  rows.MovePrevious();
  EXPECT_TRUE(rows.isBOF());
  EXPECT_FALSE(rows.isEOF());
  EXPECT_THROW(rows.MovePrevious(), Error);
  EXPECT_THROW(rows.Fields(0).Value(), Error);
  for (const Bookmark& place : {Bookmark(0), Bookmark(1), Bookmark()}) {
    rows.MoveNext();
    EXPECT_EQ(rows.position(), place);
  }
  EXPECT_TRUE(rows.isEOF());
  EXPECT_THROW(rows.MoveNext(), Error);
  rows.MovePrevious();
  EXPECT_EQ(rows.Collect("age_nom"), Variant("agente 2"));
}

TEST(RecordsetTest, FieldsAreFoundIgnoringCaseTheFirstOfTwo) {
  Recordset rows = agents(1);
  EXPECT_EQ(rows.Fields("age_id").Value(), Variant(10));
  EXPECT_EQ(rows.Fields(2).Name(), "Age_Id");
  EXPECT_THROW(rows.Fields(3), Error);
  EXPECT_THAT([&] { rows.Fields("Age_Nif"); }, ThrowsMessage<Error>(HasSubstr("Age_Nif")));
}

TEST(RecordsetTest, CopiesShareTheCursorAndClonesDoNot) {
  Recordset rows = agents(3);
  Recordset copy = rows;
  Recordset clone = rows.Clone();
  rows.MoveLast();
  EXPECT_EQ(copy.position(), 2U);
  EXPECT_EQ(clone.position(), 0U);
  clone.Bookmark(copy.Bookmark());
  EXPECT_EQ(clone.Collect("AGE_ID"), Variant(30));
  EXPECT_THROW(clone.Bookmark(Bookmark()), Error);
  EXPECT_THROW(clone.Bookmark(Bookmark(3)), Error);
  rows.Close();
  EXPECT_FALSE(copy.isOpen());
  EXPECT_EQ(clone.RecordCount(), 3U);
}

TEST(RecordsetTest, AnEmptyOneIsAtBothEndsAndAClosedOneAtNeither) {
  Recordset empty = agents(0);
  EXPECT_TRUE(empty.isBOF() && empty.isEOF());
  EXPECT_FALSE(empty.Bookmark());
  EXPECT_THROW(empty.MoveFirst(), Error);
  EXPECT_THROW(empty.Fields("AGE_ID").Value(), Error);
  Recordset never;
  EXPECT_FALSE(never.isOpen());
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

struct RecordingWriter : RowWriter {
  void write(const std::vector<std::pair<std::string, Variant>>& changes) override {
    if (fail) throw Error(1, "disco lleno");
    written = changes;
  }
  bool fail = false;
  std::vector<std::pair<std::string, Variant>> written;
};

TEST(RecordsetTest, OnlyARowOpenedForItIsWrittenAndThatCanBeTriedAgain) {
  const auto writer = std::make_shared<RecordingWriter>();
  Recordset source = agents(2);
  EXPECT_THROW(source.AddNew(), Error);
  EXPECT_THROW(source.Collect("AGE_NOM", "otro"), Error);
  Recordset rows(std::make_shared<const std::vector<FieldDefinition>>(source.definitions()),
                 {10, "uno", -1, 20, "dos", -2}, writer);
  rows.Collect("AGE_NOM", "Ángel");
  writer->fail = true;
  EXPECT_THROW(rows.Update(), Error);
  EXPECT_EQ(rows.cell(0, 1), Variant("uno"));
  writer->fail = false;
  rows.Update();
  ASSERT_EQ(writer->written.size(), 1U);
  EXPECT_EQ(writer->written[0].first, "AGE_NOM");
  EXPECT_EQ(rows.cell(0, 1), Variant("Ángel"));
  rows.MoveNext();
  EXPECT_THROW(rows.Collect("AGE_NOM", "x"), Error);  // not the row that was fetched for it
}

TEST(RecordsetTest, ReportsEachMoveOfItsOwnCursorOnce) {
  Recordset rows = agents(2);
  Recordset clone = rows.Clone();
  int moves = 0;
  rows.onMoveComplete([&] { ++moves; });
  rows.MoveNext();
  rows.MoveNext();  // to EOF
  Recordset(rows).MoveFirst();
  rows.Bookmark(Bookmark(1));
  rows.Find("AGE_ID = 99");
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

}  // namespace
}  // namespace korvantes::ado
