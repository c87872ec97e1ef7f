// The program's start-up and the working file's life: open, close, cipher,
// recovery from the backup, compaction.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/file_cipher.h"
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
  CloseStore(*session, 0);

  const std::string backup = ReadFile(dir_ / "mereball.bak");
  const auto stamp = std::filesystem::last_write_time(dir_ / "mereball.bak");
  auto again = NewSession();
  StartUp(*again);
  EXPECT_EQ(ReadFile(dir_ / "mereball.bak"), backup);
  EXPECT_EQ(std::filesystem::last_write_time(dir_ / "mereball.bak"), stamp);
  EXPECT_EQ(Teams(*again), 1) << "the working store is kept as it is";
}

TEST_F(StartupTest, AGarbageStoreIsReplacedFromTheBackup) {
  {
    auto session = NewSession();
    StartUp(*session);
    CloseStore(*session, 0);
  }
  std::ofstream(dir_ / "mereball.dat", std::ios::binary | std::ios::trunc)
      << std::string(10000, '\x5a');
  auto session = NewSession();
  StartUp(*session);
  ASSERT_TRUE(session->StoreOpen());
  EXPECT_EQ(session->config.Stage, "Post Training");
  EXPECT_EQ(ReadFile(dir_ / "mereball.dat"), ReadFile(dir_ / "mereball.bak"));
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

TEST_F(StartupTest, EncipheredCloseAndDecipheredOpenKeepTheDynasty) {
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
}

TEST_F(StartupTest, AFileThatWontDecipherFallsBackToTheBlankStoreSilently) {
  auto session = NewSession();
  StartUp(*session);
  AddTeam(*session, "Kansas");
  CloseStore(*session, 1);
  std::string sealed = ReadFile(dir_ / "mereball.dat");
  sealed[sealed.size() / 2] ^= 1;
  std::ofstream(dir_ / "mereball.dat", std::ios::binary | std::ios::trunc) << sealed;
  OpenStore(*session, 1);
  ASSERT_TRUE(session->StoreOpen());
  EXPECT_EQ(Teams(*session), 0);
  EXPECT_TRUE(ui_.Messages().empty());
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
