// The program's start-up and the working file's life: open, close, cipher,
// recovery from the backup, compaction.
#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <vector>

#include "platform/file_cipher.h"
#include "platform/folder_lock.h"
#include "platform/scripted_ui.h"
#include "store/session.h"
#include "store/store_error.h"
#include "store/store_files.h"
#include "support/temp_folder.h"

namespace courtmere {
namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

class StartupTest : public ::testing::Test {
 protected:
  std::unique_ptr<Session> NewSession() {
    return std::make_unique<Session>(ProgramFolder(dir_.Path()), Rng(1), ui_);
  }
  int64_t Teams(Session& s) { return s.Db().RowCount("Team"); }
  void AddTeam(Session& s, const std::string& name) {
    s.Db().Append("Team", {{"SchoolName", name}});
  }

  testing::TempFolder dir_;
  ScriptedUi ui_;
};

TEST_F(StartupTest, FirstRunMakesStoreAndBackupLaterRunsLeaveTheBackupAlone) {
  auto session = NewSession();
  StartUp(*session);
  ASSERT_TRUE(session->StoreOpen());
  EXPECT_TRUE(std::filesystem::exists(dir_ / "mereball.dat"));
  EXPECT_TRUE(std::filesystem::exists(dir_ / "mereball.bak"));
  EXPECT_EQ(session->config.CurrYear, 2001);
  AddTeam(*session, "Gonzaga");
  session.reset();

  const std::string backup = ReadFile(dir_ / "mereball.bak");
  const auto stamp = std::filesystem::last_write_time(dir_ / "mereball.bak");
  auto again = NewSession();
  StartUp(*again);
  EXPECT_EQ(ReadFile(dir_ / "mereball.bak"), backup);
  EXPECT_EQ(std::filesystem::last_write_time(dir_ / "mereball.bak"), stamp);
  EXPECT_EQ(Teams(*again), 1) << "the working store is kept as it is";
}

// The names of the damaged stores kept in the folder.
std::vector<std::filesystem::path> KeptStores(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> kept;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().filename().string().starts_with("mereball-damaged-")) {
      kept.push_back(entry.path());
    }
  }
  return kept;
}

TEST_F(StartupTest, ADamagedStoreIsKeptUnderADatedNameAndTheBlankStoreTakesItsPlace) {
  {
    auto session = NewSession();
    StartUp(*session);
  }
  const std::string whole = ReadFile(dir_ / "mereball.dat");
  const std::string garbage(10000, '\x5a');
  std::string scribbled = whole;  // a page in the middle written over
  std::fill_n(scribbled.begin() + static_cast<std::ptrdiff_t>(whole.size() / 2), 4096, 'x');
  for (const std::string& damaged : {garbage, whole.substr(0, whole.size() / 2), scribbled}) {
    for (const auto& kept : KeptStores(dir_.Path())) std::filesystem::remove(kept);
    std::ofstream(dir_ / "mereball.dat", std::ios::binary | std::ios::trunc) << damaged;
    const size_t told = ui_.Messages().size();
    auto session = NewSession();
    StartUp(*session);
    ASSERT_TRUE(session->StoreOpen());
    EXPECT_EQ(session->config.Stage, "Post Training");
    EXPECT_EQ(ReadFile(dir_ / "mereball.dat"), ReadFile(dir_ / "mereball.bak"));
    const auto kept = KeptStores(dir_.Path());
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(ReadFile(kept[0]), damaged) << "the damaged file is kept as it was";
    ASSERT_EQ(ui_.Messages().size(), told + 1);
    EXPECT_NE(ui_.Messages().back().find(kept[0].string()), std::string::npos)
        << ui_.Messages().back();
  }
}

TEST_F(StartupTest, ASecondCourtmereOnTheFolderIsRefusedAndTouchesNothing) {
  auto first = NewSession();
  StartUp(*first);
  AddTeam(*first, "Duke");
  const auto second = NewSession();
  try {
    StartUp(*second);
    FAIL() << "a second program started on the folder";
  } catch (const FolderBusy& busy) {
    EXPECT_EQ(std::string(busy.what()), std::string(kFolderBusy) + ": " + dir_.Path().string());
  }
  EXPECT_FALSE(second->StoreOpen());
  EXPECT_EQ(Teams(*first), 1);
  first.reset();
  StartUp(*second);
  EXPECT_EQ(Teams(*second), 1) << "the folder is free once the first program ends";
  EXPECT_TRUE(KeptStores(dir_.Path()).empty());
}

// Another program (not a Courtmere) holding the store's own lock makes the
// store busy, not damaged: start-up is refused and the file left alone.
TEST_F(StartupTest, AStoreLockedByAnotherProgramIsBusyNotDamaged) {
  {
    auto session = NewSession();
    StartUp(*session);
    AddTeam(*session, "Kansas");
  }
  const std::string before = ReadFile(dir_ / "mereball.dat");
  SQLite::Database other((dir_ / "mereball.dat").string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  auto session = NewSession();
  EXPECT_THROW(StartUp(*session), FolderBusy);
  other.exec("ROLLBACK");
  EXPECT_EQ(ReadFile(dir_ / "mereball.dat"), before);
  EXPECT_TRUE(KeptStores(dir_.Path()).empty());
}

// A program killed in the middle of a transaction leaves a rollback journal:
// SQLite plays it back when the store opens, and the store is whole.
TEST_F(StartupTest, ALeftoverJournalIsPlayedBackNotTakenForDamage) {
  {
    auto session = NewSession();
    StartUp(*session);
    AddTeam(*session, "Kentucky");
  }
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    // A tiny cache spills the changed pages into the file before the commit.
    SQLite::Database db((dir_ / "mereball.dat").string(), SQLite::OPEN_READWRITE);
    db.exec("PRAGMA cache_size = 1; BEGIN; DELETE FROM TeamSetup; DELETE FROM Team;");
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(std::filesystem::exists(dir_ / "mereball.dat-journal"));
  auto session = NewSession();
  StartUp(*session);
  EXPECT_EQ(Teams(*session), 1);
  EXPECT_GT(session->Db().RowCount("TeamSetup"), 0);
  EXPECT_TRUE(KeptStores(dir_.Path()).empty());
  EXPECT_TRUE(ui_.Messages().empty());
}

TEST_F(StartupTest, ADamagedBackupIsBuiltAnewWhenItIsNeeded) {
  {
    auto session = NewSession();
    StartUp(*session);
    CloseStore(*session, 0);
  }
  std::ofstream(dir_ / "mereball.dat", std::ios::trunc) << "not a store";
  std::ofstream(dir_ / "mereball.bak", std::ios::trunc) << "not a store either";
  auto session = NewSession();
  StartUp(*session);
  ASSERT_TRUE(session->StoreOpen());
  EXPECT_EQ(session->config.CurrYear, 2001);
}

// An enciphered close and a deciphered open keep the dynasty; a file that
// won't decipher is kept and the blank store takes its place.
TEST_F(StartupTest, EncipheredCloseAndDecipheredOpenKeepTheDynastyOrTheDamagedFile) {
  auto session = NewSession();
  StartUp(*session);
  AddTeam(*session, "St. John's");
  CloseStore(*session, 1);
  EXPECT_FALSE(session->StoreOpen());
  EXPECT_TRUE(IsEnciphered(dir_ / "mereball.dat"));
  OpenStore(*session, 1);
  ASSERT_TRUE(session->StoreOpen());
  EXPECT_EQ(*session->Db().ScalarText("SELECT SchoolName FROM Team"), "St. John's");
  EXPECT_TRUE(ui_.Messages().empty());

  CloseStore(*session, 1);
  std::string sealed = ReadFile(dir_ / "mereball.dat");
  sealed[sealed.size() / 2] ^= 1;
  std::ofstream(dir_ / "mereball.dat", std::ios::binary | std::ios::trunc) << sealed;
  OpenStore(*session, 1);
  ASSERT_TRUE(session->StoreOpen());
  EXPECT_EQ(Teams(*session), 0);
  const auto kept = KeptStores(dir_.Path());
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_EQ(ReadFile(kept[0]), sealed);
  EXPECT_EQ(ui_.Messages().size(), 1u);
}

TEST_F(StartupTest, AFailedEncipherOnCloseSaysSoAndGoesOn) {
  auto session = NewSession();
  StartUp(*session);
  CloseStore(*session, 0);
  std::ofstream(dir_ / "mereball.dat", std::ios::trunc) << "damaged";
  CloseStore(*session, 1);
  ASSERT_EQ(ui_.Messages().size(), 1u);
  EXPECT_EQ(ui_.Messages()[0], "Error in the encryption");
}

TEST_F(StartupTest, CompactionKeepsTheDataAndNeedsAClosedStore) {
  auto session = NewSession();
  StartUp(*session);
  {
    Store::Transaction tx(session->Db());
    for (int i = 0; i < 2000; ++i) AddTeam(*session, "School " + std::to_string(i));
    tx.Commit();
  }
  session->Db().Exec("DELETE FROM Team WHERE SchoolName <> 'School 7'");
  EXPECT_THROW(CompactStore(*session), StoreError);
  CloseStore(*session, 0);
  const auto before = std::filesystem::file_size(dir_ / "mereball.dat");
  CompactStore(*session);
  EXPECT_LT(std::filesystem::file_size(dir_ / "mereball.dat"), before);
  EXPECT_FALSE(std::filesystem::exists(dir_ / "mereballTemp.dat"));
  OpenStore(*session, 0);
  EXPECT_EQ(*session->Db().ScalarText("SELECT SchoolName FROM Team"), "School 7");
}

}  // namespace
}  // namespace courtmere
