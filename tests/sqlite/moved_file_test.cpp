#include <filesystem>

#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

namespace fs = std::filesystem;

class MovedFileTest : public EngineTest {
 protected:
  MovedFileTest() {
    run("insert into Cav (Cav_Id, Cav_IdLca) values (1, 0)");
    run("insert into Vespara.dbo.PAIS values (34, 'España')");
  }
  fs::path path(const std::string& name) const { return folder_.file(name); }
};

TEST_F(MovedFileTest, NothingIsWrittenUntilTheFileIsBackInItsPlace) {
  auto note = connection_->OpenForUpdate("select * from Cav where Cav_Id = 1");
  const std::function<void()> writes[] = {
      [&] { run("insert into Cav (Cav_Id) values (2)"); },
      [&] { run("update Vespara.dbo.PAIS set PAIS_NOM = 'x'"); },
      [&] { run("delete from Cav"); },
      [&] { run("create table Otra (Id int null)"); },
      [&] { run("drop table Lcd"); },
      [&] { connection_->BeginTrans(); },
      [&] { note.Update(); },
  };
  for (const char* name :
       {"empresa.db", "empresa.db.vespara", "empresa.db-wal", "empresa.db.vespara-wal"}) {
    for (const bool replaced : {false, true}) {
      SCOPED_TRACE(name);
      fs::rename(path(name), path("apartado"));
      if (replaced) fs::copy_file(path("apartado"), path(name));
      note.Collect("Cav_IdLca", 44);
      for (const auto& write : writes) EXPECT_EQ(errorOf(write).kind(), ErrorKind::FileReplaced);
      note.CancelUpdate();
      EXPECT_FALSE(connection_->inTransaction());
      EXPECT_EQ(rows("select Cav_Id, Cav_IdLca from Cav"), Rows{"1|0"});
      fs::rename(path("apartado"), path(name));
      run("update Cav set Cav_IdLca = 0");
    }
  }
}

TEST_F(MovedFileTest, ATransactionThatLosesItsFileIsNotCommitted) {
  for (const char* name : {"empresa.db", "empresa.db.vespara"}) {
    connection_->BeginTrans();
    run("insert into Cav (Cav_Id) values (2)");
    fs::rename(path(name), path("apartado"));
    EXPECT_EQ(failure("delete from Cav").kind(), ErrorKind::FileReplaced);
    EXPECT_EQ(errorOf([&] { connection_->CommitTrans(); }).kind(), ErrorKind::FileReplaced);
    EXPECT_TRUE(connection_->inTransaction());
    connection_->RollbackTrans();
    fs::rename(path("apartado"), path(name));
    EXPECT_EQ(row("select count(*) from Cav"), "1");
  }
}

}  // namespace
}  // namespace korvantes::testing_engines
