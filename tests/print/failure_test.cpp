#include "tests/support/failure.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "tests/print/print_world.h"
#include "tests/support/full_disk.h"

namespace korvantes::office {
namespace {

using support::failureOf;
using testing::HasSubstr;

TEST(ReportCalls, ThatDoNotFitAreReportedInSpanish) {
  PrintWorld world;
  const auto print = world.print(), bare = world.component();
  const std::string select = "select lca.* from lca";
  const Argument n11 = ado::Variant(11), n12 = ado::Variant(12), zero = ado::Variant(0),
                 text = ado::Variant(select), none = ado::Variant("");
  struct Case {
    Object& object;
    const char* method;
    std::vector<Argument> arguments;
    const char* words;
  };
  const Case cases[] = {
      {*print, "Show", {}, "no tiene el método «Show»"},
      {*print, "ShowReport", {n11, text}, "espera 3 u 8"},
      {*print, "ShowReport", {ado::Variant(13), text, zero}, "No existe el informe 13"},
      {*print, "ShowReport", {ado::Variant("once"), text, zero}, "le falta su número"},
      {*print, "ShowReport", {Omitted{}, text, zero}, "le falta su número"},
      {*print, "ShowReport", {n12, Omitted{}, zero}, "le falta su sentencia"},
      {*print, "showreport", {n12, ado::Variant("WHERE Lca_IdAg = 7"), zero}, "vuelva a buscar"},
      {*print, "ShowReport", {n12, none, zero}, "vuelva a buscar"},
      {*print, "ShowReport", {n12, text, zero}, "necesita la columna «Age_Id»"},
      {*print, "ShowReport", {n11, ado::Variant("select * from Nada"), zero}, "Nada"},
      {*print, "ShowReport", {n12, none, zero, zero, {}, {}, {}, ado::Recordset()}, "4 a 7"},
      {*print, "ShowReport", {n12, none, zero, {}, {}, {}, {}, zero}, "el conjunto de filas"},
      {*bare, "ShowReport", {n11, text, zero}, "le falta la base de datos"},
  };
  for (const Case& each : cases)
    EXPECT_THAT(failureOf([&] { each.object.call(each.method, each.arguments); }),
                HasSubstr(each.words));
  EXPECT_THAT(failureOf([&] { print->set("Color", zero); }), HasSubstr("la propiedad «Color»"));
  EXPECT_THAT(failureOf([&] { print->set("MyBd", zero); }), HasSubstr("la base de datos"));
  EXPECT_TRUE(world.delivered.empty());

  world.settle({}, "Null, Null, 0, 0, 0, 0, 0, 0, 0, 0, ''");
  world.settle({}, "Null, Null, 0, 0, 0, 0, 0, 0, 0, 0, ''");
  EXPECT_THAT(failureOf([&] {
                print->call("ShowReport", {n11, text, zero});
              }),
              HasSubstr("traen 2"));
}

std::size_t filesIn(const std::string& folder) {
  const std::filesystem::directory_iterator files(folder);
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(ReportFiles, ThatCannotBeWrittenLeaveTheOldOneAndNothingElse) {
  PrintWorld world;
  std::vector<int> notes;
  for (int note = 1; note <= 300; ++note) {
    world.note(note, 0, "1", "1");
    notes.push_back(note);
  }
  const int number = world.settle(notes, "Null, Null, 0, 0, 0, 0, 0, 0, 0, 0, ''");
  // Full at the first words, and where only the last of them are still to be written.
  for (const rlim_t limit : {4'000U, 30'000U}) {
    const std::string file =
        world.file(limit == 4'000U ? "Liquidación 1.pdf" : "Liquidación 1-2.pdf");
    std::ofstream(file) << "antes";
    const support::FullDisk disk(limit);
    EXPECT_THAT(failureOf([&] { world.settlementText(number); }),
                HasSubstr(file + ": el fichero es demasiado grande"));
    EXPECT_EQ(std::filesystem::file_size(file), 5U);
  }
  EXPECT_EQ(filesIn(world.file("")), 2U);

  std::filesystem::create_directory(world.file("Liquidación.pdf"));
  EXPECT_THAT(failureOf([&] { world.settlementText(9); }),
              HasSubstr("Liquidación.pdf: es una carpeta"));
  EXPECT_EQ(filesIn(world.file("")), 3U);
  EXPECT_TRUE(world.delivered.empty());

  world.settlementText(9);
  EXPECT_EQ(world.delivered.back().file, world.file("Liquidación-2.pdf"));
}

}  // namespace
}  // namespace korvantes::office
