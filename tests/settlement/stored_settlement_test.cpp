#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(StoredSettlement, ComesBackAsItWasStored) {
  World world;
  const int number = world.settle({1, 2, 3});
  world.sql("Update Lca set Lca_HFecha = Null, Lca_Obs = 'notas', Lca_Cob = 1, Lca_NCob = 1");
  world.sql("Update Lav set Lav_Comi = 6 where Lav_Id = 3");
  world.show(
      [&](Screen& screen) {
        EXPECT_THAT(screen.contents(),
                    ElementsAre("5", "Ana Gil", "24/11/2026", "21", "", "notas", "12,17", "2,51",
                                "11,93", "19", "2,27", "x 1", "x 2", "x 3"));
        const auto& first = screen.list().item(screen.rowOf(1));
        EXPECT_EQ(first.Text, "A/101");
        EXPECT_THAT(first.SubItems,
                    ElementsAre("10/10/2026", "Bar Pepe", "A/15", "25,74", "7,50", "1,93"));
        const auto& empty = screen.list().item(screen.rowOf(2));
        EXPECT_EQ(empty.Text, "1234567");
        EXPECT_THAT(empty.SubItems,
                    ElementsAre("11/10/2026", "Bar Pepe", "/16", "0,00", "0,00", "0,00"));
        EXPECT_FALSE(screen.control("fraAgente").Enabled());
        EXPECT_TRUE(screen.control("cmdBorrar").Visible());
        EXPECT_EQ(screen.control("cmdGrabar").Width(), screen.control("cmdBorrar").Width());

        // The first change of a mark counts with today's commissions.
        screen.tick(screen.rowOf(1), false);
        EXPECT_EQ(screen.text(10).Text(), "12");
      },
      number);
}

TEST(StoredSettlement, OneThatIsGoneLeavesTheScreenEmptyAndUsable) {
  World world;
  world.show(
      [&](Screen& screen) {
        EXPECT_FALSE(screen.control("cmdBorrar").Visible());
        EXPECT_EQ(screen.control("cmdGrabar").Width(), 3975);
        EXPECT_EQ(screen.form.nLiqui, 77);
        screen.search("5", false, false);
        screen.type(2, "24112026");
        screen.tick(screen.rowOf(1));
        screen.click("cmdGrabar");
      },
      77);
  EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 1U);
}

TEST(StoredSettlement, LosesANoteWithoutInvoiceOnlyOnceTheUserHasSaidSo) {
  for (bool agrees : {false, true}) {
    World world;
    const int number = world.settle({1, 2});
    world.sql("delete from Fav where Fav_Id = 2");
    const auto before = world.stored();
    if (agrees) world.answers = {screen::Answer::Yes};
    world.show(
        [&](Screen& screen) {
          EXPECT_EQ(screen.list().Count(), 1U);
          screen.click("cmdGrabar");
          EXPECT_EQ(screen.form.nLiqui, agrees ? 0 : number);
        },
        number);
    ASSERT_EQ(world.messages.size(), agrees ? 2U : 1U);
    EXPECT_THAT(world.messages[0],
                testing::AllOf(testing::StartsWith("[308] Liquidación de comisiones a agentes | "),
                               testing::HasSubstr("su factura o su cliente: 1.")));
    if (agrees)
      EXPECT_TRUE(world.sql("select Cav_IdLca from Cav where Cav_Id = 2").cell(0, 0).isNull());
    else
      EXPECT_EQ(world.stored(), before);
    EXPECT_EQ(world.sql("select * from Lcd").RecordCount(), agrees ? 1U : 2U);
  }
}

TEST(StoredSettlement, OneThatCannotBeShownIsNotRemovedByWhatIsSavedInItsPlace) {
  World world;
  world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (99)");
  world.show(
      [&](Screen& screen) {
        screen.search("5", false, false);
        screen.type(2, "24112026");
        screen.tick(screen.rowOf(1));
        screen.click("cmdGrabar");
      },
      1);
  EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 2U);
}

TEST(StoredSettlement, NullsShowAsEmptyFieldsAndUntickedFilters) {
  World world;
  world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (6)");
  world.show(
      [&](Screen& screen) {
        EXPECT_THAT(screen.contents(),
                    ElementsAre("6", "Luis Paz", "", "", "", "", "", "", "", "", ""));
        EXPECT_EQ(dynamic_cast<screen::CheckBox&>(screen.control("Check1")).Value(), 0);
      },
      1);
  EXPECT_THAT(world.messages, IsEmpty());
}

TEST(StoredSettlement, LooksRatesUpUnderTheRegimeOfItsAgent) {
  World world;
  const int number = world.settle({1, 3});
  world.show(
      [&](Screen& screen) {
        screen.type(2, "01062026");
        screen.click("cmdGrabar");
      },
      number);
  const ado::Recordset rows = world.sql("select Lca_PorIva, Lca_IdTiva, Lca_Iva from Lca");
  EXPECT_EQ(rows.cell(0, 0).asDouble(), 18);
  EXPECT_EQ(rows.cell(0, 1).asLong(), 1);
  EXPECT_EQ(rows.cell(0, 2).asDouble(), 2.15);
}

TEST(StoredSettlement, GoesToAnotherAgentOnlyOnceTheUserHasSaidSo) {
  for (bool agrees : {false, true}) {
    World world;
    const int number = world.settle({1});
    world.desktop.onList = [](const screen::ListDialog& dialog) {
      return screen::HeadlessDesktop::Reply<std::optional<std::size_t>>{dialog.rows.size() - 1};
    };
    world.desktop.onMessage = [&](const screen::MessageBox& box) {
      world.messages.push_back(box.text);
      return screen::HeadlessDesktop::Reply<screen::Answer>{
          box.yesNo() && agrees ? screen::Answer::Yes : box.defaultAnswer()};
    };
    world.show(
        [&](Screen& screen) {
          world.desktop.stroke(*screen::keyNamed("F1"));
          world.desktop.settle();
          EXPECT_EQ(screen.text(0).Text(), "6");
          screen.click("cmdGrabar");
        },
        number);
    ASSERT_FALSE(world.messages.empty());
    EXPECT_EQ(world.messages[0],
              "Las facturas de la lista son del agente 5 y la liquidación va a ser del agente 6 "
              "(Luis Paz). ¿Desea guardarla así?");
    EXPECT_EQ(world.sql("select Lca_IdAg from Lca").cell(0, 0).asLong(), agrees ? 6 : 5);
    EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 1U);
  }
}

}  // namespace
}  // namespace korvantes::settlement
