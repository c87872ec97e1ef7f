// The conference tournaments on a real store: the seeds from the standings
// (divisions give seed 2 to the other division's best), the byes and games of
// every field from 8 to the largest conference, one champion per conference,
// a refusal of a field that cannot be drawn, and days taken again without a
// team moving on twice.
#include "league/conf_tourney.h"

#include <gtest/gtest.h>

#include <utility>

#include "league/bracket_slots.h"
#include "league/postseason_fixture.h"

namespace courtmere {
namespace {

using testing::LeagueRow;
using testing::PostseasonFixture;

// The conference with the most teams that is not the user's.
LeagueRow LargestOtherConference(PostseasonFixture& p) {
  LeagueRow best;
  int most = 0;
  for (const LeagueRow& league : p.Leagues()) {
    const int teams = static_cast<int>(
        p.store()
            .ScalarInt("SELECT count(*) FROM Team WHERE Conference = ?", league.conference)
            .value());
    if (league.table != p.UserTable() && teams > most) {
      most = teams;
      best = league;
    }
  }
  return best;
}

int TeamsIn(Store& store, const std::string& conference) {
  return static_cast<int>(
      store.ScalarInt("SELECT count(*) FROM Team WHERE Conference = ?", conference).value());
}

// Moves teams out of the conference, the last of the table first, until
// `field` are left, and gives it a schedule type of that size and no
// divisions.
void Resize(Store& store, const LeagueRow& league, int field) {
  const int extra = TeamsIn(store, league.conference) - field;
  store.Exec(
      "UPDATE Team SET Conference = 'Independents' WHERE SchoolName IN (SELECT SchoolName "
      "FROM Team WHERE Conference = ? ORDER BY rowid DESC LIMIT ?)",
      league.conference, extra);
  store.Exec("UPDATE League SET SchedType = ? WHERE Conference = ?", std::to_string(field),
             league.conference);
  store.Exec("UPDATE Team SET Division = 'None' WHERE Conference = ?", league.conference);
}

std::string Slot(Store& store, const std::string& conference, int slot) {
  return store
      .ScalarText("SELECT SchoolName FROM ConfTourney WHERE Conference = ? AND Seed = ?",
                  conference, slot)
      .value_or("");
}

std::vector<std::string> Standing(Store& store, const std::string& conference) {
  std::vector<std::string> schools;
  for (Rows r = store.Query("SELECT TeamStats.SchoolName FROM TeamStats, Team WHERE "
                            "Team.SchoolName = TeamStats.SchoolName AND Conference = ? "
                            "ORDER BY ConfWins DESC, TotalWins DESC, TeamStats.rowid",
                            conference);
       r.Next();) {
    schools.push_back(r.Text(0));
  }
  return schools;
}

int GamesOn(Store& store, const LeagueRow& league, const std::string& day) {
  return static_cast<int>(store
                              .ScalarInt("SELECT count(*) FROM " + league.table +
                                             " WHERE Week = 16 AND GameDay = ? AND "
                                             "GameType = 'Tournament'",
                                         day)
                              .value());
}

std::vector<std::pair<std::string, std::string>> FridayPairs(Store& store,
                                                             const LeagueRow& league) {
  std::vector<std::pair<std::string, std::string>> pairs;
  for (Rows r = store.Query("SELECT HomeTeam, AwayTeam FROM " + league.table +
                            " WHERE Week = 16 AND GameDay = 'Friday' ORDER BY GameNo");
       r.Next();) {
    pairs.emplace_back(r.Text(0), r.Text(1));
  }
  return pairs;
}

TEST(ConfTourneySize, TakesAtMostTheFirstTwoCharacters) {
  for (auto [type, size] : {std::pair{"12C", "12"}, {"9", "9"}, {"14", "14"}}) {
    EXPECT_EQ(ConfTourneySize(type), size);
  }
}

TEST(ConfTourney, EveryFieldSizeSeedsByStandingAndCrownsOneChampionASmallerIsRefused) {
  PostseasonFixture probe;
  const LeagueRow largestLeague = LargestOtherConference(probe);
  const int largest = TeamsIn(probe.store(), largestLeague.conference);
  ASSERT_GE(largest, 9);
  // A field too small to be drawn is refused and nothing written.
  Resize(probe.store(), largestLeague, kConfSmallestField - 1);
  const std::string before = testing::DumpStore(probe.store());
  SetupConfTourney(probe.session(), largestLeague.conference,
                   std::to_string(kConfSmallestField - 1));
  EXPECT_EQ(testing::DumpStore(probe.store()), before);
  ASSERT_FALSE(probe.ui().Messages().empty());
  EXPECT_NE(probe.ui().Messages().back().find(largestLeague.conference), std::string::npos);

  for (int field = kConfSmallestField; field <= largest; ++field) {
    SCOPED_TRACE(field);
    PostseasonFixture p(100 + static_cast<uint64_t>(field));
    const LeagueRow league = LargestOtherConference(p);
    Resize(p.store(), league, field);
    const std::vector<std::string> standing = Standing(p.store(), league.conference);
    SetupConfTourney(p.session(), league.conference, std::to_string(field));
    EXPECT_EQ(p.store().ScalarInt("SELECT count(*) FROM ConfTourney").value(), field);
    for (int seed = 1; seed <= field; ++seed) {
      EXPECT_EQ(Slot(p.store(), league.conference, ConfSeedSlot(seed, field)),
                standing[static_cast<size_t>(seed - 1)])
          << seed;
    }
    EXPECT_EQ(p.store()
                  .ScalarText("SELECT DISTINCT HostCity FROM ConfTourney WHERE Conference = ?",
                              league.conference)
                  .value(),
              standing.front());
    EXPECT_EQ(GamesOn(p.store(), league, "Thursday"), field - kConfSmallestField);
    for (const char* day : {"Thursday", "Friday", "Saturday", "Sunday"}) {
      p.PlayDay(league.table, 16, day);
      AdvanceConfTourney(p.session(), league.conference, 16, day);
      if (field == kConfSmallestField && day == std::string("Thursday")) {
        // Eight teams: 1 against 8, 4 against 5, 2 against 7, 3 against 6.
        EXPECT_EQ(FridayPairs(p.store(), league),
                  (std::vector<std::pair<std::string, std::string>>{{standing[0], standing[7]},
                                                                    {standing[3], standing[4]},
                                                                    {standing[1], standing[6]},
                                                                    {standing[2], standing[5]}}));
      }
    }
    EXPECT_EQ(GamesOn(p.store(), league, "Friday"), 4);
    EXPECT_EQ(GamesOn(p.store(), league, "Saturday"), 2);
    EXPECT_EQ(GamesOn(p.store(), league, "Sunday"), 1);
    const std::string champion = Slot(p.store(), league.conference, kConfChampionSlot);
    EXPECT_EQ(p.store()
                  .ScalarText("SELECT SchoolName FROM Team WHERE Winner = 1 AND Conference = ?",
                              league.conference)
                  .value_or("none"),
              champion);
    // Every team but the champion lost exactly one game.
    EXPECT_EQ(p.store()
                  .ScalarInt("SELECT count(*) FROM ConfTourney WHERE Conference = ? AND "
                             "BoldFlag = 0 AND Points > 0",
                             league.conference)
                  .value(),
              field - 1);
  }
}

TEST(ConfTourney, TheOtherDivisionsBestIsSeedTwo) {
  PostseasonFixture p;
  const LeagueRow league = LargestOtherConference(p);
  const std::vector<std::string> s = Standing(p.store(), league.conference);
  p.store().Exec("UPDATE Team SET Division = 'East' WHERE Conference = ?", league.conference);
  // The third of the standings is the only team of the second division above
  // the bottom half; the second, in the first division, has the better record.
  for (size_t i = 2; i < s.size(); i += 2) {
    p.store().Exec("UPDATE Team SET Division = 'West' WHERE SchoolName = ?", s[i]);
  }
  const int field = TeamsIn(p.store(), league.conference);
  SetupConfTourney(p.session(), league.conference, ConfTourneySize(league.schedType));
  EXPECT_EQ(Slot(p.store(), league.conference, 1), s[0]);
  EXPECT_EQ(Slot(p.store(), league.conference, 2), s[2]);
  EXPECT_EQ(Slot(p.store(), league.conference, ConfSeedSlot(3, field)), s[1]);
  EXPECT_EQ(Slot(p.store(), league.conference, ConfSeedSlot(4, field)), s[3]);
}

// A day whose batch stopped after its first game ends as one played whole,
// and every day taken again moves nobody on twice.
TEST(ConfTourney, ADayPlayedInTwoPartsOrTakenAgainMovesNobodyOnTwice) {
  PostseasonFixture p;
  const LeagueRow league = LargestOtherConference(p);
  p.SetupConferenceTourneys();
  ASSERT_GE(GamesOn(p.store(), league, "Thursday"), 2);
  p.store().Exec("UPDATE " + league.table +
                 " SET HomeScore = 70, AwayScore = 60 WHERE GameNo = (SELECT min(GameNo) "
                 "FROM " +
                 league.table + " WHERE Week = 16 AND GameDay = 'Thursday')");
  AdvanceConfTourney(p.session(), league.conference, 16, "Thursday");
  for (const char* day : {"Thursday", "Friday", "Saturday", "Sunday"}) {
    p.PlayConferenceDay(day);
    const std::string once = testing::DumpStore(p.store());
    for (const LeagueRow& other : p.Leagues()) {
      AdvanceConfTourney(p.session(), other.conference, 16, day);
    }
    EXPECT_EQ(testing::DumpStore(p.store()), once) << day;
  }
  EXPECT_EQ(GamesOn(p.store(), league, "Friday"), 4);
  EXPECT_EQ(p.store()
                .ScalarInt("SELECT count(*) FROM (SELECT Seed FROM ConfTourney WHERE "
                           "Conference = ? GROUP BY Seed HAVING count(*) > 1)",
                           league.conference)
                .value(),
            0);
  EXPECT_EQ(p.store()
                .ScalarInt("SELECT count(*) FROM ConfTourney WHERE Conference = ? AND Seed "
                           "BETWEEN 15 AND 20",
                           league.conference)
                .value(),
            6);
  // Setting up again leaves every bracket as it stands.
  const std::string done = testing::DumpStore(p.store());
  p.SetupConferenceTourneys();
  EXPECT_EQ(testing::DumpStore(p.store()), done);
}

}  // namespace
}  // namespace courtmere
