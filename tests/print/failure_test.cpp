#include "tests/support/failure.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "tests/print/print_world.h"
#include "tests/support/folder_contents.h"
#include "tests/support/full_disk.h"

namespace korvantes::office {
namespace {

using support::failureOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

TEST(ReportCalls, ThatDoNotFitAreReportedInSpanish) {
  PrintWorld world;
  const auto print = world.print();
  const Argument n11 = ado::Variant(11), n12 = ado::Variant(12), zero = ado::Variant(0),
                 text = ado::Variant("select lca.* from lca");
  const struct {
    const char* method;
    std::vector<Argument> arguments;
    const char* words;
  } cases[] = {
      {"Show", {}, "no tiene el método «Show»"},
      {"ShowReport", {n11, text}, "espera 3 u 8"},
      {"ShowReport", {ado::Variant(13), text, zero}, "No existe el informe 13"},
      {"ShowReport", {ado::Variant("once"), text, zero}, "le falta su número"},
      {"ShowReport", {Omitted{}, text, zero}, "le falta su número"},
      {"ShowReport", {n12, Omitted{}, zero}, "le falta su sentencia"},
      {"showreport", {n12, ado::Variant("WHERE Lca_IdAg = 7"), zero}, "vuelva a buscar"},
      {"ShowReport", {n12, text, zero}, "necesita la columna «Age_Id»"},
      {"ShowReport", {n11, ado::Variant("select * from Nada"), zero}, "Nada"},
      {"ShowReport", {n12, text, zero, zero, {}, {}, {}, ado::Recordset()}, "4 a 7"},
      {"ShowReport", {n12, text, zero, {}, {}, {}, {}, zero}, "el conjunto de filas"},
  };
  for (const auto& each : cases)
    EXPECT_THAT(failureOf([&] { print->call(each.method, each.arguments); }),
                HasSubstr(each.words));
  EXPECT_THAT(failureOf([&] {
                MZPrint(world.outlet).call("ShowReport", {n11, text, zero});
              }),
              HasSubstr("le falta la base de datos"));
  EXPECT_THAT(failureOf([&] { print->set("Color", zero); }), HasSubstr("la propiedad «Color»"));
  EXPECT_THAT(failureOf([&] { print->set("MyBd", zero); }), HasSubstr("la base de datos"));
  EXPECT_TRUE(world.delivered.empty());

  world.settle({});
  world.settle({});
  EXPECT_THAT(failureOf([&] {
                print->call("ShowReport", {n11, text, zero});
              }),
              HasSubstr("traen 2"));
}

TEST(ReportFiles, ThatCannotBeWrittenLeaveTheOldOneAndNothingElse) {
  PrintWorld world;
  std::vector<int> notes;
  for (int note = 1; note <= 300; ++note) {
    world.note(note, 0, "1", "1");
    notes.push_back(note);
  }
  world.settle(notes);
  const std::string first = "Liquidación 1.pdf", second = "Liquidación 1-2.pdf";
  // Full at the first words, and where only the last of them are still to be written.
  for (const auto& [limit, name] : {std::pair{4'000U, first}, {30'000U, second}}) {
    std::ofstream(world.file(name)) << "antes";
    const support::FullDisk disk(limit);
    EXPECT_THAT(failureOf([&] { world.settlementText(1); }),
                HasSubstr(world.file(name) + ": el fichero es demasiado grande"));
  }
  EXPECT_THAT(support::contentsOf(world.file("")),
              ElementsAre(Pair(second, "antes"), Pair(first, "antes")));

  std::filesystem::create_directory(world.file("Liquidación.pdf"));
  EXPECT_THAT(failureOf([&] { world.settlementText(9); }),
              HasSubstr("Liquidación.pdf: es una carpeta"));
  EXPECT_TRUE(world.delivered.empty());

  world.settlementText(9);
  EXPECT_EQ(world.delivered.back().file, world.file("Liquidación-2.pdf"));
}

}  // namespace
}  // namespace korvantes::office
