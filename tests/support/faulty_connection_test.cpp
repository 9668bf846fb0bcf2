#include "tests/support/faulty_connection.h"

#include <gmock/gmock.h>

#include "tests/support/recording_connection.h"

namespace korvantes::support {
namespace {

using testing::ElementsAre;

TEST(FaultyConnection, FailsTheChosenCallOnceBeforeOrAfterItIsDone) {
  const auto real = std::make_shared<RecordingConnection>();
  FaultyConnection connection(real);
  connection.BeginTrans();
  connection.failAt(2, ado::Error(5, "lost"), FaultyConnection::When::Before);
  connection.Execute("one");
  EXPECT_FALSE(connection.failed());
  EXPECT_THROW(connection.Execute("two"), ado::Error);
  EXPECT_TRUE(connection.failed());
  connection.RollbackTrans();
  connection.Execute("three");
  EXPECT_THAT(connection.calls(), ElementsAre("one", "two", "three"));
  EXPECT_THAT(real->calls, ElementsAre("BeginTrans", "one", "RollbackTrans", "three"));

  real->calls.clear();
  connection.countRollbacks(true);
  connection.failAt(3, ado::Error(5, "lost"), FaultyConnection::When::After);
  connection.BeginTrans();
  connection.CommitTrans();
  EXPECT_THROW(connection.RollbackTrans(), ado::Error);
  EXPECT_THAT(real->calls, ElementsAre("BeginTrans", "CommitTrans", "RollbackTrans"));
}

}  // namespace
}  // namespace korvantes::support
