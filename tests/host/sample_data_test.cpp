#include <gtest/gtest.h>
#include <string>

#include "host/create_base.h"
#include "runtime/ado/temporary_folder.h"

namespace korvantes::host {
namespace {

TEST(SampleData, HoldsTheSpecialCasesItIsMadeFor) {
  const ado::TemporaryFolder folder;
  const std::string path = folder.file("muestra.db");
  createBase(path, BaseContents::SampleData);
  const Database database = openFile(path);
  const auto count = [&](const std::string& rows) {
    const auto found = database.connection->Execute("select count(*) from " + rows);
    return found.Fields(0).Value().asLong();
  };
  // Free notes of an invoice, in the state that settlements take; the last number is too long for
  // varchar(5).
  const std::string free =
      "Cav inner join Fav on Fav_Id = Cav_IdFactura "
      "where (Cav_IdLca is null or Cav_IdLca = 0) and Cav_Situa = 2 and ";
  const std::string noLines = "not exists (select Lav_Id from Lav where Lav_IdCav = Cav_Id";
  for (const char* which :
       {"Cav_IdLca is null", "Cav_IdLca = 0", "Cav_Serie is null", "Cav_Serie = ''",
        "Cav_Dto1 is null", "Cav_DTO2 is null", "Cav_Numero > 99999",
        "exists (select b.Cav_Id from Cav b where b.Cav_IdFactura = Fav_Id and b.Cav_Id <> "
        "Cav.Cav_Id)"})
    EXPECT_GT(count(free + which), 0) << which;
  EXPECT_GT(count(free + noLines + " and Lav_Importe >= 0)"), 0);
  EXPECT_EQ(count(free + noLines + ")"), 1);
  EXPECT_EQ(count(free + "not exists (select Cli_Id from Cli where Cli_Id = Fav_IdCli)"), 1);
  for (const char* rows :
       {"Lav where Lav_Importe is null", "Lav where Lav_Comi is null",
        "Lav where Lav_Importe <> round(Lav_Importe, 2)", "Lca where Lca_HFecha is null",
        "Lav where Lav_Importe < 0 and exists (select b.Lav_Id from Lav b where "
        "b.Lav_IdCav = Lav.Lav_IdCav and b.Lav_Importe > 0)",
        // Rates of goods, newer than those of agents.
        "Vespara.dbo.Tivas where Tiva_Art <> 1 and Tiva_Fecha > '01/01/2024'"})
    EXPECT_GT(count(rows), 0) << rows;
  for (const char* rows :
       {"Age where AGE_REG is null", "Lca where Lca_Fecha is null",
        "Age where AGE_REG > 0 and not exists (select Tiva_Id from Vespara.dbo.Tivas where "
        "Tiva_reg = AGE_REG)",
        "Cav where Cav_IdFactura > 0 and (Cav_IdLca is null or Cav_IdLca = 0) and not exists "
        "(select "
        "Fav_Id from Fav where Fav_Id = Cav_IdFactura)",
        "Cav where Cav_IdLca > 0 and not exists (select Fav_Id from Fav where Fav_Id = "
        "Cav_IdFactura)"})
    EXPECT_EQ(count(rows), 1) << rows;
  EXPECT_EQ(count("Lca where Lca_Total <> Lca_Base + Lca_Iva - Lca_Retencion"), 0);
  EXPECT_EQ(count("Lcd inner join Cav on Cav_Id = Lcd_IdCav where Cav_IdLca <> Lcd_IdLca"), 0);
}

}  // namespace
}  // namespace korvantes::host
