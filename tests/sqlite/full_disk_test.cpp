#include "tests/support/full_disk.h"

#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

TEST(FullDiskTest, ACommitThatFailsLeavesTheOldStateAndCanBeRolledBack) {
  TemporaryFolder folder;
  sqlite::SqliteConnection connection(folder.file("empresa.db"), {true, 20});
  makeTables(connection);
  connection.Execute("insert into Cav (Cav_Id, Cav_IdLca) values (1, 0)");
  connection.Execute("insert into Age (AGE_ID) values (1)");
  // Takes more room in the log than the limit leaves.
  const auto change = [&] {
    connection.BeginTrans();
    auto row = connection.OpenForUpdate("select * from Cav where Cav_Id = 1");
    row.Collect("Cav_IdLca", 44);
    row.Update();
    auto agent = connection.OpenForUpdate("select * from Age where AGE_ID = 1");
    agent.Collect("AGE_IMG", ado::Bytes(2'000'000));
    agent.Update();
  };
  const auto notes = [&] {
    return rowsOf(connection.Execute("select Cav_Id,Cav_IdLca from Cav order by Cav_Id"));
  };
  const auto failToCommit = [&] {
    change();
    const support::FullDisk limit(1'000'000);
    EXPECT_THROW(connection.CommitTrans(), ado::Error);
  };

  failToCommit();
  // Until it is rolled back, nothing is stored on its own.
  EXPECT_THROW(connection.Execute("insert into Cav (Cav_Id) values (2)"), ado::Error);
  EXPECT_THROW(connection.CommitTrans(), ado::Error);
  connection.RollbackTrans();
  EXPECT_EQ(notes(), std::vector<std::string>{"1|0"});

  // A caller that has read that the transaction is gone may go on without a rollback.
  failToCommit();
  EXPECT_FALSE(connection.inTransaction());
  connection.Execute("insert into Cav (Cav_Id, Cav_IdLca) values (2, 0)");
  EXPECT_EQ(notes(), (std::vector<std::string>{"1|0", "2|0"}));

  change();
  connection.CommitTrans();
  EXPECT_EQ(notes(), (std::vector<std::string>{"1|44", "2|0"}));
}

}  // namespace
}  // namespace korvantes::testing_engines
