#include "host/create_base.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

#include "engines/sqlite/sqlite_connection.h"
#include "scripts/failure.h"
#include "tests/support/faulty_connection.h"
#include "tests/support/folder_contents.h"
#include "tests/support/full_disk.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::host {
namespace {

namespace fs = std::filesystem;

/// Kills the process at a call (from 0), before or after the database has seen it.
class KilledConnection : public ado::Connection {
 public:
  KilledConnection(std::shared_ptr<ado::Connection> real, std::size_t call, bool after)
      : real_(std::move(real)), call_(call), after_(after) {}
  ado::Recordset Execute(std::string_view statement, long long* rows) override {
    ado::Recordset result;
    pass([&] { result = real_->Execute(statement, rows); });
    return result;
  }
  void BeginTrans() override {
    pass([&] { real_->BeginTrans(); });
  }
  void CommitTrans() override {
    pass([&] { real_->CommitTrans(); });
  }
  void RollbackTrans() override { real_->RollbackTrans(); }
  bool inTransaction() const override { return real_->inTransaction(); }
  ado::Recordset OpenForUpdate(std::string_view statement) override {
    return real_->OpenForUpdate(statement);
  }

 private:
  template <class Call>
  void pass(Call call) {
    const bool due = call_-- == 0;
    if (due && !after_) ::_exit(1);
    call();
    if (due) ::_exit(1);
  }
  std::shared_ptr<ado::Connection> real_;
  std::size_t call_;
  bool after_;
};

class CreateBaseTest : public testing::Test {
 protected:
  CreateBaseTest() { createBase(folder_.file("entera.db"), BaseContents::SampleData); }

  static std::map<std::string, long> counts(const std::string& path) {
    std::map<std::string, long> counts;
    const Database base = openFile(path);
    for (const char* table :
         {"Lca", "Lcd", "Age", "Cav", "Lav", "Fav", "Cli", "Rec", "PedCa", "PedLi",
          "Vespara.dbo.Tivas", "Vespara.dbo.situaciones", "Vespara.dbo.PAIS", "Vespara.dbo.PROV"})
      counts[table] = base.connection->Execute(std::string("Select count(*) from ") + table)
                          .Fields(0)
                          .Value()
                          .asLong();
    return counts;
  }
  CreatedBase demo() { return createBase(path_, BaseContents::SampleData); }
  void expectWhole() {
    EXPECT_EQ(counts(path_), counts(folder_.file("entera.db")));
    const auto before = support::contentsOf(folder_.path());
    EXPECT_FALSE(demo());
    EXPECT_FALSE(createBase(path_, BaseContents::EmptyTables));
    EXPECT_EQ(support::contentsOf(folder_.path()), before);
  }
  void takeWhole() {
    remove();
    for (const char* part : {"", ".vespara"})
      fs::copy_file(folder_.file("entera.db") + part, path_ + part);
  }
  void remove() {
    for (const char* part : {"", "-wal", "-shm", ".vespara", ".vespara-wal", ".vespara-shm"})
      fs::remove(path_ + part);
  }

  support::TemporaryFolder folder_;
  std::string path_ = folder_.file("muestra.db");
  std::string shared_ = path_ + ".vespara";
};

TEST_F(CreateBaseTest, ASecondCallCompletesWhatAKilledOneLeft) {
  std::vector<std::string> calls;
  {
    const Database base = openFile(path_, OpenMode::Create);
    const auto counting = std::make_shared<support::FaultyConnection>(base.connection);
    fillBase({counting, base.hasTable, base.name}, BaseContents::SampleData);
    calls = counting->calls();
  }
  constexpr std::size_t kStride = 16;
  for (std::size_t call = 0; call < calls.size(); ++call) {
    const bool bound = calls[call].ends_with("Trans");
    if (!bound && call % kStride != 0) continue;
    for (const bool after : {false, true}) {
      if (after && !bound) continue;
      SCOPED_TRACE(calls[call] + (after ? " done" : " due"));
      remove();
      const pid_t child = ::fork();
      ASSERT_GE(child, 0);
      if (child == 0) {
        const Database base = openFile(path_, OpenMode::Create);
        const auto killed = std::make_shared<KilledConnection>(base.connection, call, after);
        fillBase({killed, base.hasTable, base.name}, BaseContents::SampleData);
        ::_exit(0);
      }
      int status = 0;
      ASSERT_EQ(::waitpid(child, &status, 0), child);
      ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1);
      // At no moment are there tables without rates.
      if (sqlite::holdsTables(path_)) {
        EXPECT_EQ(counts(path_)["Vespara.dbo.Tivas"], 20);
      }
      demo();
      expectWhole();
    }
  }
}

TEST_F(CreateBaseTest, EachFileIsLookedAtByItself) {
  const std::function<void()> states[] = {
      [&] { fs::remove(path_); },
      [&] { fs::resize_file(path_, 0); },
      [&] { fs::remove(shared_); },
      [&] { fs::resize_file(shared_, 0); },
      [&] {
        remove();
        openFile(path_, OpenMode::Create);
      },
      [&] { openFile(path_).connection->Execute("delete from Vespara.dbo.Tivas"); },
      [&] {
        remove();
        createBase(path_, BaseContents::EmptyTables);
        fs::remove(path_);
      },
      [&] {
        remove();
        const support::FullDisk limit(100'000);
        EXPECT_THROW(demo(), ado::Error);
      },
  };
  for (const auto& leave : states) {
    takeWhole();
    leave();
    EXPECT_TRUE(demo());
    expectWhole();
  }
}

TEST_F(CreateBaseTest, SampleDataNeverMeetABaseOfTheUsersOwn) {
  createBase(path_, BaseContents::EmptyTables);
  EXPECT_FALSE(demo());
  EXPECT_EQ(counts(path_)["Vespara.dbo.Tivas"], 0);
  openFile(path_).connection->Execute("insert into Cli (Cli_Id, Cli_Nom) values (1, 'Ana')");
  fs::remove(shared_);
  const auto before = support::contentsOf(folder_.path());
  EXPECT_THROW(demo(), Failure);
  EXPECT_EQ(support::contentsOf(folder_.path()), before);
  EXPECT_TRUE(createBase(path_, BaseContents::EmptyTables).shared);
  EXPECT_EQ(counts(path_)["Cli"], 1);
}

TEST_F(CreateBaseTest, TwoFirstUsesAtOnceShareOneBase) {
  for (int round = 0; round < 5; ++round) {
    remove();
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    try {
      completeSample(path_);
      if (child == 0) ::_exit(0);
    } catch (const std::exception& failure) {
      if (child == 0) ::_exit(1);
      ADD_FAILURE() << failure.what();
    }
    int status = 1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    expectWhole();
  }
}

}  // namespace
}  // namespace korvantes::host
