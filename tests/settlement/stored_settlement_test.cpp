#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"
#include "tests/support/outside_journal.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kTitle = "] Liquidación de comisiones a agentes | ";

TEST(StoredSettlement, OneThatIsGoneOrCannotBeShownIsToldAndLeftAlone) {
  const struct {
    std::size_t rows;  ///< settlements of an agent that does not exist
    std::string opening;
    bool marked;
    const char* saved;
  } cases[] = {
      {0, "La liquidación 1 ya no existe: otro usuario la ha cambiado o eliminado.", true,
       "Se ha guardado una liquidación nueva, la 1."},
      {0, "La liquidación 1 ya no existe: otro usuario la ha cambiado o eliminado.", false,
       "No se ha guardado nada."},
      {1, "El agente 99 de la liquidación 1 ya no existe; no se puede mostrar ni cambiar.", true,
       "Se ha guardado una liquidación nueva, la 2."},
      {1, "El agente 99 de la liquidación 1 ya no existe; no se puede mostrar ni cambiar.", false,
       "No se ha guardado nada."},
  };
  for (const auto& each : cases) {
    World world;
    if (each.rows == 1) world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (99)");
    world.open(1, [&](Screen& screen) {
      EXPECT_THAT(world.messages, ElementsAre("[48" + kTitle + each.opening));
      EXPECT_FALSE(screen.control("cmdBorrar").Visible());
      each.marked ? screen.makeOut({1}) : screen.type(2, "24112026");
      screen.click("cmdGrabar");
    });
    EXPECT_EQ(world.messages.back(), std::string("[64] KORVANTES | La liquidación 1 no se pudo "
                                                 "mostrar y se ha dejado como estaba. ") +
                                         each.saved);
    EXPECT_EQ(world.count("Lca"), each.rows + each.marked);
  }
}

TEST(StoredSettlement, OneThatWouldDisappearIsRemovedOnlyAfterAQuestionThatSaysSo) {
  const std::string missing =
      " no aparecen en la lista, porque ya no existen o han perdido su factura o su cliente: ";
  const std::string removed = "[64] KORVANTES | La liquidación 1 se ha eliminado.";
  const struct {
    const char* change;
    std::string reason;  ///< none: the user himself has unmarked every row
    bool print;
    std::string message;
  } cases[] = {
      {"delete from Lcd where Lcd_IdLca = 1", "no tiene ningún albarán.", true,
       removed + " No hay nada que imprimir."},
      {"Update Fav set Fav_IdCli = 0 where Fav_Id > 0", "sus albaranes" + missing + "2.", false,
       removed},
      {"Update Fav set Fav_IdCli = 0 where Fav_Id = 2",
       "no hay ningún albarán marcado, y los demás" + missing + "1.", false, removed},
      {"delete from Cav where Cav_Id = 2",
       "no hay ningún albarán marcado, y los demás" + missing + "1.", false, removed},
      {"Update Fav set Fav_IdCli = 1 where Fav_Id = 2", "", true,
       removed + " No hay nada que imprimir."},
      {"Update Fav set Fav_IdCli = 1 where Fav_Id = 2", "", false,
       "[64] KORVANTES | Proceso de liquidacion de comisiones a agentes concluido "
       "satisfactoriamente"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.change);
    World world;
    support::OutsideJournal journal;
    journal.offer(world.desktop);
    world.settle({1, 2});
    world.sql(each.change);
    world.open(1, [&](Screen& screen) {
      for (std::size_t row = 0; row < screen.list().Count(); ++row) screen.tick(row, false);
      if (each.print) screen.click("Check3");
      if (!each.reason.empty()) {
        const auto before = world.stored();
        screen.click("cmdGrabar");
        EXPECT_EQ(world.messages.back(), "[308" + kTitle + "La liquidación 1 se va a eliminar: " +
                                             each.reason + " ¿Desea eliminarla?");
        EXPECT_EQ(world.stored(), before);
        world.answers = {screen::Answer::Yes};
      }
      screen.click("cmdGrabar");
    });
    EXPECT_EQ(world.messages.back(), each.message);
    EXPECT_EQ(world.count("Lca"), 0U);
    EXPECT_THAT(journal.lines, IsEmpty()) << "no paper of nothing";
  }
}

TEST(StoredSettlement, ShowsNotesWithoutLinesInvoicesWithoutSeriesAndNullsAsEmptyFields) {
  World world;
  world.open(world.settle({2}), [](Screen& screen) {
    EXPECT_EQ(screen.list().item(0).Text, "1234567");
    EXPECT_THAT(screen.list().item(0).SubItems,
                ElementsAre("11/10/2026", "Bar Pepe", "/16", "0,00", "0,00", "0,00"));
  });
  world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (6)");
  world.open(2, [](Screen& screen) {
    EXPECT_THAT(screen.contents(),
                ElementsAre("6", "Luis Paz", "", "", "", "", "", "", "", "", ""));
    EXPECT_EQ(screen.control<screen::CheckBox>("Check1").Value(), 0);
  });
  EXPECT_THAT(world.messages, IsEmpty());
}

}  // namespace
}  // namespace korvantes::settlement
