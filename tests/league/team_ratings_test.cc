// TeamRatings and ScrubTeamRatings: strength, best men, prestige in a first
// year and later, scholarships, and the nudge of a season's record.
#include "league/team_ratings.h"

#include <gtest/gtest.h>

#include <cmath>

#include "people/league_fixture.h"
#include "platform/rng.h"

namespace courtmere {
namespace {

using testing::LeagueFixture;

// A team of `players` with Overall 60, 61, ...; the first `leaving` flagged.
void Roster(LeagueFixture& league, const std::string& school, int players, int leaving = 0) {
  for (int i = 0; i < players; ++i) {
    const int id = league.AddPlayer(school, i % 5 + 1, 60 + i);
    if (i < leaving) league.store().Exec("UPDATE Player SET NBAFlag = 1 WHERE Id = ?", id);
  }
}

double Column(LeagueFixture& league, const char* column, const std::string& school) {
  return league.store()
      .ScalarDouble(std::string("SELECT ") + column + " FROM Team WHERE SchoolName = ?", school)
      .value_or(-1);
}

// Prestige less its fixed part, over 0.15: the roll r of 1 to 5.
double RollOf(double prestige, double strength, int initial, double history = 0) {
  return (prestige - 0.3 * history - ((strength - 373) / 2 * 0.15 + initial * 0.85)) / 0.15;
}

void ExpectWholeRoll(double r) {
  EXPECT_NEAR(r, std::round(r), 1e-9);
  EXPECT_GE(std::round(r), 1);
  EXPECT_LE(std::round(r), 5);
}

TEST(TeamRatings, AFirstYearIgnoresRecordHistoryAndAlumni) {
  LeagueFixture league;
  league.AddTeam("St. John's", "East", 66);
  Roster(league, "St. John's", 13);
  Store& s = league.store();
  s.Exec("UPDATE Team SET NCTChamps = 3, ConfChamps = 5, NCTApps = 9, NCTFinalFourApps = 2");
  s.Append("TeamStats", {{"SchoolName", "St. John's"}, {"WinPercent", 0.01}});
  s.Append("Alumni", {{"Id", int64_t{1}}, {"Team", "St. John's"}});
  for (int seed = 1; seed <= 20; ++seed) {
    league.session().rng = Rng(seed);
    TeamRatings(league.session());
    const double strength = 72 + 71 + 70 + 69 + 68 + 67 + 66;
    EXPECT_EQ(Column(league, "TeamRating", "St. John's"), strength);
    const double prestige = Column(league, "Prestige", "St. John's");
    ExpectWholeRoll(RollOf(prestige, strength, 66));
    const double tv = Column(league, "TVGames", "St. John's") - prestige / 10;
    EXPECT_GE(tv, 0.5);
    EXPECT_LE(tv, 5.5);
  }
}

TEST(TeamRatings, LaterYearsAddTheSchoolsHistory) {
  LeagueFixture league;
  league.AddTeam("Duke", "South", 90);
  Roster(league, "Duke", 13);
  Store& s = league.store();
  s.Exec("UPDATE Config SET CurrYear = 2003");  // y = 2
  s.Exec(
      "UPDATE Team SET NCTChamps = 1, ConfChamps = 2, NCTApps = 2, NCTWins = 6, "
      "NCTFinalFourApps = 2");
  s.Append("Alumni", {{"Id", int64_t{1}}, {"Team", "Duke"}});
  s.Append("Alumni", {{"Id", int64_t{2}}, {"Team", "Duke"}});
  TeamRatings(league.session());
  // 1 + 2/2 + (2 + 6)/4 + 1.5 * 2/2 + 2 alumni/2, with no TeamStats row.
  const double history = 1 + 1 + 2 + 1.5 + 1;
  const double strength = 72 + 71 + 70 + 69 + 68 + 67 + 66;
  ExpectWholeRoll(RollOf(Column(league, "Prestige", "Duke"), strength, 90, history));
}

TEST(TeamRatings, BestMenLeaveOutTheLeaversAndPrestigeStopsAtAHundred) {
  LeagueFixture league;
  league.AddTeam("Duke", "South", 100);
  league.AddPlayer("Duke", 1, 99.4);
  const int leaving = league.AddPlayer("Duke", 1, 99.6);
  league.store().Exec("UPDATE Player SET NBAFlag = 1 WHERE Id = ?", leaving);
  league.AddPlayer("Duke", 5, 80.5);
  TeamRatings(league.session());
  EXPECT_EQ(Column(league, "TopPG", "Duke"), 99);
  EXPECT_EQ(Column(league, "TopSG", "Duke"), 0);
  EXPECT_EQ(Column(league, "TopC", "Duke"), 80);         // 80.5 rounds to even
  EXPECT_EQ(Column(league, "TeamRating", "Duke"), 280);  // 279.5 rounds to even
  league.store().Exec("UPDATE Player SET Overall = 100");
  for (int i = 0; i < 10; ++i) league.AddPlayer("Duke", 2, 100);
  TeamRatings(league.session());
  EXPECT_EQ(Column(league, "Prestige", "Duke"), 100);
}

TEST(TeamRatings, ScholarshipsAreLeaversAndOpenPlacesAtMostFive) {
  LeagueFixture league;
  for (const char* school : {"Full", "Leavers", "Short", "Empty"}) {
    league.AddTeam(school, "East", 50);
  }
  Roster(league, "Full", 13);
  Roster(league, "Leavers", 13, 2);
  Roster(league, "Short", 10, 1);
  TeamRatings(league.session());
  EXPECT_EQ(Column(league, "Scholarships", "Full"), 0);
  EXPECT_EQ(Column(league, "Scholarships", "Leavers"), 2);
  EXPECT_EQ(Column(league, "Scholarships", "Short"), 4);
  EXPECT_EQ(Column(league, "Scholarships", "Empty"), 5);
}

TEST(WinFractionCorrection, FollowsTheBandOfQAndTheFirstLineThatFits) {
  Rng rng(3);
  for (int i = 0; i < 200; ++i) {
    const double strong = WinFractionCorrection(rng, 96, 0.60);  // - Int(Rnd * 10 + 5)
    EXPECT_GE(strong, -14);
    EXPECT_LE(strong, -5);
    EXPECT_EQ(WinFractionCorrection(rng, 96, 0.90), 0);
    const double good = WinFractionCorrection(rng, 70, 0.85);  // + Int(Rnd * 3)
    EXPECT_GE(good, 0);
    EXPECT_LE(good, 2);
    EXPECT_EQ(WinFractionCorrection(rng, 70, 0.70), 0);
    const double fair = WinFractionCorrection(rng, 50, 0.55);  // Q = 50 is "above 30"
    EXPECT_GE(fair, 0);
    EXPECT_LE(fair, 5);
    const double weak = WinFractionCorrection(rng, 30, 0.10);  // - Int(Rnd * 6 + 1)
    EXPECT_GE(weak, -6);
    EXPECT_LE(weak, -1);
    EXPECT_EQ(WinFractionCorrection(rng, 30, 0.30), 0);
  }
}

TEST(ScrubTeamRatings, StrengthAndPrestigeOfTheBackgroundTeams) {
  LeagueFixture league;
  league.AddScrubTeam("Binghamton", 14);
  for (int i = 0; i < 9; ++i) {
    league.store().Append(
        "ScrubPlayer", {{"Id", int64_t{100 + i}}, {"Team", "Binghamton"}, {"Overall", 50.0 + i}});
  }
  ScrubTeamRatings(league.session());
  const double strength = 58 + 57 + 56 + 55 + 54 + 53 + 52;
  EXPECT_EQ(league.store().ScalarInt("SELECT TeamRating FROM ScrubTeam"), strength);
  const double prestige = *league.store().ScalarDouble("SELECT Prestige FROM ScrubTeam");
  const double r = (prestige - 14 * 0.85) / 0.15 - (strength - 400) / 2;
  EXPECT_NEAR(r, std::round(r), 1e-9);
  EXPECT_GE(r, 1);
  EXPECT_LE(r, 5);
}

}  // namespace
}  // namespace courtmere
