#include <clocale>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "tests/sheet/sheet_world.h"
#include "tests/support/folder_contents.h"
#include "tests/support/full_disk.h"

/// The C library never frees the folders of LOCPATH.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:argz_add_sep";
}

namespace korvantes::office {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Key;

namespace fs = std::filesystem;

void put(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

TEST(SpreadsheetFile, IsNotTouchedWhenItCannotBeReplaced) {
  SheetWorld world;
  world.addRow({"A/1"});
  const fs::path folder = world.folder.file("");
  fs::create_directory(folder / "carpeta");
  put(folder / "protegido", "viejo");
  fs::permissions(folder / "protegido", fs::perms::owner_read);
  put(folder / "abierto", "viejo");
  const int opened = ::open((folder / "abierto").c_str(), O_RDWR);
  ASSERT_EQ(::flock(opened, LOCK_SH), 0);
  ::mkfifo((folder / "tubo").c_str(), 0600);
  fs::create_symlink("nada/nada", folder / "enlace");

  const struct {
    fs::path target;
    const char* words;
  } targets[] = {
      {folder / "nada" / "x.xlsx", "No existe la carpeta"},
      {folder / "enlace", "No existe la carpeta"},
      {folder / "protegido" / "x.xlsx", "No existe la carpeta"},
      {folder / "carpeta", "es una carpeta"},
      {folder / "protegido", "está protegido contra escritura"},
      {folder / "abierto", "está abierto en otro programa"},
      {folder / "tubo", "no es un fichero corriente"},
      {folder / std::string(255, 'n').append("n"), "el nombre es demasiado largo"},
  };
  for (const auto& each : targets) {
    world.target = each.target;
    EXPECT_THAT(support::failureOf([&] { world.exportList(); }), HasSubstr(each.words));
  }
  ::close(opened);
  EXPECT_EQ(world.rowsWritten, std::nullopt);
  for (const char* old : {"protegido", "abierto"}) EXPECT_EQ(fs::file_size(folder / old), 5U);
  EXPECT_THAT(world.filesInFolder(),
              ElementsAre("abierto", "carpeta", "enlace", "protegido", "tubo"));
}

TEST(SpreadsheetFile, IsWholeOrTheOldOneWhereverTheDiskIsFull) {
  SheetWorld world;
  for (int row = 0; row < 200; ++row)
    world.addRow({"A/" + std::to_string(row), "2026-06-30", "Cliente", "", "10,00"});
  rlim_t failures = 0;
  for (std::string failure;; ++failures) {
    put(*world.target, "viejo");
    {
      const support::FullDisk disk(512 * (failures + 1));
      failure = support::failureOf([&] { world.exportList(); });
    }
    const auto files = support::contentsOf(world.folder.file(""));
    ASSERT_THAT(files, ElementsAre(Key("hoja.xlsx")));
    if (failure.empty()) break;
    EXPECT_THAT(failure, HasSubstr("No se ha podido escribir " + world.target->string() + ": "));
    EXPECT_EQ(files.at("hoja.xlsx"), "viejo");
  }
  EXPECT_GT(failures, 50U);
  EXPECT_THAT(world.read(), HasSubstr("\"A/199\""));
}

TEST(SpreadsheetFile, ReplacesAnOldOneAndKeepsItsPermissionsAndLinkUnlessTheUserCancels) {
  SheetWorld world;
  const auto target = std::exchange(world.target, std::nullopt);
  world.exportList();
  EXPECT_EQ(world.rowsWritten, std::nullopt);
  EXPECT_THAT(world.filesInFolder(), IsEmpty());
  world.target = target;

  const fs::path file = world.folder.file("fichero.xlsx");
  const auto permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  put(file, "viejo");
  fs::permissions(file, permissions);
  fs::create_symlink("fichero.xlsx", *world.target);
  world.exportList();
  EXPECT_TRUE(fs::is_symlink(*world.target));
  EXPECT_EQ(fs::status(file).permissions(), permissions);
  EXPECT_EQ(world.rowsWritten, 0U);
  EXPECT_TRUE(world.read().ends_with("\"Imp.Comision\"\n"));
}

TEST(SpreadsheetFile, HasPointsInItsNumbersWhateverTheLanguage) {
  SheetWorld world;
  world.addRow({"A/1", "", "", "", "1,25"});
  const std::string locales = world.folder.file("");
  put(locales + "comas",
      "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3\nEND LC_NUMERIC\n");
  const std::string command =
      "localedef --no-archive -c -i " + locales + "comas " + locales + "xx_XX 2>/dev/null";
  ASSERT_GE(std::system(command.c_str()), 0);
  ::setenv("LOCPATH", locales.c_str(), 1);
  const locale_t commas = ::newlocale(LC_NUMERIC_MASK, "xx_XX", nullptr);
  ::unsetenv("LOCPATH");
  ASSERT_NE(commas, nullptr) << "localedef needs the package locales";
  const locale_t before = ::uselocale(commas);
  world.exportList();
  EXPECT_STREQ(std::localeconv()->decimal_point, ",");
  ::uselocale(before);
  ::freelocale(commas);
  EXPECT_THAT(world.read(), HasSubstr("| 1.25 [#,##0.00]"));
}

}  // namespace

}  // namespace korvantes::office
