// The layout every part of the program relies on.
#include <gtest/gtest.h>

#include <array>

#include "store/blank_store.h"
#include "store/config.h"
#include "store/store.h"
#include "support/temp_folder.h"

namespace courtmere {
namespace {

std::vector<std::string> Columns(Store& store, const std::string& table) {
  std::vector<std::string> names;
  for (Rows rows = store.Query("SELECT name FROM pragma_table_info(?) ORDER BY cid", table);
       rows.Next();) {
    names.push_back(rows.Text(0));
  }
  return names;
}

class SchemaTest : public ::testing::Test {
 protected:
  void SetUp() override {
    BuildBlankStore(dir_ / "s.dat");
    store_ = std::make_unique<Store>(dir_ / "s.dat");
  }
  testing::TempFolder dir_;
  std::unique_ptr<Store> store_;
};

TEST_F(SchemaTest, RecordsHoldTwentyFiveGroupsInTheirOrder) {
  const std::vector<std::string> cols = Columns(*store_, "Records");
  ASSERT_EQ(cols.size(), 2u + 25 * 4);
  EXPECT_EQ(cols[0], "Id");
  EXPECT_EQ(cols[1], "Type");
  // Career groups stand at positions 26, 34, ..., 98; the rest are season groups.
  const std::vector<int> career = {26, 34, 42, 50, 58, 66, 74, 82, 90, 98};
  for (int pos = 2; pos < 102; pos += 4) {
    const bool isCareer = std::find(career.begin(), career.end(), pos) != career.end();
    const std::string& value = cols[pos];
    const std::string kind = isCareer ? "Career" : "Season";
    ASSERT_EQ(value.substr(value.size() - kind.size()), kind) << value;
    EXPECT_EQ(cols[pos + 1], value + "Player");
    EXPECT_EQ(cols[pos + 2], value + "Team");
    EXPECT_EQ(cols[pos + 3], value + "Year");
  }
  EXPECT_EQ(cols[2], "PPGSeason");
  EXPECT_EQ(cols[26], "ThreePercentCareer");
  EXPECT_EQ(cols[98], "FTPercentCareer");
}

TEST_F(SchemaTest, EveryTableIsStrictScheduleTablesShareOneLayoutAndIndexesExist) {
  for (Rows rows = store_->Query(
           "SELECT name, sql FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
       rows.Next();) {
    EXPECT_NE(rows.Text(1).find("STRICT"), std::string::npos) << rows.Text(0);
  }
  const auto layout = Columns(*store_, "NonConfSchedule");
  for (int i = 1; i <= 9; ++i) {
    EXPECT_EQ(Columns(*store_, "League" + std::to_string(i) + "Schedule"), layout);
  }
  EXPECT_TRUE(store_->TableExists("TrainPlayer"));
  EXPECT_TRUE(store_->TableExists("CoachHistory"));
  for (const char* index : {"PlayerIndex", "HistoryIndex", "PlayerTeam", "League1ScheduleDay"}) {
    EXPECT_EQ(store_->ScalarInt(
                  "SELECT count(*) FROM sqlite_master WHERE type = 'index' AND name = ?", index),
              1)
        << index;
  }
}

// A blank store holds the new dynasty's config; counts out of range read as
// the rule says; the id counters and the config round-trip.
TEST_F(SchemaTest, ConfigStartsNewReadsByItsRulesAndRoundTrips) {
  Config c = LoadConfig(*store_);
  EXPECT_EQ(c.CurrYear, 2001);
  EXPECT_EQ(c.NextId, 1);
  EXPECT_EQ(c.MaxGameNo, 0);
  EXPECT_EQ(c.CurrWeek, 1);
  EXPECT_EQ(c.CurrDay, "Thursday");
  EXPECT_EQ(c.Stage, "Post Training");
  for (auto [recruits, players, wantRecruits, wantPlayers] :
       {std::array{20001, 5, 1, 0}, std::array{20000, 1, 20000, 1}}) {
    store_->Exec("UPDATE Config SET NumRecruits = ?, NumPlayers = ? WHERE IdConfig = 0", recruits,
                 players);
    c = LoadConfig(*store_);
    EXPECT_EQ(c.NumRecruits, wantRecruits) << recruits;
    EXPECT_EQ(c.NumPlayers, wantPlayers) << players;
  }
  SaveIdCounters(*store_, {412, 37, 1290});
  IdCounters ids = LoadIdCounters(*store_);
  EXPECT_EQ(ids.NextId, 412);
  EXPECT_EQ(ids.NumRecruits, 37);
  EXPECT_EQ(ids.MaxGameNo, 1290);
  c = LoadConfig(*store_);
  c.Stage = "Season";
  c.SimSpeed = 9;
  SaveConfig(*store_, c);
  EXPECT_EQ(LoadConfig(*store_).Stage, "Season");
  EXPECT_EQ(LoadConfig(*store_).SimSpeed, 9);
}

}  // namespace
}  // namespace courtmere
