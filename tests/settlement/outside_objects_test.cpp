#include <gmock/gmock.h>

#include "outside/office/objects.h"
#include "outside/screen/conversions.h"
#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the screen asks of the outside objects, and the words they fail with, if any.
struct Journal {
  std::vector<std::string> lines;
  std::string failure;
};

struct Outside : office::Object {
  Journal& journal;
  explicit Outside(Journal& kept) : journal(kept) {}
  ~Outside() override { journal.lines.push_back("released"); }
  void set(std::string_view property, const office::Argument& value) override {
    const auto* service = std::get_if<std::shared_ptr<plindor::BaseDatos>>(&value);
    journal.lines.push_back(std::string(property) +
                            (service != nullptr && *service ? " set" : " missing"));
  }
  ado::Variant call(std::string_view method,
                    const std::vector<office::Argument>& arguments) override {
    std::string line(method);
    for (const office::Argument& argument : arguments) {
      if (const auto* control = std::get_if<screen::Control*>(&argument))
        line += " | " + (*control)->identity() +
                ((*control)->form().Enabled() ? " enabled" : " disabled");
      else
        line += " | " + screen::CStr(std::get<ado::Variant>(argument));
    }
    journal.lines.push_back(line);
    if (!journal.failure.empty()) throw ado::Error(1, journal.failure);
    return {};
  }
};

void offer(World& world, Journal& journal) {
  for (const char* name : {"marzenes.MZPrint", "BELTRIS.bSheets"})
    world.desktop.objects().add(name, [&] { return std::make_unique<Outside>(journal); });
}

std::string report(int number) {
  return "ShowReport | 11 | select age_id,age_nom,age_nif,lca.* from lca inner join age on "
         "lca_idag=age_id  Where lca_id = " +
         std::to_string(number) + " | 0";
}

TEST(SettlementOutsideObjects, GetTheStoredSettlementToPrintAndTheListToExport) {
  World world;
  Journal journal;
  offer(world, journal);
  world.show([&](Screen& screen) {
    screen.click("cmdExcell");
    screen.search("5", false, false);
    screen.type(2, "24112026");
    screen.tick(screen.rowOf(1));
    screen.click("Check3");
    screen.click("cmdGrabar");
    EXPECT_EQ(screen.list().Count(), 0U);
  });
  const int number = world.sql("select Lca_Id from Lca").cell(0, 0).asLong();
  world.show(
      [&](Screen& screen) {
        const auto before = screen.contents();
        screen.click("cmdImprime");
        screen.click("cmdExcell");
        EXPECT_EQ(screen.contents(), before);
        EXPECT_TRUE(screen.form.Enabled());
        // Saved without rows it is gone, while the buttons stay.
        screen.tick(0, false);
        screen.click("Check3");
        screen.click("cmdGrabar");
        screen.click("cmdImprime");
      },
      number);
  const std::string list = "ListToExcel | ListView1 disabled";
  EXPECT_THAT(journal.lines,
              ElementsAre(list, "released", "MyBd set", report(number), "released", "MyBd set",
                          report(number), "released", list, "released", "MyBd set", report(0),
                          "released", "MyBd set", report(0), "released"));
  EXPECT_THAT(world.messages, IsEmpty());
}

TEST(SettlementOutsideObjects, AFailureIsToldAndLeavesTheScreenUsable) {
  for (const std::string words : {"", "disco lleno"}) {
    World world;
    Journal journal{{}, words};
    if (!words.empty()) offer(world, journal);
    const auto told = [&](const std::string& name) {
      return words.empty() ? "No hay ningún componente registrado con el nombre «" + name + "»"
                           : words;
    };
    const int number = world.settle({1});
    world.show(
        [&](Screen& screen) {
          const auto before = screen.contents();
          for (const char* button : {"cmdImprime", "cmdExcell"}) {
            screen.click(button);
            EXPECT_TRUE(screen.form.Enabled());
          }
          EXPECT_EQ(screen.contents(), before);
          screen.type(7, "sigue");
          EXPECT_EQ(screen.text(7).Text(), "sigue");
        },
        number);
    const std::string box = "[16] Liquidacion de comisiones a Agentes | ";
    EXPECT_THAT(world.messages,
                ElementsAre(box + told("marzenes.MZPrint"), box + told("BELTRIS.BSHEETS")));

    // What was stored stays stored: the screen is emptied as after a success.
    world.messages.clear();
    world.show([&](Screen& screen) {
      screen.search("5", false, false);
      screen.type(2, "24112026");
      screen.tick(screen.rowOf(3));
      screen.click("Check3");
      screen.click("cmdGrabar");
      EXPECT_EQ(screen.list().Count(), 0U);
      EXPECT_EQ(screen.text(10).Text(), "");
    });
    EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 2U);
    EXPECT_THAT(world.messages,
                ElementsAre("[48] KORVANTES | La liquidacion se ha guardado, pero no se ha podido "
                            "imprimir:\r\n" +
                            told("marzenes.MZPrint")));
  }
}

}  // namespace
}  // namespace korvantes::settlement
