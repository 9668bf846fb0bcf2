#include <gtest/gtest.h>

#include "data/listed_notes.h"
#include "data/rates_in_force.h"
#include "data/settlement_writing.h"
#include "runtime/ado/error.h"
#include "runtime/screen/conversions.h"
#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

/// Settles all that is pending for agent 5, as a program without a screen does.
void settleAll(plindor::BaseDatos& service, std::int32_t replaces) {
  ado::Connection& connection = service.Conexion();
  data::SettlementDraft draft;
  draft.replaces = replaces;
  draft.agent = 5;
  draft.date = "24/11/2026";
  const auto rates =
      data::ratesInForce(connection, data::regimeOf(connection, draft.agent), draft.date).value();
  draft.rateRow = rates.row;
  draft.vatPercent = *rates.vat;
  draft.withholdingPercent = *rates.withholding;

  ado::Recordset pending = connection.Execute(
      replaces != 0 ? data::settledStatement(replaces)
                    : data::pendingStatement({.agent = "5", .collected = false}));
  ado::Decimal base;
  for (; !pending.isEOF(); pending.MoveNext()) {
    const data::ListedNote note = data::listedNote(connection, pending);
    draft.notes.push_back({note.id, screen::CStr(pending.Collect("Albaran"))});
    base += note.commission;
  }
  draft.amounts = data::settlementAmounts(base, draft.vatPercent, draft.withholdingPercent);
  if (replaces != 0) data::removeReplaced(connection, replaces);
  data::writeSettlement(service, draft);
}

TEST(SettlementWithoutAScreen, IsStoredReplacedAndDeletedAsTheScreenDoesIt) {
  World byProgram, byUser;  // screens work for the latest
  plindor::BaseDatos service(byProgram.connection);
  byUser.settle({1, 2, 3, 4});
  settleAll(service, 0);
  EXPECT_EQ(byProgram.stored(), byUser.stored());
  byUser.open(1, [](Screen& screen) { screen.click("cmdGrabar"); });
  settleAll(service, 1);
  EXPECT_EQ(byProgram.stored(), byUser.stored());

  EXPECT_THROW(data::removeReplaced(*byProgram.connection, 1), data::SaveFailure);
  data::deleteSettlement(service, 2);
  EXPECT_EQ(byProgram.stored(), (std::vector<std::string>{"1|NULL", "2|NULL", "3|NULL", "4|NULL"}));
}

TEST(SettlementWithoutAScreen, SendsNothingButDigitsAndDates) {
  for (const char* text : {"", "5 or 1=1", "-5", "'"})
    EXPECT_THROW(data::pendingStatement({.agent = text}), ado::ConversionError) << text;
  for (const char* text : {"'", "31/02/2026", "24/11/2026' or 1=1"}) {
    EXPECT_THROW(data::pendingStatement({.agent = "5", .until = text}), ado::ConversionError);
    EXPECT_THROW(data::ratesStatement(1, text), ado::ConversionError);
  }
}

}  // namespace
}  // namespace korvantes::settlement
