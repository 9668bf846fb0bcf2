#include "host/create_base.h"

#include <cstdint>
#include <filesystem>
#include <functional>
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

/// Starts work in a process of its own.
pid_t started(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child != 0) return child;
  try {
    work();
  } catch (const std::exception&) {
    ::_exit(2);
  }
  ::_exit(0);
}

int exitStatus(pid_t child) {
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class CreateBaseTest : public testing::Test {
 protected:
  CreateBaseTest() { createBase(folder_.file("entera.db"), BaseContents::SampleData); }

  static std::map<std::string, long> counts(const std::string& path) {
    std::map<std::string, long> counts;
    const Database base = openFile(path);
    for (const std::string table :
         {"Lca", "Lcd", "Age", "Cav", "Lav", "Fav", "Cli", "Rec", "PedCa", "PedLi",
          "Vespara.dbo.Tivas", "Vespara.dbo.situaciones", "Vespara.dbo.PAIS", "Vespara.dbo.PROV"})
      counts[table] =
          base.connection->Execute("Select count(*) from " + table).Fields(0).Value().asLong();
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
  // Gives the calls of a demo, or kills it at one of them.
  const auto demoUntil = [&](std::size_t end) {
    const Database base = openFile(path_, OpenMode::Create);
    const auto counting = std::make_shared<support::FaultyConnection>(base.connection);
    counting->onCall = [&](std::string_view) {
      if (counting->calls().size() == end) ::_exit(1);
    };
    fillBase({counting, base.hasTable, base.name}, BaseContents::SampleData);
    return counting->calls();
  };
  const std::vector<std::string> calls = demoUntil(SIZE_MAX);
  constexpr std::size_t kStride = 16;
  for (std::size_t call = 0; call < calls.size(); ++call) {
    // All around the ends of the transactions, and a sample of the others.
    const bool bound =
        calls[call].ends_with("Trans") || (call > 0 && calls[call - 1].ends_with("Trans"));
    if (!bound && call % kStride != 0) continue;
    SCOPED_TRACE(calls[call]);
    remove();
    ASSERT_EQ(exitStatus(started([&] { demoUntil(call); })), 1);
    // At no moment are there tables without rates.
    if (sqlite::holdsTables(path_)) {
      EXPECT_EQ(counts(path_)["Vespara.dbo.Tivas"], 20);
    }
    demo();
    expectWhole();
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
    const pid_t other = started([&] { completeSample(path_); });
    EXPECT_NO_THROW(completeSample(path_));
    EXPECT_EQ(exitStatus(other), 0);
    expectWhole();
  }
}

TEST_F(CreateBaseTest, TheSampleAddsUpAndHoldsItsSpecialCases) {
  const Database sample = openFile(folder_.file("entera.db"));
  const auto holds = [&](const std::string& rows) {
    return !sample.connection->Execute("select 1 from " + rows).isEOF();
  };
  EXPECT_FALSE(holds("Lca where Lca_Total <> Lca_Base + Lca_Iva - Lca_Retencion"));
  EXPECT_FALSE(holds("Lcd inner join Cav on Cav_Id = Lcd_IdCav where Cav_IdLca <> Lcd_IdLca"));
  for (const char* rows :
       {"Cav where Cav_Numero > 99999", "Lav where Lav_Comi is null", "Age where AGE_REG is null",
        "Lav where Lav_Importe <> round(Lav_Importe, 2)", "Lca where Lca_Fecha is null"})
    EXPECT_TRUE(holds(rows)) << rows;
}

}  // namespace
}  // namespace korvantes::host
