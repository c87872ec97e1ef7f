// Creating players: rosters, recruit classes, walk-ons and background teams.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "people/league_fixture.h"
#include "people/player_creation.h"
#include "people/player_writer.h"
#include "people/rating.h"
#include "store/session.h"

namespace courtmere {
namespace {

std::vector<Player> PlayersOf(Store& store, const std::string& team) {
  std::vector<Player> players;
  std::vector<int> ids;
  for (Rows rows = store.Query("SELECT Id FROM Player WHERE Team = ? ORDER BY Id", team);
       rows.Next();) {
    ids.push_back(rows.Int(0));
  }
  for (int id : ids) {
    Player p;
    LoadPlayer(store, id, p);
    players.push_back(p);
  }
  return players;
}

// Everything stored that follows from the base ratings must follow from them.
void ExpectConsistent(const Player& stored) {
  Player p = stored;
  ComputeDerivedRatings(p);
  ComputeOverall(p);
  EXPECT_EQ(p.ShotBlock, stored.ShotBlock) << stored.Id;
  EXPECT_EQ(p.Steal, stored.Steal);
  EXPECT_EQ(p.OffRebounding, stored.OffRebounding);
  EXPECT_EQ(p.DefRebounding, stored.DefRebounding);
  EXPECT_DOUBLE_EQ(p.Overall, stored.Overall);
}

// What holds for every player of a roster whatever his class and years; the
// builders' tests pin each span. The twelve ratings that develop start at
// 25 at least and are capped at 100 after the last year.
void ExpectInRange(const Player& p) {
  for (int Player::*r :
       {&Player::Jumpshot, &Player::InScoring, &Player::ThreePoint, &Player::PerrDefense,
        &Player::PostDefense, &Player::DefReb, &Player::OffReb, &Player::Handling,
        &Player::OffAware, &Player::DefAware, &Player::Passing, &Player::Strength}) {
    EXPECT_GE(p.*r, 25) << p.Id;
    EXPECT_LE(p.*r, 100) << p.Id;
  }
  for (auto [value, low, high] :
       std::vector<std::tuple<double, double, double>>{{p.Quickness, 20, 77},
                                                       {p.Jumping, 30, 77},
                                                       {p.FreeThrow, 20, 95},
                                                       {p.Endurance, 1800, 2150},
                                                       {p.Range, 12, 24},
                                                       {p.Potential, 30, 90},
                                                       {p.Intelligence, 30, 80},
                                                       {p.AvoidInjury, 45, 100},
                                                       {p.GPA, 1.61, 4.0}}) {
    EXPECT_GE(value, low) << p.Id;
    EXPECT_LE(value, high) << p.Id;
  }
  EXPECT_EQ(p.Reach, HeightInches(p.Height));
  EXPECT_EQ(p.Health, "Good");
}

TEST(CreateTeamRoster, ThirteenPlayersThreeOfEachClassAndOneMore) {
  testing::LeagueFixture league(21);
  for (int team = 0; team < 8; ++team) {
    const std::string school = "School " + std::to_string(team);
    league.AddTeam(school, "Midwest", 40 + team * 7);
    league.AddScout(school, 60);
    CreateTeamRoster(league.session(), school, "Midwest", 40 + team * 7);
    const auto players = PlayersOf(league.store(), school);
    ASSERT_EQ(players.size(), 13u);
    std::map<std::string, int> years;
    std::array<int, 6> positions{};
    for (size_t i = 0; i < players.size(); ++i) {
      const Player& p = players[i];
      ++years[p.PlayerYear];
      if (i < 12) ++positions[p.PlayerPosition];
      EXPECT_EQ(p.NBAFlag, p.PlayerYear == "Senior" ? 1 : 0);
      EXPECT_EQ(p.Team, school);
      const auto blank = p.Name.find(' ');
      ASSERT_NE(blank, std::string::npos);
      EXPECT_EQ(p.AbbrName, p.Name.substr(0, 1) + ". " + p.Name.substr(blank + 1));
      ASSERT_GE(p.HomeTown.size(), 4u);
      EXPECT_EQ(p.HomeTown[p.HomeTown.size() - 3], ',');  // "City,ST"
      EXPECT_FALSE(p.HighSchool.empty());
      EXPECT_FALSE(p.PotentialGrade.empty());
      ExpectConsistent(p);
      ExpectInRange(p);
    }
    for (const char* year : {"Freshman", "Sophomore", "Junior", "Senior"}) {
      EXPECT_GE(years[year], 3);
      EXPECT_LE(years[year], 4);
    }
    for (int position = kPG; position <= kC; ++position) EXPECT_LE(positions[position], 3);
    EXPECT_EQ(league.store().ScalarInt("SELECT count(*) FROM PlayerStats"), 13 * (team + 1));
  }
  EXPECT_EQ(league.store().ScalarInt("SELECT NextId FROM Config WHERE IdConfig = 0"), 1 + 8 * 13);
  EXPECT_EQ(league.session().config.NextId, 1 + 8 * 13);
}

TEST(CreatePlayers, ARegionBatchFillsEveryPositionToItsCapAndFollowsPrestige) {
  testing::LeagueFixture league(5);
  PlayerBatch batch = PlayerBatch::Begin(league.session());
  int hooked = 0;
  batch.recruitInterest = [&hooked](Session&, Recruit& r, const Player&) {
    r.Team1 = "Somewhere";
    ++hooked;
  };
  CreatePlayers(league.session(), batch, "South", "South", 60, 25, 0, 5);
  batch.Save(league.session());
  std::array<int, 6> positions{};
  for (const Player& p : PlayersOf(league.store(), "South")) {
    ++positions[p.PlayerPosition];
    EXPECT_EQ(p.PlayerYear, "Recruit");
    EXPECT_EQ(p.NBAFlag, 0);
  }
  for (int position = kPG; position <= kC; ++position) EXPECT_EQ(positions[position], 5);
  EXPECT_EQ(hooked, 25);
  EXPECT_EQ(league.store().RowCount("Recruit"), 25);
  EXPECT_EQ(league.store().ScalarInt("SELECT NumRecruits FROM Config WHERE IdConfig = 0"), 25);
  EXPECT_EQ(league.store().ScalarInt(
                "SELECT count(*) FROM Recruit WHERE Region = 'South' AND Team1 = 'Somewhere' AND "
                "ScoutingReport <> '' AND Area <> '' AND PPG > 0 AND GPA > 0"),
            25);
  // Prestige 0 makes only poor players.
  CreatePlayers(league.session(), batch, "West", "West", 0, 30, 0, 6);
  EXPECT_EQ(league.store().ScalarInt(
                "SELECT count(*) FROM Recruit WHERE Region = 'West' AND RecruitType = 'Poor'"),
            30);
}

// The heights a man of each position is built with (index 0 unused).
constexpr std::array<std::pair<int, int>, 6> kHeights = {
    {{0, 0}, {68, 74}, {73, 77}, {75, 80}, {77, 82}, {79, 86}}};

// How many of each position a team has; every man has the height of the
// position he was built at.
std::array<int, 6> CountMade(testing::LeagueFixture& league, const std::string& team) {
  std::array<int, 6> made{};
  for (const Player& p : PlayersOf(league.store(), team)) {
    ++made[p.PlayerPosition];
    EXPECT_GE(p.Reach, kHeights[p.PlayerPosition].first) << team << " " << p.PlayerPosition;
    EXPECT_LE(p.Reach, kHeights[p.PlayerPosition].second) << team << " " << p.PlayerPosition;
  }
  return made;
}

// Makes `count` players one at a time, each with the positions' counters
// `full` before his roll.
std::array<int, 6> MakeOneByOne(testing::LeagueFixture& league, PlayerBatch& batch,
                                const std::string& team, int count, std::array<int, 6> full,
                                int cap) {
  for (int i = 0; i < count; ++i) {
    batch.positions.Clear();
    for (int position = kPG; position <= kC; ++position) batch.positions[position] = full[position];
    CreatePlayers(league.session(), batch, team, "East", 50, 1, 1, cap);
  }
  return CountMade(league, team);
}

TEST(CreatePlayers, AFullPositionHandsTheRollOn) {
  testing::LeagueFixture league(8);
  PlayerBatch batch = PlayerBatch::Begin(league.session());
  // Only the shooting guards are full: a rolled guard goes to C, the first
  // position with room, with a centre's height.
  std::array<int, 6> made = MakeOneByOne(league, batch, "Team A", 150, {0, 0, 1, 0, 0, 0}, 1);
  EXPECT_EQ(made[kSG], 0);
  EXPECT_GT(made[kC], made[kPF]);  // its own rolls and the guards' rolls
  // Only the point guards have room: everyone becomes a point guard.
  made = MakeOneByOne(league, batch, "Team B", 40, {0, 0, 2, 2, 2, 2}, 2);
  EXPECT_EQ(made[kPG], 40);
  // A full centre with room at PF: always a PF.
  made = MakeOneByOne(league, batch, "Team C", 60, {0, 1, 1, 1, 0, 1}, 1);
  EXPECT_EQ(made[kPF], 60);
}

TEST(CreatePlayers, WithNoPositionBelowTheCapTheRollIsTakenAsItCame) {
  testing::LeagueFixture league(9);
  PlayerBatch batch = PlayerBatch::Begin(league.session());
  for (int position = kPG; position <= kC; ++position) batch.positions[position] = 1;
  CreatePlayers(league.session(), batch, "Team D", "East", 50, 60, 1, 1);
  // Each man is built at the position of his own roll, with its height.
  const std::array<int, 6> made = CountMade(league, "Team D");
  for (int position = kPG; position <= kC; ++position) {
    EXPECT_GT(made[position], 1) << position;
    EXPECT_EQ(batch.positions[position], 1 + made[position]);
  }
}

TEST(AddWalkOns, FillsShortRostersWithSeniors) {
  testing::LeagueFixture league(10);
  league.AddTeam("Short U", "East", 70);
  league.AddTeam("Full U", "East", 70);
  for (int i = 0; i < 10; ++i) league.AddPlayer("Short U", kPG, 50);
  for (int i = 0; i < 13; ++i) league.AddPlayer("Full U", kPG, 50);
  PlayerBatch batch = PlayerBatch::Begin(league.session());
  AddWalkOns(league.session(), batch);
  EXPECT_EQ(league.store().ScalarInt("SELECT count(*) FROM Player WHERE Team = 'Short U'"), 13);
  EXPECT_EQ(league.store().ScalarInt("SELECT count(*) FROM Player WHERE Team = 'Full U'"), 13);
  EXPECT_EQ(league.store().ScalarInt("SELECT count(*) FROM Player WHERE Team = 'Short U' AND "
                                     "PlayerYear = 'Senior' AND NBAFlag = 1"),
            3);
}

// The class of a region is its seniors, its early leavers (above 86 always,
// at most the 51 best) and five more.
TEST(RegionRecruits, EarlyLeaversAndSeniorsSizeTheClass) {
  testing::LeagueFixture league(12);
  league.AddTeam("West U", "West", 70);
  league.AddTeam("East U", "East", 70);
  league.AddTeam("South U", "South", 70);
  league.AddTeam("South State", "South", 70);
  league.AddPlayer("West U", kPG, 60, "Senior");
  league.AddPlayer("West U", kSG, 60, "Senior");
  const int star = league.AddPlayer("West U", kSF, 90, "Junior");  // above 86: always leaves
  const int good = league.AddPlayer("West U", kSF, 78, "Junior");  // potential 0: stays
  league.AddPlayer("East U", kC, 95, "Junior");                    // another region
  EXPECT_EQ(RegionRecruitCount(league.session(), "West"), 2 + 1 + 5);
  EXPECT_EQ(league.store().ScalarInt("SELECT NBAFlag FROM Player WHERE Id = ?", star), 1);
  EXPECT_EQ(league.store().ScalarInt("SELECT NBAFlag FROM Player WHERE Id = ?", good), 0);

  std::vector<int> ids;
  for (int i = 0; i < 60; ++i) {
    // All above 86, so each would leave; the best come first.
    ids.push_back(
        league.AddPlayer(i % 2 == 0 ? "South U" : "South State", kSF, 87 + i * 0.1, "Sophomore"));
  }
  EXPECT_EQ(RegionRecruitCount(league.session(), "South"), 51 + 5);
  for (int i = 0; i < 60; ++i) {
    EXPECT_EQ(league.store().ScalarInt("SELECT NBAFlag FROM Player WHERE Id = ?", ids[i]),
              i >= 9 ? 1 : 0)
        << i;
  }
}

TEST(RegionRecruits, AReturningJuniorCollegeManKeepsHisYearAndCountsAgainstTheClass) {
  testing::LeagueFixture league(13);
  league.AddTeam("West U", "West", 70);
  league.AddPlayer("West U", kPG, 60, "Senior");
  const int jc = league.AddPlayer("West", kC, 55, "JCRecruit");
  league.store().Exec("UPDATE Player SET HighSchool = 'Bay High' WHERE Id = ?", jc);
  league.store().Append("Recruit", {{"Id", int64_t{jc}},
                                    {"Region", "West"},
                                    {"Area", "CA"},
                                    {"RecruitType", "Good"},
                                    {"ScoutingReport", "Old report."},
                                    {"InEligible", int64_t{2001}},
                                    {"TestScore", int64_t{42}},
                                    {"RankPoints", 61.25},
                                    {"PosRank", int64_t{3}},
                                    {"Top50Rank", int64_t{17}}});
  PlayerBatch batch = PlayerBatch::Begin(league.session());
  batch.recruitInterest = [](Session&, Recruit& r, const Player&) { r.Team1 = "West U"; };
  CreateRegionRecruits(league.session(), batch, "West");
  // N = 1 senior + 0 leavers + 5; one returns, five are new.
  EXPECT_EQ(league.store().ScalarInt("SELECT count(*) FROM Player WHERE Team = 'West'"), 6);
  EXPECT_EQ(league.store().RowCount("Recruit"), 6);
  Rows rows = league.store().Query(
      "SELECT RecruitType, Area, InEligible, TestScore, RankPoints, PosRank, Top50Rank, "
      "TeamChoice, ScoutingReport, Team1, PPG FROM Recruit WHERE Id = ?",
      jc);
  ASSERT_TRUE(rows.Next());
  EXPECT_EQ(rows.Text(0), "Good");
  EXPECT_EQ(rows.Text(1), "CA");
  // The year he may sign in, his test and his ranks stay: he can be signed
  // this season and his row survives the clearing of the pool.
  EXPECT_EQ(rows.Int(2), 2001);
  EXPECT_EQ(rows.Int(3), 42);
  EXPECT_DOUBLE_EQ(rows.Double(4), 61.25);
  EXPECT_EQ(rows.Int(5), 3);
  EXPECT_EQ(rows.Int(6), 17);
  EXPECT_TRUE(rows.IsNull(7));
  // A new first report, interest list and statistics.
  EXPECT_NE(rows.Text(8), "Old report.");
  EXPECT_NE(rows.Text(8), "");
  EXPECT_EQ(rows.Text(9), "West U");
  EXPECT_GT(rows.Double(10), 0);
  EXPECT_EQ(league.store().ScalarText("SELECT HighSchool FROM Player WHERE Id = ?", jc),
            "CA JC(Bay High)");
}

TEST(CreateScrubTeamRoster, ThirteenBackgroundPlayersWithoutSideRows) {
  testing::LeagueFixture league(14);
  league.AddScrubTeam("Little U", 45);
  CreateScrubTeamRoster(league.session(), "Little U", 45);
  EXPECT_EQ(league.store().ScalarInt("SELECT count(*) FROM ScrubPlayer WHERE Team = 'Little U'"),
            13);
  for (const char* year : {"Freshman", "Sophomore", "Junior", "Senior"}) {
    const auto n = league.store().ScalarInt(
        "SELECT count(*) FROM ScrubPlayer WHERE Team = 'Little U' AND PlayerYear = ?", year);
    EXPECT_GE(*n, 3);
    EXPECT_LE(*n, 4);
  }
  EXPECT_EQ(league.store().RowCount("PlayerStats"), 0);
  EXPECT_EQ(league.store().RowCount("Player"), 0);
  // Background heights: a centre of the two last rolls is exactly 86 or 87.
  EXPECT_EQ(league.store().ScalarInt(
                "SELECT count(*) FROM ScrubPlayer WHERE Reach > 87 OR Reach < 65 OR Overall <= 0"),
            0);
}

}  // namespace
}  // namespace courtmere
