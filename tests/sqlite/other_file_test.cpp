#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <sqlite3.h>

#include "tests/sqlite/engine_fixture.h"
#include "tests/support/failure.h"
#include "tests/support/folder_contents.h"

namespace korvantes::testing_engines {
namespace {

using sqlite::OpenOptions;
using sqlite::SqliteConnection;
using support::failureOf;
using testing::AllOf;
using testing::HasSubstr;
namespace fs = std::filesystem;

const OpenOptions kCreate{true, 20};

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

class OtherFileTest : public testing::Test {
 protected:
  void makeBase() {
    SqliteConnection connection(path_, kCreate);
    makeTables(connection);
  }
  TemporaryFolder folder_;
  std::string path_ = folder_.file("empresa.db");
  std::string partner_ = path_ + ".vespara";
};

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
      EXPECT_THAT(failureOf([&] { SqliteConnection(path_, kCreate); }), HasSubstr("otro programa"));
      EXPECT_NE(failureOf([&] { SqliteConnection(path_, OpenOptions{}); }), "");
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
    EXPECT_NE(failureOf([&] { SqliteConnection(path_, OpenOptions{}); }), "");
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
  EXPECT_EQ(rowsOf(copy.Execute("select Cav_Id from Cav")), std::vector<std::string>{"1"});
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
    const auto before = support::contentsOf(folder_.path());
    for (const char* statement :
         {"select * from Vespara.dbo.Tivas where Tiva_Id = 1", "delete from Vespara.dbo.PAIS",
          "select AGE_NOM from Age left join Vespara.dbo.PAIS on AGE_PAI = PAIS_COD",
          "create table Vespara.dbo.Otra (Id int null)"}) {
      try {
        connection.Execute(statement);
        ADD_FAILURE() << statement;
      } catch (const ado::Error& error) {
        EXPECT_EQ(error.kind(), ado::ErrorKind::SharedMissing);
        EXPECT_THAT(error.what(), AllOf(HasSubstr(words[i]), HasSubstr(folder_.path().string())));
      }
    }
    connection.Execute("update Cav set Cav_IdLca = 0");
    EXPECT_EQ(support::contentsOf(folder_.path())["empresa.db.vespara"],
              before.contains("empresa.db.vespara") ? before.at("empresa.db.vespara") : "");
  }
  fs::rename(folder_.file("apartado"), partner_);
  EXPECT_EQ(connection.Execute("select * from Vespara.dbo.Tivas").RecordCount(), 0U);
}

TEST_F(OtherFileTest, FailuresHaveTheirKindAndOnlyOurWords) {
  makeBase();
  SqliteConnection connection(path_, OpenOptions{false, 20});
  connection.Execute("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 33)");
  connection.Execute("insert into Age (AGE_ID) values (1)");
  SqliteConnection other(path_, OpenOptions{false, 20});
  other.BeginTrans();
  const struct {
    const char* statement;
    ado::ErrorKind kind;
    const char* words;
  } cases[] = {
      {"update Cav set Cav_IdLca = 1", ado::ErrorKind::Busy,
       "La base de datos está ocupada por otro usuario"},
      {"insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (2, 33)", ado::ErrorKind::Duplicate,
       "Ya existe en la tabla «Lcd» una fila con el mismo valor de «Lcd_IdCav»"},
      {"insert into Lcd (Lcd_IdLca) values (2)", ado::ErrorKind::Constraint,
       "Línea 1, columna 13: falta el valor de la columna «Lcd_IdCav», que no puede quedar vacía."},
      {"update Lca set Lca_Id = 1", ado::ErrorKind::Constraint, ""},
      {"update Age set AGE_CP = '123456789'", ado::ErrorKind::Overflow, ""},
      {"selec 1", ado::ErrorKind::Syntax, ""},
      {"select * from Nada", ado::ErrorKind::Syntax, ""},
      {"select AGE_ID * 2147483647 * 2 as n from Age", ado::ErrorKind::Overflow, ""},
  };
  for (const auto& each : cases) {
    try {
      connection.Execute(each.statement);
      ADD_FAILURE() << each.statement;
    } catch (const ado::Error& error) {
      EXPECT_EQ(error.kind(), each.kind) << each.statement << ": " << error.what();
      EXPECT_THAT(error.what(), HasSubstr(each.words));
    }
    if (other.inTransaction()) other.RollbackTrans();
  }
}

}  // namespace
}  // namespace korvantes::testing_engines
