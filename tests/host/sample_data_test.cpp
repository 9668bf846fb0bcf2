#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "data/commission_rule.h"
#include "host/create_base.h"
#include "outside/plindor/util_formulario.h"
#include "runtime/ado/temporary_folder.h"

namespace korvantes::host {
namespace {

class SampleData : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = new ado::TemporaryFolder;
    const std::string path = folder_->file("muestra.db");
    createBase(path, BaseContents::SampleData);
    database_ = new Database(openFile(path));
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
  static inline ado::TemporaryFolder* folder_ = nullptr;
  static inline Database* database_ = nullptr;
};

/// Free notes, of an invoice, in the state that settlements take.
const std::string kFree =
    "Cav inner join Fav on Fav_Id = Cav_IdFactura "
    "where (Cav_IdLca is null or Cav_IdLca = 0) and Cav_Situa = 2 and ";
const std::string kCollected =
    "exists (select Rec_Id from Rec where Rec_IdFac = Fav_Id and Rec_Sit = 5) and not exists "
    "(select Rec_Id from Rec where Rec_IdFac = Fav_Id and Rec_Sit <> 5 and Rec_Sit <> 8) and ";
const std::string kNoLines = "not exists (select Lav_Id from Lav where Lav_IdCav = Cav_Id";
const std::string kReceipt = "exists (select Rec_Id from Rec where Rec_IdFac = Fav_Id";
const std::string kNoInvoice = "not exists (select Fav_Id from Fav where Fav_Id = Cav_IdFactura)";

TEST_F(SampleData, HoldsTheCountsAndTheSpecialCasesItIsMadeFor) {
  constexpr std::int64_t kMany = 1'000'000;
  struct Promise {
    std::string rows;
    std::int64_t least = 1, most = kMany;
  };
  const Promise promises[] = {
      {"Vespara.dbo.PROV", 53, 53},
      {"Vespara.dbo.PAIS", 40, 40},
      {"Vespara.dbo.situaciones where Sit_Idioma = 0 and Sit_Proceso = 3", 8, 8},
      {"Vespara.dbo.situaciones where Sit_Proceso <> 3"},
      {"Vespara.dbo.situaciones where Sit_Idioma <> 0"},
      // Rates of goods, newer than those of agents.
      {"Vespara.dbo.Tivas where Tiva_Art <> 1 and Tiva_Fecha > '01/01/2024'"},
      {"Age", 8},
      {"Age where AGE_REG is not null and not exists "
       "(select Tiva_Id from Vespara.dbo.Tivas where Tiva_reg = AGE_REG)",
       1, 1},
      {"Age where AGE_REG is null", 1, 1},
      {"Age where AGE_NOM like '%''%'"},
      {"Cli", 40, 40},
      {"Fav", 120, 120},
      {"Fav where Fav_Serie = ''"},
      {"Fav where not " + kReceipt + ")"},
      {"Fav where " + kReceipt + ") and not " + kReceipt + " and Rec_Sit <> 8)"},
      {"Fav where " + kReceipt + " and Rec_Sit = 5) and " + kReceipt + " and Rec_Sit < 5)"},
      {"Fav where Fav_Fecha < '01/01/2024' or Fav_Fecha > '30/06/2026'", 0, 0},
      {"PedCa", 20, 20},
      {"PedLi", 20},
      {"Cav", 180, 180},
      {"Cav where Cav_Situa <> 2"},
      {"Cav where Cav_IdFactura is null or Cav_IdFactura = 0"},
      {"Cav where Cav_IdFactura > 0 and (Cav_IdLca is null or Cav_IdLca = 0) and " + kNoInvoice, 1,
       1},
      {"Cav where Cav_IdLca > 0 and " + kNoInvoice, 1, 1},
      {kFree + kCollected + "Cav_Agente = 1", 12, 12},
      {kFree + kCollected + "Cav_Agente = 1 and Cav_Id = 1", 1, 1},  // the worked example
      {kFree + "Cav_IdLca is null"},
      {kFree + "Cav_IdLca = 0"},
      {kFree + kNoLines + ")", 1, 1},
      {kFree + kNoLines + " and Lav_Importe >= 0)"},
      {kFree + "Cav_Serie is null"},
      {kFree + "Cav_Serie = ''"},
      {kFree + "Cav_Dto1 is null"},
      {kFree + "Cav_DTO2 is null"},
      {kFree + "Cav_Numero > 99999"},  // too long for varchar(5)
      {kFree + "exists (select b.Cav_Id from Cav b where b.Cav_IdFactura = Fav_Id and "
               "b.Cav_Id <> Cav.Cav_Id)",
       2},
      {kFree + "not exists (select Cli_Id from Cli where Cli_Id = Fav_IdCli)", 1, 1},
      {"Lav where Lav_Importe < 0 and exists (select b.Lav_Id from Lav b where "
       "b.Lav_IdCav = Lav.Lav_IdCav and b.Lav_Importe > 0)"},
      {"Lav where Lav_Importe <> round(Lav_Importe, 2)"},
      {"Lav where Lav_Importe is null"},
      {"Lav where Lav_Comi is null"},
      {"Lca where Lca_Fecha is null", 1, 1},
      {"Lca where Lca_HFecha is null"},
  };
  for (const Promise& it : promises) {
    const std::int64_t found = number("select count(*) from " + it.rows);
    EXPECT_TRUE(it.least <= found && found <= it.most) << found << " in " << it.rows;
  }
  EXPECT_EQ(connection().Execute("select distinct Rec_Sit from Rec").RecordCount(), 8U);
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
