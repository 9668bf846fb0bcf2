#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"
#include "tests/support/outside_journal.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kTitle = "] Liquidación de comisiones a agentes | ";
constexpr const char* kDone =
    "[64] KORVANTES | Proceso de liquidacion de comisiones a agentes concluido satisfactoriamente";

TEST(StoredSettlement, OneThatIsGoneOrCannotBeShownIsToldAndLeftAlone) {
  struct Case {
    const char *row, *opening;
  };
  const Case cases[] = {
      {"", "La liquidación 1 ya no existe: otro usuario la ha cambiado o eliminado."},
      {"INSERT INTO Lca (Lca_IdAg) VALUES (99)",
       "El agente 99 de la liquidación 1 ya no existe; no se puede mostrar ni cambiar."},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.opening);
    const std::string row = each.row;
    for (const bool marked : {true, false}) {
      World world;
      if (!row.empty()) world.sql(row);
      world.show(
          [&](Screen& screen) {
            EXPECT_THAT(world.messages, ElementsAre("[48" + (kTitle + std::string(each.opening))));
            EXPECT_FALSE(screen.control("cmdBorrar").Visible());
            if (marked)
              screen.makeOut({1});
            else
              screen.type(2, "24112026");
            screen.click("cmdGrabar");
          },
          1);
      const std::string number = row.empty() ? "1" : "2";
      EXPECT_EQ(
          world.messages.back(),
          "[64] KORVANTES | La liquidación 1 no se pudo mostrar y se ha dejado como estaba. " +
              (marked ? "Se ha guardado una liquidación nueva, la " + number + "."
                      : "No se ha guardado nada."));
      EXPECT_EQ(world.sql("select * from Lca").RecordCount(),
                (row.empty() ? 0U : 1U) + (marked ? 1U : 0U));
    }
  }
}

TEST(StoredSettlement, OneThatWouldDisappearIsRemovedOnlyAfterAQuestionThatSaysSo) {
  constexpr const char* kNone = "La liquidación 1 se va a eliminar: no tiene ningún albarán.";
  constexpr const char* kLost =
      "La liquidación 1 se va a eliminar: sus albaranes no aparecen en la lista, porque ya no "
      "existen o han perdido su factura o su cliente: 2.";
  constexpr const char* kOneLost =
      "La liquidación 1 se va a eliminar: no hay ningún albarán marcado, y los demás no aparecen "
      "en la lista, porque ya no existen o han perdido su factura o su cliente: 1.";
  struct Case {
    const char *change, *question;
  };
  const Case cases[] = {
      {"delete from Lcd where Lcd_IdLca = 1", kNone},
      {"Update Fav set Fav_IdCli = 0 where Fav_Id > 0", kLost},
      {"Update Fav set Fav_IdCli = 0 where Fav_Id = 2", kOneLost},
      {"delete from Cav where Cav_Id = 2", kOneLost},
      {"Update Fav set Fav_IdCli = 1 where Fav_Id = 2", nullptr},  // unmarked by the user
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.change);
    for (const bool print : {true, false}) {
      World world;
      support::OutsideJournal journal;
      journal.offer(world.desktop);
      world.settle({1, 2});
      world.sql(each.change);
      world.show(
          [&](Screen& screen) {
            for (std::size_t row = 0; row < screen.list().Count(); ++row) screen.tick(row, false);
            if (print) screen.click("Check3");
            if (each.question != nullptr) {
              const auto before = world.stored();
              screen.click("cmdGrabar");
              EXPECT_EQ(world.messages.back(),
                        "[308" + (kTitle + std::string(each.question)) + " ¿Desea eliminarla?");
              EXPECT_EQ(world.stored(), before);
              world.answers = {screen::Answer::Yes};
            }
            screen.click("cmdGrabar");
          },
          1);
      const std::string removed = "[64] KORVANTES | La liquidación 1 se ha eliminado.";
      EXPECT_EQ(world.messages.back(), print ? removed + " No hay nada que imprimir."
                                       : each.question != nullptr ? removed
                                                                  : kDone);
      EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 0U);
      EXPECT_THAT(journal.lines, IsEmpty()) << "no paper of nothing";
    }
  }
}

TEST(StoredSettlement, ListsNotesWithoutLinesAndInvoicesWithoutSeries) {
  World world;
  const int number = world.settle({2});
  world.show(
      [](Screen& screen) {
        EXPECT_EQ(screen.list().item(0).Text, "1234567");
        EXPECT_THAT(screen.list().item(0).SubItems,
                    ElementsAre("11/10/2026", "Bar Pepe", "/16", "0,00", "0,00", "0,00"));
      },
      number);
}

TEST(StoredSettlement, NullsShowAsEmptyFieldsAndUntickedFilters) {
  World world;
  world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (6)");
  world.show(
      [&](Screen& screen) {
        EXPECT_THAT(screen.contents(),
                    ElementsAre("6", "Luis Paz", "", "", "", "", "", "", "", "", ""));
        EXPECT_EQ(screen.control<screen::CheckBox>("Check1").Value(), 0);
      },
      1);
  EXPECT_THAT(world.messages, IsEmpty());
}

}  // namespace
}  // namespace korvantes::settlement
