#include "tests/support/full_disk.h"

#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class FullDiskTest : public testing::Test {
 protected:
  FullDiskTest() {
    makeTables(connection_);
    connection_.Execute("insert into Cav (Cav_Id, Cav_IdLca) values (1, 0)");
  }
  /// Takes more room in the log than the limits below leave.
  void change() {
    auto row = connection_.OpenForUpdate("select * from Cav where Cav_Id = 1");
    row.Collect("Cav_IdLca", 44);
    row.Update();
    connection_.Execute("insert into Age (AGE_ID) values (1)");
    auto agent = connection_.OpenForUpdate("select * from Age where AGE_ID = 1");
    agent.Collect("AGE_IMG", ado::Bytes(2'000'000));
    agent.Update();
  }
  std::vector<std::string> notes() {
    return rowsOf(connection_.Execute("select Cav_Id,Cav_IdLca from Cav"));
  }
  static constexpr rlim_t kLimit = 1'000'000;

  TemporaryFolder folder_;
  sqlite::SqliteConnection connection_{folder_.file("empresa.db"), {true, 20}};
};

TEST_F(FullDiskTest, ACommitThatFailsLeavesTheOldStateAndCanBeRolledBack) {
  connection_.BeginTrans();
  change();
  {
    const support::FullDisk limit(kLimit);
    EXPECT_THROW(connection_.CommitTrans(), ado::Error);
  }
  // Nobody has rolled back yet, so nothing is stored on its own.
  EXPECT_THROW(connection_.Execute("insert into Cav (Cav_Id) values (2)"), ado::Error);
  EXPECT_THROW(connection_.CommitTrans(), ado::Error);
  connection_.RollbackTrans();
  EXPECT_EQ(notes(), std::vector<std::string>{"1|0"});
  connection_.BeginTrans();
  change();
  connection_.CommitTrans();
  EXPECT_EQ(notes(), std::vector<std::string>{"1|44"});
}

TEST_F(FullDiskTest, WhoHasReadThatTheTransactionIsGoneMayGoOn) {
  connection_.BeginTrans();
  change();
  {
    const support::FullDisk limit(kLimit);
    EXPECT_THROW(connection_.CommitTrans(), ado::Error);
  }
  EXPECT_FALSE(connection_.inTransaction());
  connection_.Execute("insert into Cav (Cav_Id, Cav_IdLca) values (2, 0)");
  EXPECT_EQ(notes(), (std::vector<std::string>{"1|0", "2|0"}));
}

}  // namespace
}  // namespace korvantes::testing_engines
