// The dynasty's seed: kept in the store, and the stream of a place of the
// calendar depends on that seed and the place alone.
#include "store/dynasty_seed.h"

#include <gtest/gtest.h>

#include "platform/scripted_ui.h"
#include "store/session.h"
#include "store/store_files.h"
#include "support/temp_folder.h"

namespace courtmere {
namespace {

class DynastySeedTest : public ::testing::Test {
 protected:
  DynastySeedTest() : session_(ProgramFolder(dir_.Path()), Rng(5), ui_) { StartUp(session_); }

  // The first draws of the session's stream at the calendar's place.
  std::vector<uint64_t> StreamAt(int week, const std::string& day) {
    session_.config.CurrWeek = week;
    session_.config.CurrDay = day;
    SeedForPlace(session_, "day");
    return {session_.rng.Next(), session_.rng.Next()};
  }

  testing::TempFolder dir_;
  ScriptedUi ui_;
  Session session_;
};

TEST_F(DynastySeedTest, TheSeedIsKeptWholeAndAnOlderStoreGetsItsColumn) {
  Store& store = session_.Db();
  store.ExecScript("ALTER TABLE Config DROP COLUMN Seed");
  EXPECT_EQ(LoadDynastySeed(store), std::nullopt);
  const uint64_t large = 0xfedcba9876543210ULL;  // above the largest signed value
  SaveDynastySeed(store, large);
  EXPECT_EQ(LoadDynastySeed(store), large);
  SaveDynastySeed(store, std::nullopt);
  EXPECT_EQ(LoadDynastySeed(store), std::nullopt);
}

TEST_F(DynastySeedTest, APlaceHasAStreamOfItsOwnWhateverRanBefore) {
  SaveDynastySeed(session_.Db(), 77);
  const auto thursday = StreamAt(3, "Thursday");
  for (int i = 0; i < 1000; ++i) session_.rng.Next();
  EXPECT_EQ(StreamAt(3, "Thursday"), thursday);
  EXPECT_NE(StreamAt(3, "Saturday"), thursday);
  SaveDynastySeed(session_.Db(), 78);
  EXPECT_NE(StreamAt(3, "Thursday"), thursday) << "another dynasty, another stream";

  // Without a dynasty seed the session's own fixed seed stands in for it.
  SaveDynastySeed(session_.Db(), std::nullopt);
  const auto own = StreamAt(3, "Thursday");
  EXPECT_EQ(StreamAt(3, "Thursday"), own);
  EXPECT_TRUE(session_.rng.Fixed());
}

TEST(DynastySeedClockTest, InClockModeTheSessionsGeneratorIsLeftAlone) {
  testing::TempFolder dir;
  ScriptedUi ui;
  Session session(ProgramFolder(dir.Path()), Rng(), ui);
  StartUp(session);
  SeedForPlace(session, "day");
  EXPECT_FALSE(session.rng.Fixed());
  EXPECT_EQ(LoadDynastySeed(session.Db()), std::nullopt);
}

}  // namespace
}  // namespace courtmere
