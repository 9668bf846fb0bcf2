#include "host/sample_data.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "data/commission_rule.h"
#include "host/database.h"
#include "host/temporary_folder.h"
#include "outside/plindor/util_formulario.h"

namespace korvantes::host {
namespace {

class SampleData : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = new TemporaryFolder;
    database_ = new Database(openFile((folder_->path() / "muestra.db").string(), OpenMode::Create));
    createTables(*database_, loadSampleData);
  }
  static void TearDownTestSuite() {
    delete database_;
    delete folder_;
  }

  static ado::Connection& connection() { return *database_->connection; }

  static std::int64_t number(const std::string& statement) {
    return connection().Execute(statement).Fields(0).Value().asLong();
  }

 private:
  static inline TemporaryFolder* folder_ = nullptr;
  static inline Database* database_ = nullptr;
};

/// A free note, of an invoice, in the state that settlements take.
const std::string kFree =
    "select count(*) from Cav inner join Fav on Fav_Id = Cav_IdFactura "
    "where (Cav_IdLca is null or Cav_IdLca = 0) and Cav_Situa = 2 ";
const std::string kCollected =
    "and exists (select Rec_Id from Rec where Rec_IdFac = Fav_Id and Rec_Sit = 5) and not exists "
    "(select Rec_Id from Rec where Rec_IdFac = Fav_Id and Rec_Sit <> 5 and Rec_Sit <> 8) ";
const std::string kNoLinesOtherThan =
    "and not exists (select Lav_Id from Lav where Lav_IdCav = Cav_Id and ";
const std::string kNoReceipt = "not exists (select Rec_Id from Rec where Rec_IdFac = Fav_Id";

TEST_F(SampleData, HoldsTheCountsAndTheSpecialCasesItIsMadeFor) {
  struct Promise {
    const char* what;
    std::string statement;
    std::int64_t least;
    std::int64_t most = -1;  ///< -1: just as many as `least`
  };
  constexpr std::int64_t kMany = 1'000'000;
  const Promise promises[] = {
      {"provinces", "select count(*) from Vespara.dbo.PROV", 53},
      {"countries", "select count(*) from Vespara.dbo.PAIS", 40},
      {"regimes",
       "select count(*) from Vespara.dbo.situaciones where Sit_Idioma = 0 and Sit_Proceso = 3", 8},
      {"other lists", "select count(*) from Vespara.dbo.situaciones where Sit_Proceso <> 3", 1,
       kMany},
      {"other languages", "select count(*) from Vespara.dbo.situaciones where Sit_Idioma <> 0", 1,
       kMany},
      {"rates of goods, newer than those of agents",
       "select count(*) from Vespara.dbo.Tivas where Tiva_Art <> 1 and Tiva_Fecha > '01/01/2024'",
       1, kMany},
      {"agents of a regime without rates",
       "select count(*) from Age where AGE_REG is not null and not exists (select Tiva_Id from "
       "Vespara.dbo.Tivas where Tiva_reg = AGE_REG)",
       1},
      {"agents without a regime", "select count(*) from Age where AGE_REG is null", 1},
      {"agents", "select count(*) from Age", 8, kMany},
      {"agents with quotes in their names", "select count(*) from Age where AGE_NOM like '%''%'", 1,
       kMany},
      {"customers", "select count(*) from Cli", 40},
      {"invoices", "select count(*) from Fav", 120},
      {"delivery notes", "select count(*) from Cav", 180},
      {"orders", "select count(*) from PedCa", 20},
      {"lines of orders", "select count(*) from PedLi", 20, kMany},
      {"invoices without receipts", "select count(*) from Fav where " + kNoReceipt + ")", 1, kMany},
      {"invoices with receipts in state 8 alone",
       "select count(*) from Fav where exists (select Rec_Id from Rec where Rec_IdFac = Fav_Id) "
       "and " +
           kNoReceipt + " and Rec_Sit <> 8)",
       1, kMany},
      {"mixed invoices",
       "select count(*) from Fav where exists (select Rec_Id from Rec where Rec_IdFac = Fav_Id and "
       "Rec_Sit = 5) and exists (select Rec_Id from Rec where Rec_IdFac = Fav_Id and Rec_Sit < 5)",
       1, kMany},
      {"free and collected notes of agent 1", kFree + kCollected + "and Cav_Agente = 1", 12},
      {"free with Null", kFree + "and Cav_IdLca is null", 1, kMany},
      {"free with 0", kFree + "and Cav_IdLca = 0", 1, kMany},
      {"in other states", "select count(*) from Cav where Cav_Situa <> 2", 1, kMany},
      {"not invoiced yet",
       "select count(*) from Cav where (Cav_IdFactura is null or Cav_IdFactura = 0)", 1, kMany},
      {"without lines", kFree + kNoLinesOtherThan + "Lav_Id > 0)", 1},
      {"with none but negative lines", kFree + kNoLinesOtherThan + "Lav_Importe >= 0)", 1, kMany},
      {"some negative lines",
       "select count(*) from Lav where Lav_Importe < 0 and exists (select b.Lav_Id from Lav b "
       "where "
       "b.Lav_IdCav = Lav.Lav_IdCav and b.Lav_Importe > 0)",
       1, kMany},
      {"lines with four decimals",
       "select count(*) from Lav where Lav_Importe <> round(Lav_Importe, 2)", 1, kMany},
      {"lines without an amount", "select count(*) from Lav where Lav_Importe is null", 1, kMany},
      {"lines without a commission", "select count(*) from Lav where Lav_Comi is null", 1, kMany},
      {"without a series", kFree + "and Cav_Serie is null", 1, kMany},
      {"with an empty series", kFree + "and Cav_Serie = ''", 1, kMany},
      {"invoices with an empty series", "select count(*) from Fav where Fav_Serie = ''", 1, kMany},
      {"without discount 1", kFree + "and Cav_Dto1 is null", 1, kMany},
      {"without discount 2", kFree + "and Cav_DTO2 is null", 1, kMany},
      {"with a number too long for varchar(5)", kFree + "and Cav_Numero > 99999", 1, kMany},
      {"sharing their invoice with another note",
       kFree + "and exists (select b.Cav_Id from Cav b where b.Cav_IdFactura = Fav_Id and "
               "b.Cav_Id <> Cav.Cav_Id)",
       2, kMany},
      {"of an invoice whose customer does not exist",
       kFree + "and not exists (select Cli_Id from Cli where Cli_Id = Fav_IdCli)", 1},
      {"free, of a lost invoice",
       "select count(*) from Cav where Cav_IdFactura > 0 and (Cav_IdLca is null or Cav_IdLca = 0) "
       "and not exists (select Fav_Id from Fav where Fav_Id = Cav_IdFactura)",
       1},
      {"settled, of a lost invoice",
       "select count(*) from Cav where Cav_IdLca > 0 and not exists (select Fav_Id from Fav where "
       "Fav_Id = Cav_IdFactura)",
       1},
      {"before 2024 or after June 2026",
       "select count(*) from Fav where Fav_Fecha < '01/01/2024' or Fav_Fecha > '30/06/2026'", 0},
      {"settlements without a date", "select count(*) from Lca where Lca_Fecha is null", 1},
      {"settlements without a limit date", "select count(*) from Lca where Lca_HFecha is null", 1,
       kMany},
  };
  for (const Promise& it : promises) {
    SCOPED_TRACE(it.what);
    const std::int64_t found = number(it.statement);
    EXPECT_GE(found, it.least);
    EXPECT_LE(found, it.most < 0 ? it.least : it.most);
  }
  for (int state = 1; state <= 8; ++state)
    EXPECT_GT(number("select count(*) from Rec where Rec_Sit = " + std::to_string(state)), 0)
        << "receipts in state " << state;
}

TEST_F(SampleData, BeginsWithTheWorkedExample) {
  EXPECT_NEAR(data::comisionAgente(connection(), data::kAlbaran, 1, 0), 1.93, 1e-9);
  EXPECT_NEAR(data::comisionAgente(connection(), data::kAlbaran, 0, 1), 0.64, 1e-9);
  EXPECT_EQ(number(kFree + kCollected + "and Cav_Agente = 1 and Cav_Id = 1"), 1);
}

TEST_F(SampleData, OffersSpainAsTheTenthCountry) {
  ado::Recordset countries = connection().Execute("Select * from vespara.dbo.PAIS");
  countries.moveTo(9);
  EXPECT_EQ(countries.Collect("PAIS_NOM").text(), "España");
  EXPECT_EQ(countries.Collect("PAIS_COD").whole(), 34);
}

TEST_F(SampleData, GivesPeopleTaxNumbersWithTheirLetter) {
  ado::Recordset agents = connection().Execute("select AGE_NIF from Age");
  int persons = 0;
  for (; !agents.isEOF(); agents.MoveNext()) {
    std::string number = agents.Fields(0).Value().text();
    if (number[0] == 'A' || number[0] == 'B') continue;  // a company's
    const char letter = number.back();
    number.pop_back();
    EXPECT_EQ(plindor::UtilFormulario().LetraNif(number, ""), std::string(1, letter)) << number;
    ++persons;
  }
  EXPECT_GE(persons, 8);
}

std::int64_t cents(double amount) {
  return std::llround(amount * 100);
}

TEST_F(SampleData, StoresSettlementsThatAddUp) {
  ado::Recordset settlements = connection().Execute("select * from Lca order by Lca_Id");
  ASSERT_GE(settlements.RecordCount(), 8u);
  for (; !settlements.isEOF(); settlements.MoveNext()) {
    const std::string key = std::to_string(settlements.Collect("Lca_Id").whole());
    SCOPED_TRACE("settlement " + key);
    const auto stored = [&settlements](const char* column) {
      return cents(settlements.Collect(column).asDouble());
    };

    std::int64_t base = 0;
    ado::Recordset notes = connection().Execute(
        "select Cav_Id, Cav_Agente, Cav_IdLca from Lcd inner join Cav on "
        "Cav_Id = Lcd_IdCav where Lcd_IdLca = " +
        key);
    EXPECT_GT(notes.RecordCount(), 0u);
    for (; !notes.isEOF(); notes.MoveNext()) {
      EXPECT_EQ(std::to_string(notes.Collect("Cav_IdLca").whole()), key);
      EXPECT_EQ(notes.Collect("Cav_Agente"), settlements.Collect("Lca_IdAg"));
      base += cents(
          data::comisionAgente(connection(), data::kAlbaran, notes.Collect("Cav_Id").asLong(), 0));
    }
    EXPECT_EQ(stored("Lca_Base"), base);
    // The percentages come as hundredths; halves go away from zero, and no base is negative.
    EXPECT_EQ(stored("Lca_Iva"), (base * stored("Lca_PorIva") + 5'000) / 10'000);
    EXPECT_EQ(stored("Lca_Retencion"), (base * stored("Lca_PorRetencion") + 5'000) / 10'000);
    EXPECT_EQ(stored("Lca_Total"), base + stored("Lca_Iva") - stored("Lca_Retencion"));
    EXPECT_EQ(number("select count(*) from Cav where Cav_IdLca = " + key),
              static_cast<std::int64_t>(notes.RecordCount()));
  }
}

}  // namespace
}  // namespace korvantes::host
