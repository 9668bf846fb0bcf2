#include <gtest/gtest.h>
#include <string>

#include "host/database.h"
#include "host/temporary_folder.h"
#include "sample/data.h"

namespace korvantes::host {
namespace {

/// Free notes, of an invoice, in the state that settlements take.
const std::string kFree =
    "Cav inner join Fav on Fav_Id = Cav_IdFactura "
    "where (Cav_IdLca is null or Cav_IdLca = 0) and Cav_Situa = 2 and ";
const std::string kNoLines = "not exists (select Lav_Id from Lav where Lav_IdCav = Cav_Id";
const std::string kNoInvoice = "not exists (select Fav_Id from Fav where Fav_Id = Cav_IdFactura)";

TEST(SampleData, HoldsTheSpecialCasesItIsMadeFor) {
  const TemporaryFolder folder;
  const Database database = openFile((folder.path() / "muestra.db").string(), OpenMode::Create);
  createTables(database, sample::loadSampleData);
  struct Promise {
    std::string rows;
    std::int64_t least = 1, most = 1'000'000;
  };
  const Promise promises[] = {
      // Rates of goods, newer than those of agents.
      {"Vespara.dbo.Tivas where Tiva_Art <> 1 and Tiva_Fecha > '01/01/2024'"},
      {"Age where AGE_REG is not null and not exists "
       "(select Tiva_Id from Vespara.dbo.Tivas where Tiva_reg = AGE_REG)",
       1, 1},
      {"Age where AGE_REG is null", 1, 1},
      {"Cav where Cav_IdFactura > 0 and (Cav_IdLca is null or Cav_IdLca = 0) and " + kNoInvoice, 1,
       1},
      {"Cav where Cav_IdLca > 0 and " + kNoInvoice, 1, 1},
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
      {"Lca where Lca_Total <> Lca_Base + Lca_Iva - Lca_Retencion", 0, 0},
      {"Lcd inner join Cav on Cav_Id = Lcd_IdCav where Cav_IdLca <> Lcd_IdLca", 0, 0},
  };
  for (const Promise& it : promises) {
    const auto rows = database.connection->Execute("select count(*) from " + it.rows);
    const std::int64_t found = rows.Fields(0).Value().asLong();
    EXPECT_TRUE(it.least <= found && found <= it.most) << found << " in " << it.rows;
  }
}

}  // namespace
}  // namespace korvantes::host
