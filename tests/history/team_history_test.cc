// The schools' and the coach's history of a season, and the coach ranks, on
// a small store made by hand.
#include "history/team_history.h"

#include <tuple>

#include "hand_made_store.h"
#include "history/coach_rank.h"

namespace courtmere::testing {
namespace {

class TeamHistory : public HandMadeStore {
 protected:
  TeamHistory() {
    for (const char* school : {"Duke", "Kansas", "Utah", "Iowa"}) AddSchool(school, "Big");
    store().Exec("UPDATE Team SET Owner = 'Human' WHERE SchoolName = 'Duke'");
    store().Exec(
        "INSERT INTO HeadCoach (Id, Name, Team, PrestigeChange) VALUES (1, 'Coach K', 'Duke', 3)");
    store().Exec("INSERT INTO CoachHistory (Season, Year, Team) VALUES (1, 2001, 'Duke')");
  }
  void Record(const std::string& school, int wins, int losses) {
    store().Exec("UPDATE TeamStats SET TotalWins = ?, TotalLosses = ? WHERE SchoolName = ?", wins,
                 losses, school);
  }
  // The school's rows of a bracket: its seed, then one row in each slot it
  // won its way into.
  void Bracket(const char* table, const std::string& school, std::vector<int> slots) {
    for (int slot : slots) {
      store().Exec(std::string("INSERT INTO ") + table +
                       " (SchoolName, Seed, Conference) VALUES (?, ?, 'East')",
                   school, slot);
    }
  }
  std::string Coach(const char* column) {
    return *store().ScalarText(std::string("SELECT ") + column + " FROM CoachHistory");
  }
};

TEST_F(TeamHistory, AnNctChampionsYearIsCountedOnceOnTeamCoachAndHistory) {
  Record("Duke", 30, 4);
  store().Exec(
      "UPDATE Team SET Winner = 3, NCTFinalFour = 1, NCTWins = 2, Prestige = 60.5 WHERE "
      "SchoolName = 'Duke'");
  Bracket("NCTTourney", "Duke", {1, 21, 31, 41, 51, 61, 71});
  // A school in the NCT is not read in the ACT, even with a row there.
  Bracket("ACTTourney", "Duke", {21, 31});
  SaveTeamHistory(store(), "Duke", 2002);

  EXPECT_EQ(Count("SELECT OverallWins * 1000 + OverallGames FROM Team WHERE SchoolName = 'Duke'"),
            30034);
  EXPECT_EQ(Count("SELECT NCTApps * 10000 + NCTWins * 100 + NCTLosses FROM Team WHERE SchoolName "
                  "= 'Duke'"),
            10800);
  EXPECT_EQ(Count("SELECT ConfChamps + NCTChamps * 10 + NCTFinalFourApps * 100 + ACTApps * 1000 "
                  "FROM Team WHERE SchoolName = 'Duke'"),
            111);
  EXPECT_EQ(Count("SELECT InitialPrestige FROM Team WHERE SchoolName = 'Duke'"), 60);
  EXPECT_EQ(Coach("NCTRecord"), "6-0");
  EXPECT_EQ(Coach("Summary"), "Was NCT Champion");
  EXPECT_EQ(Coach("ConfChamps"), "Yes");
  EXPECT_EQ(Coach("ACTRecord"), "");
  // PrestigeChange: the year's rise plus a third of the old value.
  EXPECT_DOUBLE_EQ(*store().ScalarDouble("SELECT PrestigeChange FROM HeadCoach"), 10.5 + 1);
  EXPECT_EQ(Count("SELECT Seasons * 100 + NCTChamps * 10 + NCTWins FROM HeadCoach"), 116);
  EXPECT_EQ(Count("SELECT Wins FROM TeamHistory WHERE SchoolName = 'Duke' AND Year = 2002"), 30);
}

TEST_F(TeamHistory, SummariesOfAnActTeamAndOfASchoolInNeither) {
  Record("Duke", 25, 26);
  Bracket("ACTTourney", "Duke", {21, 31, 41});
  SaveTeamHistory(store(), "Duke", 2002);
  EXPECT_EQ(Coach("ACTRecord"), "2-1");
  EXPECT_EQ(Coach("Summary"), "Solid showing in the ACT");
  EXPECT_EQ(Coach("NCTRecord"), "");

  // Outside both tournaments only a losing margin of two reads as under .500.
  store().Exec("DELETE FROM ACTTourney");
  for (const auto& [wins, losses, summary] :
       std::vector<std::tuple<int, int, std::string>>{{25, 3, "Finished Close to .500"},
                                                      {10, 11, "Finished Close to .500"},
                                                      {10, 12, "Finished under .500"}}) {
    Record("Duke", wins, losses);
    store().Exec("DELETE FROM TeamHistory");
    SaveTeamHistory(store(), "Duke", 2002);
    EXPECT_EQ(Coach("Summary"), summary) << wins << "-" << losses;
  }
}

TEST_F(TeamHistory, TheTopCoachesGoByScoreWithTheEarlierOfEqualScoresFirst) {
  // Kansas and Utah score alike (a conference title each); Iowa's prestige
  // rose by one, worth four points; Duke did nothing.
  store().Exec("UPDATE Team SET Winner = 1 WHERE SchoolName IN ('Kansas', 'Utah')");
  store().Exec("UPDATE Team SET Prestige = 51 WHERE SchoolName = 'Iowa'");
  SaveTeamHistory(store(), "Duke", 2002);
  const std::vector<TopCoachRow> top = TopCoaches(store());
  ASSERT_EQ(top.size(), 4u);
  EXPECT_EQ(top[0].team, "Iowa");
  EXPECT_EQ(top[1].team, "Kansas");
  EXPECT_EQ(top[2].team, "Utah");
  EXPECT_EQ(top[3].coach, "Coach K");
  EXPECT_EQ(top[1].coach, "Kansas Head Coach");
  EXPECT_EQ(top[1].result, "Finished close to .500");

  ScoreMarks champion{2, 3, true, false, 6, 9};
  EXPECT_DOUBLE_EQ(CoachScoreOf(champion), 8 + 16 + 7 + 45);
}

}  // namespace
}  // namespace courtmere::testing
