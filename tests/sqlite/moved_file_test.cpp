#include <filesystem>
#include <functional>

#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

namespace fs = std::filesystem;
using ado::ErrorKind;

class MovedFileTest : public EngineTest {
 protected:
  MovedFileTest() {
    run("insert into Cav (Cav_Id, Cav_IdLca) values (1, 0)");
    run("insert into Vespara.dbo.PAIS values (34, 'España')");
  }
  static ErrorKind kindOf(const std::function<void()>& act) {
    try {
      act();
    } catch (const ado::Error& error) {
      return error.kind();
    }
    return ErrorKind::Other;
  }
  void expectEveryWriteRefused() {
    auto row = connection_->OpenForUpdate("select * from Cav where Cav_Id = 1");
    row.Collect("Cav_IdLca", 44);
    const std::function<void()> writes[] = {
        [&] { run("insert into Cav (Cav_Id) values (2)"); },
        [&] { run("update Vespara.dbo.PAIS set PAIS_NOM = 'x'"); },
        [&] { run("delete from Cav"); },
        [&] { run("create table Otra (Id int null)"); },
        [&] { run("drop table Lcd"); },
        [&] { connection_->BeginTrans(); },
        [&] { row.Update(); },
    };
    for (const auto& write : writes) EXPECT_EQ(kindOf(write), ErrorKind::FileReplaced);
    EXPECT_FALSE(connection_->inTransaction());
  }
  fs::path path(const std::string& name) const { return folder_.file(name); }
};

TEST_F(MovedFileTest, NothingIsWrittenUntilTheFileIsBackInItsPlace) {
  for (const char* name :
       {"empresa.db", "empresa.db.vespara", "empresa.db-wal", "empresa.db.vespara-wal"}) {
    for (const bool replaced : {false, true}) {
      SCOPED_TRACE(name);
      fs::rename(path(name), path("apartado"));
      if (replaced) fs::copy_file(path("apartado"), path(name));
      expectEveryWriteRefused();
      EXPECT_EQ(rows("select Cav_Id, Cav_IdLca from Cav"), std::vector<std::string>{"1|0"});
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
    EXPECT_EQ(kindOf([&] { run("delete from Cav"); }), ErrorKind::FileReplaced);
    EXPECT_EQ(kindOf([&] { connection_->CommitTrans(); }), ErrorKind::FileReplaced);
    EXPECT_TRUE(connection_->inTransaction());
    connection_->RollbackTrans();
    fs::rename(path("apartado"), path(name));
    EXPECT_EQ(cell("select count(*) from Cav"), "1");
  }
}

}  // namespace
}  // namespace korvantes::testing_engines
