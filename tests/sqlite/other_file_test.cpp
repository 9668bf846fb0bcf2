#include <fstream>
#include <gmock/gmock.h>
#include <sqlite3.h>

#include "tests/sqlite/engine_fixture.h"
#include "tests/support/folder_contents.h"

namespace korvantes::testing_engines {
namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

/// Makes a database as another program would. Left open until `meanwhile` returns.
void makeForeign(
    const std::string& path, const char* statements,
    const std::function<void()>& meanwhile = [] {}) {
  sqlite3* connection = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &connection), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(connection, statements, nullptr, nullptr, nullptr), SQLITE_OK);
  meanwhile();
  sqlite3_close(connection);
}

using OtherFileTest = FileTest;

TEST_F(OtherFileTest, ADatabaseOfAnotherProgramIsRefusedWithoutATrace) {
  const char* kLogged = "PRAGMA journal_mode=WAL; CREATE TABLE t (a); INSERT INTO t VALUES (1)";
  const std::function<void(const std::string&)> makers[] = {
      [](const std::string& path) { makeForeign(path, "CREATE TABLE t (a)"); },
      [](const std::string& path) { makeForeign(path, "CREATE VIEW v AS SELECT 1"); },
      [&](const std::string& path) { makeForeign(path, kLogged); },
      [&](const std::string& path) {  // a program that was killed, its log full
        makeForeign(path, kLogged, [&] {
          for (const char* part : {"", "-wal", "-shm"})
            fs::copy_file(path + part, path + "x" + part);
        });
        for (const char* part : {"", "-wal", "-shm"}) fs::rename(path + "x" + part, path + part);
      },
  };
  for (const auto& make : makers) {
    for (const std::string& place : {path_, partner_}) {
      make(place);
      const auto before = support::contentsOf(folder_.path());
      const auto refusal = errorOf([&] { SqliteConnection(path_, kCreate); });
      EXPECT_THAT(refusal.what(), HasSubstr("otro programa"));
      errorOf([&] { SqliteConnection connection(path_); });
      EXPECT_EQ(support::contentsOf(folder_.path()), before);
      for (const auto& [name, bytes] : before) fs::remove(folder_.file(name));
    }
  }
}

TEST_F(OtherFileTest, OnlyCreatingAcceptsAFileWithoutTables) {
  const std::function<void()> makers[] = {[&] { std::ofstream(path_).flush(); },
                                          [&] { makeForeign(path_, "VACUUM"); }};
  for (const auto& make : makers) {
    make();
    const auto before = support::contentsOf(folder_.path());
    EXPECT_FALSE(sqlite::holdsTables(path_));
    errorOf([&] { SqliteConnection connection(path_); });
    EXPECT_EQ(support::contentsOf(folder_.path()), before);
    makeBase();
    EXPECT_TRUE(sqlite::holdsTables(path_));
    for (const std::string& file : {path_, partner_}) fs::remove(file);
  }
}

TEST_F(OtherFileTest, ABaseOfOursIsRecognisedWhateverItsLogHolds) {
  makeBase();
  SqliteConnection working(path_);
  working.Execute("insert into Cav (Cav_Id) values (1)");
  for (const char* part : {"", "-wal", ".vespara", ".vespara-wal"})
    fs::copy_file(path_ + part, folder_.file("copia#1.db") + part);
  SqliteConnection copy(folder_.file("copia#1.db"));
  EXPECT_EQ(rowsOf(copy.Execute("select Cav_Id from Cav")), Rows{"1"});
}

TEST_F(OtherFileTest, AMissingSharedFileIsNamedUntilItIsBack) {
  makeBase();
  fs::rename(partner_, folder_.file("apartado"));
  const std::function<void()> states[] = {[] {}, [&] { std::ofstream(partner_).flush(); },
                                          [&] { makeForeign(partner_, "CREATE TABLE t (a)"); }};
  const char* words[] = {"No se encuentra la base de datos compartida «empresa.db.vespara»",
                         "está vacía", "otro programa"};
  SqliteConnection connection(path_);
  for (std::size_t i = 0; i < std::size(words); ++i) {
    states[i]();
    const bool there = fs::exists(partner_);
    const auto before = support::contentsOf(folder_.path())["empresa.db.vespara"];
    for (const char* statement :
         {"select * from Vespara.dbo.Tivas where Tiva_Id = 1", "delete from Vespara.dbo.PAIS",
          "select AGE_NOM from Age left join Vespara.dbo.PAIS on AGE_PAI = PAIS_COD",
          "create table Vespara.dbo.Otra (Id int null)"}) {
      const auto error = errorOf([&] { connection.Execute(statement); });
      EXPECT_EQ(error.kind(), ErrorKind::SharedMissing) << statement;
      EXPECT_THAT(error.what(), HasSubstr(words[i]));
      EXPECT_THAT(error.what(), HasSubstr(folder_.path().string()));
    }
    connection.Execute("update Cav set Cav_IdLca = 0");
    EXPECT_EQ(fs::exists(partner_), there);
    EXPECT_EQ(support::contentsOf(folder_.path())["empresa.db.vespara"], before);
  }
  fs::rename(folder_.file("apartado"), partner_);
  EXPECT_EQ(connection.Execute("select * from Vespara.dbo.Tivas").RecordCount(), 0U);
}

}  // namespace
}  // namespace korvantes::testing_engines
