#include "tests/sqlite/engine_fixture.h"
#include "tests/support/failure.h"

namespace korvantes::testing_engines {
namespace {

class TransactionTest : public EngineTest {
 protected:
  void note(int id) { run("insert into Cav (Cav_Id) values (" + std::to_string(id) + ")"); }
  std::string notes() { return cell("select count(*) from Cav"); }
};

TEST_F(TransactionTest, CommitKeepsRollbackUndoesAndCallsOutOfOrderHarmNothing) {
  EXPECT_THROW(connection_->CommitTrans(), ado::Error);
  EXPECT_THROW(connection_->RollbackTrans(), ado::Error);
  connection_->BeginTrans();
  note(1);
  EXPECT_THROW(connection_->BeginTrans(), ado::Error);
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
  EXPECT_EQ(rows("select Cav_Id from Cav order by Cav_Id"), (std::vector<std::string>{"1", "2"}));
  failure("select * from NoHay");
  failure("no es sql");
  EXPECT_TRUE(connection_->inTransaction());
  note(3);
  connection_->CommitTrans();
  EXPECT_EQ(notes(), "3");
}

TEST_F(TransactionTest, ASecondUserReadsTheOldStateAndWaitsToWrite) {
  const auto other = connect();
  connection_->BeginTrans();
  note(1);
  EXPECT_EQ(rowsOf(other->Execute("select Cav_Id from Cav")).size(), 0U);
  EXPECT_EQ(support::failureOf([&] { other->BeginTrans(); }),
            "La base de datos está ocupada por otro usuario");
  EXPECT_FALSE(other->inTransaction());
  EXPECT_THROW(other->Execute("insert into Cav (Cav_Id) values (2)"), ado::Error);
  connection_->CommitTrans();
  other->BeginTrans();
  EXPECT_EQ(rowsOf(other->Execute("select Cav_Id from Cav")).size(), 1U);
  other->Execute("insert into Cav (Cav_Id) values (2)");
  other->CommitTrans();
  EXPECT_EQ(notes(), "2");
}

TEST_F(TransactionTest, ClosingAConnectionRollsItsTransactionBack) {
  {
    const auto other = connect();
    other->BeginTrans();
    other->Execute("insert into Cav (Cav_Id) values (1)");
  }
  EXPECT_EQ(notes(), "0");
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
  EXPECT_EQ(rows("select * from extra"), std::vector<std::string>{"1|2.5"});
  // The table is new to a connection that was open before.
  EXPECT_EQ(rowsOf(other->Execute("select * from extra")), std::vector<std::string>{"1|2.5"});
  failure("create table EXTRA (Otra int null)");
  run("drop table Extra");
  failure("select * from Extra");
}

}  // namespace
}  // namespace korvantes::testing_engines
