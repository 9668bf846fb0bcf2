#include <csignal>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

namespace fs = std::filesystem;

class SqliteFileTest : public FileTest {
 protected:
  static void refuse(const std::string& path, sqlite::OpenOptions options = {}) {
    SCOPED_TRACE(path);
    errorOf([&] { SqliteConnection(path, options); });
  }
};

TEST_F(SqliteFileTest, BothFilesAreForTheirOwnerOnly) {
  SqliteConnection connection(path_, kCreate);
  EXPECT_FALSE(connection.hasTable("", "Lca"));
  makeBase();
  EXPECT_TRUE(connection.hasTable("", "Lca"));
  EXPECT_FALSE(connection.hasTable("", "PAIS"));
  connection.Execute("insert into Vespara.dbo.PAIS values (724, 'España')");
  for (const char* name : {"empresa.db", "empresa.db.vespara", "empresa.db-wal"}) {
    struct stat state {};
    ASSERT_EQ(::stat(folder_.file(name).c_str(), &state), 0) << name;
    EXPECT_EQ(state.st_mode & 0777U, 0600U) << name;
  }
}

TEST_F(SqliteFileTest, ALinkInsteadOfAFileIsRefused) {
  std::ofstream(folder_.file("ajeno")).flush();
  fs::create_symlink("ajeno", path_);
  refuse(path_, kCreate);
  refuse(path_);
  fs::remove(path_);
  fs::create_symlink("ajeno", partner_);
  refuse(path_, kCreate);
  EXPECT_EQ(fs::file_size(folder_.file("ajeno")), 0U);
  // A link on the way to the file is allowed.
  fs::create_directory(folder_.file("datos"));
  fs::create_directory_symlink("datos", folder_.file("enlace"));
  SqliteConnection(folder_.file("enlace/empresa.db"), kCreate);
  EXPECT_TRUE(fs::exists(folder_.file("datos/empresa.db")));
}

TEST_F(SqliteFileTest, AProcessThatDiesLeavesTheOldState) {
  makeBase();
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    SqliteConnection connection(path_);
    connection.Execute("insert into Age (AGE_ID, AGE_COM) values (1, 2.5)");
    connection.BeginTrans();
    connection.Execute("insert into Age (AGE_ID) values (2)");
    ::kill(::getpid(), SIGKILL);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  SqliteConnection connection(path_);
  // The types are known from the file.
  EXPECT_EQ(rowsOf(connection.Execute("select Age_Id, Age_Com from Age")), Rows{"1|2.500"});
  errorOf([&] { connection.Execute("create table AGE (Age_Id int null)"); });
}

TEST_F(SqliteFileTest, WhatIsMissingOrNoDatabaseIsLeftUnchanged) {
  refuse(path_);
  EXPECT_FALSE(fs::exists(path_));
  refuse(folder_.file("no/hay/empresa.db"), kCreate);
  refuse(folder_.file(""), kCreate);
  std::ofstream(path_) << std::string(5000, 'x');
  refuse(path_);
  EXPECT_EQ(fs::file_size(path_), 5000U);
  ASSERT_EQ(::mkfifo(folder_.file("tubo").c_str(), 0600), 0);
  refuse(folder_.file("tubo"));
  fs::create_directory(folder_.file("carpeta"));
  refuse(folder_.file("carpeta"), kCreate);
}

}  // namespace
}  // namespace korvantes::testing_engines
