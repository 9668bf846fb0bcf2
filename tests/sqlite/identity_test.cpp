#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class IdentityTest : public EngineTest {
 protected:
  std::string newest() {
    run("insert into Lca (Lca_IdAg, Lca_Base) values (7, 1.5)");
    return cell("Select max(Lca_id) from Lca");
  }
};

TEST_F(IdentityTest, NumbersCountUpAndAreNeverReused) {
  for (const char* number : {"1", "2", "3"}) EXPECT_EQ(newest(), number);
  run("delete from Lca where Lca_Id=3");
  EXPECT_EQ(newest(), "4");
  run("delete from Lca");
  connection_.reset();
  connection_ = connect();
  EXPECT_EQ(newest(), "5");
}

TEST_F(IdentityTest, NoNoteIsInTwoSettlements) {
  run("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 33)");
  connection_->BeginTrans();
  newest();
  failure("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (2, 33)");
  EXPECT_TRUE(connection_->inTransaction());
  connection_->RollbackTrans();
  EXPECT_EQ(rows("select * from Lcd"), std::vector<std::string>{"1|33"});
  EXPECT_EQ(cell("select count(*) from Lca"), "0");
}

}  // namespace
}  // namespace korvantes::testing_engines
