#include "tests/sqlite/engine_fixture.h"
#include "tests/support/full_disk.h"

namespace korvantes::testing_engines {
namespace {

class TransactionTest : public EngineTest {
 protected:
  void note(int id) { run("insert into Cav (Cav_Id) values (" + std::to_string(id) + ")"); }
  std::string notes() { return row("select count(*) from Cav"); }
};

TEST_F(TransactionTest, CommitKeepsRollbackUndoesAndCallsOutOfOrderHarmNothing) {
  errorOf([&] { connection_->CommitTrans(); });
  errorOf([&] { connection_->RollbackTrans(); });
  connection_->BeginTrans();
  note(1);
  errorOf([&] { connection_->BeginTrans(); });
  EXPECT_TRUE(connection_->inTransaction());
  connection_->CommitTrans();
  connection_->BeginTrans();
  run("delete from Cav");
  EXPECT_EQ(notes(), "0");
  connection_->RollbackTrans();
  EXPECT_FALSE(connection_->inTransaction());
  EXPECT_EQ(notes(), "1");
}

TEST_F(TransactionTest, AFailedStatementIsUndoneAndTheTransactionGoesOn) {
  note(1);
  connection_->BeginTrans();
  note(2);
  failure("update Cav set Cav_Id = 9");  // the second row has the first one's key
  EXPECT_EQ(rows("select Cav_Id from Cav order by Cav_Id"), (Rows{"1", "2"}));
  failure("select * from NoHay");
  EXPECT_TRUE(connection_->inTransaction());
  note(3);
  connection_->CommitTrans();
  EXPECT_EQ(notes(), "3");
}

TEST_F(TransactionTest, ASecondUserReadsTheOldStateAndWaitsToWrite) {
  auto other = connect();
  connection_->BeginTrans();
  note(1);
  EXPECT_EQ(rowsOf(other->Execute("select Cav_Id from Cav")), Rows{});
  EXPECT_STREQ(errorOf([&] { other->BeginTrans(); }).what(),
               "La base de datos está ocupada por otro usuario");
  EXPECT_FALSE(other->inTransaction());
  errorOf([&] { other->Execute("insert into Cav (Cav_Id) values (2)"); });
  connection_->CommitTrans();
  other->BeginTrans();
  EXPECT_EQ(rowsOf(other->Execute("select Cav_Id from Cav")), Rows{"1"});
  other->Execute("insert into Cav (Cav_Id) values (2)");
  other.reset();  // rolls back
  EXPECT_EQ(notes(), "1");
}

TEST_F(TransactionTest, TablesComeAndGoWithTheTransaction) {
  const auto other = connect();
  connection_->BeginTrans();
  run("create table Extra (Extra_Id int not null primary key, Extra_Total money null)");
  run("insert into Extra (Extra_Id, Extra_Total) values (1, 2.5)");
  connection_->RollbackTrans();
  failure("select * from Extra");
  run("create table Extra (Extra_Id int not null primary key, Extra_Neto decimal(5,1) null)");
  run("insert into Extra (Extra_Id, Extra_Neto) values (1, 2.5)");
  // The table is new to a connection that was open before.
  EXPECT_EQ(rowsOf(other->Execute("select * from extra")), Rows{"1|2.5"});
  failure("create table EXTRA (Otra int null)");
  run("drop table Extra");
  failure("select * from Extra");
}

TEST_F(TransactionTest, SettlementNumbersCountUpAndAreNeverReused) {
  const auto newest = [&] {
    run("insert into Lca (Lca_IdAg) values (7)");
    return row("Select max(Lca_id) from Lca");
  };
  for (const char* number : {"1", "2", "3"}) EXPECT_EQ(newest(), number);
  run("delete from Lca where Lca_Id=3");
  EXPECT_EQ(newest(), "4");
  run("delete from Lca");
  connection_ = connect();
  EXPECT_EQ(newest(), "5");
}

TEST_F(TransactionTest, ACommitThatFailsLeavesTheOldStateAndCanBeRolledBack) {
  run("insert into Cav (Cav_Id, Cav_IdLca) values (1, 0)");
  run("insert into Age (AGE_ID) values (1)");
  const auto failToCommit = [&] {
    connection_->BeginTrans();
    run("update Cav set Cav_IdLca = 44");
    auto agent = connection_->OpenForUpdate("select * from Age where AGE_ID = 1");
    agent.Collect("AGE_IMG", ado::Bytes(2'000'000));  // more than the limit leaves the log
    agent.Update();
    const support::FullDisk limit(1'000'000);
    errorOf([&] { connection_->CommitTrans(); });
  };

  failToCommit();
  // Until it is rolled back, nothing is stored on its own.
  failure("insert into Cav (Cav_Id) values (2)");
  errorOf([&] { connection_->CommitTrans(); });
  connection_->RollbackTrans();
  EXPECT_EQ(rows("select Cav_Id,Cav_IdLca from Cav"), Rows{"1|0"});

  // A caller that has read that the transaction is gone may go on without a rollback.
  failToCommit();
  EXPECT_FALSE(connection_->inTransaction());
  note(2);
  EXPECT_EQ(rows("select Cav_Id,Cav_IdLca from Cav order by 1"), (Rows{"1|0", "2|NULL"}));
}

}  // namespace
}  // namespace korvantes::testing_engines
