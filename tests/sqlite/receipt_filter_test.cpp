#include <algorithm>
#include <set>

#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

const std::string kReceipts =
    "(SELECT Rec_IdFac  FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit <> 8 GROUP BY Rec_IdFac "
    "HAVING COUNT(Rec_Id)= (SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id AND ";
const std::string kCollected = " AND Fav_Id IN " + kReceipts + "Rec_Sit=5))";
const std::string kPending = " AND Fav_Id IN " + kReceipts + "Rec_Sit IN(1,2,3,4)))";
const std::string kEither =
    " AND Fav_Id  in (SELECT Rec_idfac FROM REc where Rec_IdFac = Fav_Id and  Rec_Sit <= 5 AND "
    "Rec_Sit <> 8)";

/// Whether a receipt of a state is in the mixture; state 1 is the lowest bit.
bool has(unsigned mixture, unsigned state) {
  return ((mixture >> (state - 1U)) & 1U) != 0;
}

/// All receipts but those in state 8 are in one of the wanted states, and there is one.
bool onlyIn(unsigned mixture, std::initializer_list<unsigned> wanted) {
  bool any = false;
  for (unsigned state = 1; state <= 7; ++state) {
    if (!has(mixture, state)) continue;
    if (std::find(wanted.begin(), wanted.end(), state) == wanted.end()) return false;
    any = true;
  }
  return any;
}

class ReceiptFilterTest : public EngineTest {
 protected:
  static constexpr unsigned kMixtures = 256;

  /// An invoice for every mixture of the states 1 to 8, numbered by it, each with a note. Odd
  /// states come twice, so that receipts are counted and not states.
  ReceiptFilterTest() {
    int receipt = 0;
    connection_->BeginTrans();
    for (unsigned mixture = 0; mixture < kMixtures; ++mixture) {
      const std::string id = std::to_string(mixture);
      run("insert into Fav (Fav_Id, Fav_Fecha) values (" + id + ", '01/02/2026')");
      run("insert into Cav (Cav_Id, Cav_IdFactura, Cav_Agente, Cav_Situa) values (" + id + ", " +
          id + ", 7, 2)");
      for (unsigned state = 1; state <= 8; ++state) {
        for (unsigned copies = has(mixture, state) ? 1 + state % 2 : 0; copies > 0; --copies) {
          run("insert into Rec (Rec_Id, Rec_IdFac, Rec_Sit) values (" + std::to_string(++receipt) +
              ", " + id + ", " + std::to_string(state) + ")");
        }
      }
    }
    connection_->CommitTrans();
  }

  std::set<long> passing(const std::string& filter) {
    const auto rows =
        run("SELECT Cav_Id,Fav_Fecha FROM Cav INNER JOIN Fav ON  Fav_Id = Cav_IdFactura "
            "WHERE (Cav_IdLca Is Null Or Cav_IdLca = 0) And Cav_Situa = 2 AND Cav_Agente = 7" +
            filter + " AND Fav_Fecha <= '01/02/2026' order by Fav_Fecha desc ");
    std::set<long> notes;
    for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
      EXPECT_TRUE(notes.insert(rows.cell(row, 0).asLong()).second) << "listed twice";
    }
    return notes;
  }
};

TEST_P(ReceiptFilterTest, EveryMixtureOfStatesUnderAllFourFilters) {
  std::set<long> all, collected, pending, either;
  for (unsigned mixture = 0; mixture < kMixtures; ++mixture) {
    const long note = mixture;
    all.insert(note);
    if (onlyIn(mixture, {5})) collected.insert(note);
    if (onlyIn(mixture, {1, 2, 3, 4})) pending.insert(note);
    bool upToFive = false;
    for (unsigned state = 1; state <= 5; ++state) upToFive = upToFive || has(mixture, state);
    if (upToFive) either.insert(note);
  }
  ASSERT_EQ(collected.size(), 2U);  // 5, and 5 with 8
  ASSERT_EQ(pending.size(), 30U);
  EXPECT_EQ(passing(""), all);
  EXPECT_EQ(passing(kCollected), collected);
  EXPECT_EQ(passing(kPending), pending);
  EXPECT_EQ(passing(kEither), either);
}

TEST_P(ReceiptFilterTest, OnlyFreeNotesOfTheAgentInStateTwoWithAnInvoiceAreListed) {
  run("delete from Cav where Cav_Id > 5");
  run("update Cav set Cav_IdLca = 0 where Cav_Id = 1");
  run("update Cav set Cav_IdLca = 31 where Cav_Id = 2");
  run("update Cav set Cav_Situa = 1 where Cav_Id = 3");
  run("update Cav set Cav_Agente = 8 where Cav_Id = 4");
  run("update Cav set Cav_IdFactura = Null where Cav_Id = 5");
  EXPECT_EQ(passing(""), (std::set<long>{0, 1}));
  run("update Fav set Fav_Fecha = '02/02/2026' where Fav_Id = 0");
  EXPECT_EQ(passing(""), std::set<long>{1});
}

KORVANTES_ON_EACH_ENGINE(ReceiptFilterTest);

}  // namespace
}  // namespace korvantes::testing_engines
