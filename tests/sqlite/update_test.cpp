#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class UpdateTest : public EngineTest {
 protected:
  UpdateTest() {
    run("insert into Age (AGE_ID, AGE_NOM, AGE_CP, AGE_COM) values (7, 'Uno', '28001', 2.5)");
    run("insert into Age (AGE_ID, AGE_NOM) values (8, 'Dos')");
  }
};

TEST_F(UpdateTest, APictureGoesInAndComesBack) {
  const ado::Bytes picture(300'000, std::byte{0xA7});
  auto record = connection_->OpenForUpdate("select * from AGE where AGE_ID= 7");
  record.Collect("AGE_IMG", picture);
  record.Update();
  EXPECT_EQ(run("select AGE_IMG from AGE where AGE_ID= 7").Fields(0).Value().bytes(), picture);
  record.Collect("age_img", ado::Bytes());
  record.Update();
  EXPECT_EQ(row("select AGE_IMG from AGE where AGE_ID= 7"), "0 bytes");
  record.Collect("AGE_IMG", ado::Variant());
  record.Update();
  EXPECT_EQ(rows("select AGE_ID,AGE_NOM,AGE_COM,AGE_IMG from AGE order by AGE_ID"),
            (Rows{"7|Uno|2.500|NULL", "8|Dos|NULL|NULL"}));
}

TEST_F(UpdateTest, EveryTypeIsStoredAsItsColumnHoldsIt) {
  run("insert into Lca (Lca_IdAg) values (7)");
  auto record = connection_->OpenForUpdate("select * from Lca where Lca_Id = 1");
  record.Collect("Lca_Fecha", ado::Date{2026, 2, 28});
  record.Collect("Lca_Cob", true);
  record.Collect("Lca_Base", 1.00005);
  record.Collect("Lca_PorIva", ado::Decimal(21005, 3));
  record.Collect("Lca_Obs", "l'Eixample\n");
  record.Update();
  EXPECT_EQ(row("select Lca_Fecha,Lca_Cob,Lca_Base,Lca_PorIva,Lca_Obs,Lca_Iva from Lca"),
            "28/02/2026|1|1.0001|21.01|l'Eixample\n|NULL");
  for (const auto& [name, value] : {std::pair{"Lca_PorIva", 1000.0}, {"Lca_Id", 5.0}}) {
    record.Collect(name, value);
    EXPECT_THROW(record.Update(), ado::Error) << name;
    record.CancelUpdate();
  }
  EXPECT_EQ(row("select Lca_Id,Lca_PorIva from Lca"), "1|21.01");
}

TEST_F(UpdateTest, TheRowIsFoundAgainByItsWholeKey) {
  run("insert into Vespara.dbo.situaciones values (3, 0, 1, 'General')");
  run("insert into Vespara.dbo.situaciones values (3, 1, 1, 'Inglés')");
  auto record =
      connection_->OpenForUpdate("select * from Vespara.dbo.situaciones where Sit_Idioma = 1");
  record.Collect("Sit_Cod", 2);
  record.Update();
  record.Collect("Sit_Des", "English");
  record.Update();  // by the new key
  EXPECT_EQ(rows("select Sit_Idioma,Sit_Cod,Sit_Des from Vespara.dbo.situaciones order by 1"),
            (Rows{"0|1|General", "1|2|English"}));
}

TEST_F(UpdateTest, TakesPartInTheTransactionAndMissesADeletedRow) {
  connection_->BeginTrans();
  auto record = connection_->OpenForUpdate("select * from AGE where AGE_ID= 7");
  record.Collect("AGE_NOM", "Otro");
  record.Update();
  connection_->RollbackTrans();
  EXPECT_EQ(row("select AGE_NOM from AGE where AGE_ID = 7"), "Uno");
  run("delete from AGE where AGE_ID = 7");
  record.Collect("AGE_NOM", "Nadie");
  EXPECT_THROW(record.Update(), ado::Error);
}

TEST_F(UpdateTest, CanBeTriedAgainAndWritesOnlyTheFirstRow) {
  auto record = connection_->OpenForUpdate("select * from AGE order by AGE_ID");
  const auto other = connect();
  other->BeginTrans();
  record.Collect("AGE_NOM", "Otro");
  EXPECT_EQ(errorOf([&] { record.Update(); }).kind(), ErrorKind::Busy);
  EXPECT_EQ(record.Clone().Collect("AGE_NOM"), ado::Variant("Uno"));
  other->RollbackTrans();
  record.Update();
  EXPECT_EQ(rows("select AGE_NOM from AGE order by AGE_ID"), (Rows{"Otro", "Dos"}));
  record.MoveNext();
  EXPECT_THROW(record.Collect("AGE_NOM", "x"), ado::Error);
}

TEST_F(UpdateTest, RefusesWhatIsNotOneTableWithItsKey) {
  for (const char* statement :
       {"select * from Lca inner join Age on Age_Id = Lca_IdAg", "select AGE_NOM from AGE",
        "update AGE set AGE_NOM = 'x'", "select * from NoHay"}) {
    EXPECT_THROW(connection_->OpenForUpdate(statement), ado::Error) << statement;
  }
  EXPECT_TRUE(connection_->OpenForUpdate("select * from AGE where AGE_ID= 99").isEOF());
  auto record = connection_->OpenForUpdate("select * from AGE where AGE_ID= 7");
  connection_.reset();
  record.Collect("AGE_NOM", "tarde");
  EXPECT_THROW(record.Update(), ado::Error);
}

}  // namespace
}  // namespace korvantes::testing_engines
