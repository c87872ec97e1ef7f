// The season's honours on a real dynasty whose statistics are filled by hand:
// the award score by position, the player of the week, the all-conference
// and freshman teams with their shared slots, and the All America teams.
#include "season/awards.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "league/dynasty_fixture.h"

namespace courtmere {
namespace {

using testing::DynastyFixture;

// One honour as written.
struct Winner {
  std::string Type;
  int WeekNo = 0;
  int PlayerId = 0;
  bool operator==(const Winner&) const = default;
};

std::ostream& operator<<(std::ostream& os, const Winner& w) {
  return os << w.Type << "/" << w.WeekNo << "/" << w.PlayerId;
}

class AwardsTest : public ::testing::Test {
 protected:
  // Every first-division team's players in their slots, without a game.
  void SetUp() override {
    int index = 1;
    for (Rows t = store().Query("SELECT SchoolName, Conference FROM Team ORDER BY rowid"); t.Next();
         ++index) {
      TeamSeasonLines& team = stats().Team(index);
      team.SchoolName = t.Text(0);
      team.Conference = t.Text(1);
      int slot = 1;
      for (Rows p = store().Query(
               "SELECT Id, PlayerPosition FROM Player WHERE Team = ? ORDER BY Id", team.SchoolName);
           p.Next() && slot <= TeamSeasonLines::kSlots; ++slot) {
        team.Players[slot].Id = p.Int(0);
        team.Players[slot].PlayerPosition = p.Int(1);
      }
    }
    teams_ = index - 1;
    store().Exec("UPDATE Player SET PlayerYear = 'Junior'");
  }
  Store& store() { return d_.store(); }
  PlayerStatsStore& stats() { return d_.session().seasonStats; }

  // The first team of a conference, by index in the statistics.
  int TeamOf(const std::string& conference, int nth = 0) {
    for (int t = 1; t <= teams_; ++t) {
      if (stats().Team(t).Conference == conference && nth-- == 0) return t;
    }
    return 0;
  }
  // A season in ten games, played at `position`, whose points alone make
  // the award score `score` (a multiple of 15).
  PlayerSeasonLine& Season(int team, int slot, int position, int score) {
    PlayerSeasonLine& p = stats().Team(team).Players[slot];
    p.PlayerPosition = position;
    p.Games = 10;
    p.Points = position == 2 || position == 4 ? score * 2 / 3 : score * 4 / 5;
    p.PPG = p.Points / 10.0;
    EXPECT_DOUBLE_EQ(SeasonAwardScore(p), score);
    return p;
  }
  void Freshman(int id) {
    store().Exec("UPDATE Player SET PlayerYear = 'Freshman' WHERE Id = ?", id);
  }
  std::vector<Winner> Winners(const std::string& like) {
    std::vector<Winner> out;
    for (Rows r = store().Query(
             "SELECT Type, WeekNo, PlayerId FROM AwardWinners WHERE Type LIKE ? ORDER BY Id", like);
         r.Next();) {
      out.push_back({r.Text(0), r.Int(1), r.Int(2)});
    }
    return out;
  }
  int Id(int team, int slot) { return stats().Team(team).Players[slot].Id; }

  DynastyFixture d_;
  int teams_ = 0;
};

TEST(SeasonAwardScore, WeighsTheSeasonTotalsByPosition) {
  PlayerSeasonLine p;
  p.Points = 100;
  p.Assists = 40;
  p.Steals = 20;
  p.OffRebounds = 10;
  p.DefRebounds = 30;
  p.ShotBlocks = 8;
  p.Turnovers = 12;
  const std::vector<double> expected = {250, 256, 223.5, 256, 246.5};
  for (int position = 1; position <= 5; ++position) {
    p.PlayerPosition = position;
    EXPECT_DOUBLE_EQ(SeasonAwardScore(p), expected[position - 1]) << position;
  }
}

TEST_F(AwardsTest, PlayerOfTheWeekIsTheFirstOfEqualsAndTheWeekStartsAfresh) {
  const int first = 1, second = 2;
  stats().Team(second).Players[1].AwardScore = 40;
  PlayerSeasonLine& seventh = stats().Team(first).Players[7];
  seventh.AwardScore = 40;
  seventh.WeekPoints = 23.25;
  seventh.WeekRebounds = 8.75;
  seventh.WeekAssists = 4;
  stats().Team(first).Players[3].AwardScore = 39.5;
  // A background team's man counts for nothing, however good his week.
  stats().Team(teams_ + 1).Players[1] = {.Id = 99999, .AwardScore = 90};
  stats().Team(150).Players[1].AwardScore = 5;
  d_.session().config.CurrWeek = 7;
  PickPlayerOfWeek(d_.session());

  EXPECT_EQ(Winners("week"), (std::vector<Winner>{{"week", 7, Id(first, 7)}}));
  Rows r = store().Query("SELECT PPG, RPG, APG FROM AwardWinners WHERE Type = 'week'");
  ASSERT_TRUE(r.Next());
  EXPECT_DOUBLE_EQ(r.Double(0), 23.2);  // a half rounds to even
  EXPECT_DOUBLE_EQ(r.Double(1), 8.8);
  EXPECT_DOUBLE_EQ(r.Double(2), 4);

  EXPECT_EQ(seventh.AwardScore, 0);
  EXPECT_EQ(seventh.WeekPoints, 0);
  EXPECT_EQ(stats().Team(teams_ + 1).Players[1].AwardScore, 0);
  EXPECT_EQ(stats().Team(150).Players[1].AwardScore, 5);  // beyond the cleared teams

  // Nobody above 0: nobody is named.
  d_.session().config.CurrWeek = 8;
  PickPlayerOfWeek(d_.session());
  EXPECT_EQ(Winners("week").size(), 1u);
}

// The all-conference slots: a conference of great guards names three of
// them; a position whose slots are taken is passed over.
TEST_F(AwardsTest, AllConferenceSlotsGoToTheBestWhoseSlotIsFree) {
  const int t1 = TeamOf("MVC"), t2 = TeamOf("MVC", 1);
  Season(t1, 1, 1, 6000);
  Season(t2, 1, 2, 5850);
  Season(t2, 2, 1, 5700);                      // slots 1 and 2 taken: the third guard takes 3
  Season(t1, 2, 3, 5550);                      // 3 and 2 taken: the forward takes 4
  Season(t1, 3, 4, 5400);                      // 4 taken: 5
  Season(t1, 4, 5, 5250);                      // the team is full
  Season(TeamOf("Atlantic 10"), 1, 5, 13500);  // another conference's man
  PickConferenceTeam(d_.session(), "MVC", "All");
  EXPECT_EQ(Winners("MVC%"), (std::vector<Winner>{{"MVC", 1, Id(t1, 1)},
                                                  {"MVC", 2, Id(t2, 1)},
                                                  {"MVC", 3, Id(t2, 2)},
                                                  {"MVC", 4, Id(t1, 2)},
                                                  {"MVC", 5, Id(t1, 3)},
                                                  {"MVCPOY", 1, Id(t1, 1)}}));
  Rows r = store().Query("SELECT PPG FROM AwardWinners WHERE Type = 'MVCPOY'");
  ASSERT_TRUE(r.Next());
  EXPECT_DOUBLE_EQ(r.Double(0), 480);

  const int t = TeamOf("WAC");
  Season(t, 1, 4, 7500);
  Season(t, 2, 5, 7350);
  Season(t, 3, 5, 7200);  // 5, 4 taken: 3
  Season(t, 4, 4, 7050);  // 4, 5, 3 taken: passed over
  Season(t, 5, 1, 4500);
  Season(t, 6, 2, 3000);
  PickConferenceTeam(d_.session(), "WAC", "All");
  EXPECT_EQ(Winners("WAC"), (std::vector<Winner>{{"WAC", 4, Id(t, 1)},
                                                 {"WAC", 5, Id(t, 2)},
                                                 {"WAC", 3, Id(t, 3)},
                                                 {"WAC", 1, Id(t, 5)},
                                                 {"WAC", 2, Id(t, 6)}}));
}

TEST_F(AwardsTest, FreshmanTeamsEndInFAndAreShortWhenFreshmenAre) {
  const int t = TeamOf("Atlantic 10");
  for (int slot = 1; slot <= 6; ++slot) Season(t, slot, slot % 5 + 1, 15 * (100 + slot));
  Freshman(Id(t, 2));
  Freshman(Id(t, 4));
  Freshman(Id(t, 6));
  PickConferenceTeam(d_.session(), "Atlantic 10", "Freshman");
  const std::vector<Winner> team = Winners("Atlantic 10%");
  ASSERT_EQ(team.size(), 3u);  // no player of the year for freshmen
  EXPECT_EQ(team[0], (Winner{"Atlantic 10F", 2, Id(t, 6)}));
  EXPECT_EQ(team[1].PlayerId, Id(t, 4));
  EXPECT_EQ(team[2].PlayerId, Id(t, 2));

  Season(TeamOf("MVC"), 1, 3, 750);
  Freshman(Id(TeamOf("MVC"), 1));
  PickConferenceTeam(d_.session(), "National", "Freshman");
  EXPECT_EQ(Winners("NationalF").size(), 4u);
  EXPECT_TRUE(Winners("NationalPOY").empty());
}

TEST_F(AwardsTest, EachAllAmericaTeamHoldsOneManOfEachPosition) {
  // Across the first division: four point guards at the top, then every
  // position in turn.
  int score = 15000;
  for (int t = 1; t <= 4; ++t) Season(t, 1, 1, score -= 15);
  for (int round = 0; round < 4; ++round) {
    for (int position = 2; position <= 5; ++position) {
      Season(5 + round, position, position, score -= 15);
    }
  }
  PickNationalTeams(d_.session());
  EXPECT_EQ(Winners("NationalPOY"), (std::vector<Winner>{{"NationalPOY", 1, Id(1, 1)}}));
  for (const char* type : {"FirstAA", "SecondAA", "ThirdAA"}) {
    std::vector<int> positions;
    for (const Winner& w : Winners(type)) positions.push_back(w.WeekNo);
    std::sort(positions.begin(), positions.end());
    EXPECT_EQ(positions, (std::vector<int>{1, 2, 3, 4, 5})) << type;
  }
  EXPECT_EQ(Winners("FirstAA").front(), (Winner{"FirstAA", 1, Id(1, 1)}));
  // The fourth point guard finds no place; the fourth of the others neither.
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM AwardWinners WHERE PlayerId = ?", Id(4, 1)), 0);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM AwardWinners WHERE PlayerId = ?", Id(8, 5)), 0);
}

}  // namespace
}  // namespace courtmere
