// A whole season played press by press from a freshly started dynasty: every
// game of the schedule and of the tournaments has its score, no team plays
// twice on a day, the records in TeamStats are the schedule's, each week's
// end has its poll, rating index and player of the week, week 15 names the
// season's teams, the champions are there, the seeds' court edge is given on the
// NCT's first day alone, the season ends in "Season Over" on Monday of week
// 21, and End Season clears the year's titles.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>

#include "engine/run_engine.h"
#include "league/national_rounds.h"
#include "league/national_tourneys.h"
#include "league/seeded_name.h"
#include "season/end_season.h"
#include "season/schedule_tables.h"
#include "season_fixture.h"

namespace courtmere::testing {
namespace {

struct Result {
  int week;
  std::string day;
  std::string home;
  std::string away;
  std::string type;
  int homeScore;
  int awayScore;
};

std::vector<Result> AllGames(Store& store) {
  std::vector<Result> games;
  for (const std::string& table : SeasonScheduleTables(store)) {
    for (Rows r = store.Query("SELECT Week, GameDay, HomeTeam, AwayTeam, GameType, HomeScore, "
                              "AwayScore FROM " +
                              table);
         r.Next();) {
      // National-tournament rows carry the seed before the school.
      games.push_back({r.Int(0), r.Text(1), SeededName::Parse(r.Text(2)).school,
                       SeededName::Parse(r.Text(3)).school, r.Text(4), r.Int(5), r.Int(6)});
    }
  }
  return games;
}

std::set<std::string> FirstDivision(Store& store) {
  std::set<std::string> schools;
  for (Rows r = store.Query("SELECT SchoolName FROM Team"); r.Next();) schools.insert(r.Text(0));
  return schools;
}

void ExpectEveryGamePlayedOnce(Store& store) {
  const std::vector<Result> games = AllGames(store);
  ASSERT_GT(games.size(), 300u);
  std::map<std::tuple<int, std::string, std::string>, int> appearances;
  for (const Result& g : games) {
    EXPECT_NE(g.homeScore, 0) << g.home << " v " << g.away << " week " << g.week;
    EXPECT_NE(g.homeScore, g.awayScore) << g.home << " v " << g.away;
    // The conference challenge of Sunday of week 1, drawn at the start of
    // the season, may meet a preseason tournament's final on that day; the
    // schedule allows it, so the check counts the challenge games apart.
    const std::string kind = g.week == 1 && g.type == "NonConference" ? " (challenge)" : "";
    ++appearances[{g.week, g.day + kind, g.home}];
    ++appearances[{g.week, g.day + kind, g.away}];
  }
  for (const auto& [slot, count] : appearances) {
    EXPECT_EQ(count, 1) << std::get<2>(slot) << " in week " << std::get<0>(slot) << ", "
                        << std::get<1>(slot);
  }
}

void ExpectRecordsAreTheScheduleResults(Store& store) {
  const std::set<std::string> division = FirstDivision(store);
  std::map<std::string, std::pair<int, int>> record;  // wins, losses
  int winsOverBackground = 0;
  int lossesToBackground = 0;
  for (const Result& g : AllGames(store)) {
    if (g.homeScore == 0) continue;
    const bool homeWon = g.homeScore > g.awayScore;
    const bool homeFirst = division.count(g.home) > 0;
    const bool awayFirst = division.count(g.away) > 0;
    if (homeFirst) (homeWon ? record[g.home].first : record[g.home].second)++;
    if (awayFirst) (homeWon ? record[g.away].second : record[g.away].first)++;
    if (homeFirst != awayFirst) {
      const bool firstWon = homeFirst == homeWon;
      (firstWon ? winsOverBackground : lossesToBackground)++;
    }
  }
  int wins = 0;
  int losses = 0;
  for (Rows r = store.Query("SELECT SchoolName, TotalWins, TotalLosses FROM TeamStats");
       r.Next();) {
    EXPECT_EQ(r.Int(1), record[r.Text(0)].first) << r.Text(0);
    EXPECT_EQ(r.Int(2), record[r.Text(0)].second) << r.Text(0);
    wins += r.Int(1);
    losses += r.Int(2);
  }
  EXPECT_GT(wins, 0);
  // Among the first division every win is another's loss.
  EXPECT_EQ(wins - winsOverBackground, losses - lossesToBackground);
}

// What the batch handed the engine for one game.
struct Played {
  int week;
  std::string day;
  int gameNo;
  std::string type;
  int courtEdge;
};

// The seeds' court edge by the first weekend's rows, as the user's table
// holds them: every NCT game has 0 but Thursday's 1-16 (+2), 4-13 and
// 5-12 (-2) of week 17; Friday's pairings have none either.
void ExpectCourtEdgeOnlyOnTheFirstNctRound(Store& store, const std::vector<Played>& played) {
  const std::string table = PostseasonScheduleTable(store);
  const std::map<std::pair<int, int>, int> edges = {{{1, 16}, 2}, {{4, 13}, -2}, {{5, 12}, -2}};
  int thursdayEdges = 0;
  int nctGames = 0;
  for (const Played& g : played) {
    if (g.week < 17 || g.type.starts_with("ACT")) {
      EXPECT_EQ(g.courtEdge, 0) << g.type << " game " << g.gameNo << " in week " << g.week;
      continue;
    }
    ++nctGames;
    Rows row =
        store.Query("SELECT HomeTeam, AwayTeam FROM " + table + " WHERE GameNo = ?", g.gameNo);
    ASSERT_TRUE(row.Next()) << g.gameNo;
    const SeededName home = SeededName::Parse(row.Text(0));
    const SeededName away = SeededName::Parse(row.Text(1));
    const bool firstWeekend = g.week == 17 && (g.day == "Thursday" || g.day == "Friday");
    EXPECT_EQ(home.seed > 0 && away.seed > 0, firstWeekend) << row.Text(0) << " v " << row.Text(1);
    const auto edge = edges.find({home.seed, away.seed});
    const int expected = firstWeekend && edge != edges.end() ? edge->second : 0;
    EXPECT_EQ(g.courtEdge, expected)
        << row.Text(0) << " v " << row.Text(1) << ", " << g.day << " of week " << g.week;
    if (g.day == "Thursday" && g.week == 17 && g.courtEdge != 0) ++thursdayEdges;
  }
  EXPECT_EQ(nctGames, 63);
  EXPECT_EQ(thursdayEdges, 12);  // three pairings of each region
}

// What each week's end leaves: a poll of 25 distinct schools and a player
// of the week but in week 5 (no games), the rating index of every
// first-division team from week 5, and at week 15's end the season's teams.
void ExpectWeekEnded(Store& store, int week) {
  SCOPED_TRACE("end of week " + std::to_string(week));
  auto count = [&store](const std::string& sql, auto... args) {
    return store.ScalarInt(sql, args...).value_or(-1);
  };
  if (week > 15) return;
  if (week != 5) {
    EXPECT_EQ(count("SELECT count(DISTINCT SchoolName) FROM Ranking WHERE TeamRanking BETWEEN 1 "
                    "AND 25"),
              25);
    EXPECT_EQ(count("SELECT count(*) FROM AwardWinners WHERE Type = 'week' AND WeekNo = ?", week),
              1);
  }
  if (week >= 5) {
    EXPECT_EQ(count("SELECT count(*) FROM Team JOIN CRIRank USING (SchoolName)"),
              count("SELECT count(*) FROM Team"));
  }
  if (week != 15) return;
  std::set<int> positions;
  for (Rows r = store.Query("SELECT WeekNo FROM AwardWinners WHERE Type = 'FirstAA'"); r.Next();) {
    positions.insert(r.Int(0));
  }
  EXPECT_EQ(positions, (std::set<int>{1, 2, 3, 4, 5}));
  EXPECT_EQ(count("SELECT count(*) FROM AwardWinners WHERE Type = 'NationalPOY'"), 1);
  for (Rows r = store.Query("SELECT Conference FROM League WHERE SchedType <> ''"); r.Next();) {
    EXPECT_EQ(count("SELECT count(*) FROM AwardWinners WHERE Type = ?", r.Text(0)), 5) << r.Text(0);
  }
}

using WholeSeason = SeasonFixture;

// The user's chart is kept by the computer, as the command-line tool keeps
// it, so that his injured men do not stop the season at the guard.
TEST_F(WholeSeason, PlayedPressByPressToSeasonOverAndEnded) {
  run().cpuSetsUserTeam = true;
  std::vector<Played> played;
  run().runGame = [this, &played](Game& game, DayResults& day, const GameRequest& request,
                                  std::string& box, std::string& log) {
    played.push_back(
        {config().CurrWeek, config().CurrDay, request.GameNo, request.GameType, request.CourtEdge});
    return RunEngine(game, day, request, box, log);
  };
  std::vector<int> weeksEnded;
  SimTo(21, "Monday", [this, &weeksEnded](int week) {
    weeksEnded.push_back(week);
    ExpectWeekEnded(store(), week);
  });
  EXPECT_EQ(weeksEnded.size(), 20u);
  EXPECT_EQ(config().Stage, "Season Over");
  EXPECT_EQ(*store().ScalarText("SELECT Stage FROM Config WHERE IdConfig = 0"), "Season Over");
  ExpectEveryGamePlayedOnce(store());
  ExpectRecordsAreTheScheduleResults(store());
  // No player of the week for the sixteenth (its Sunday selects the
  // tournaments instead); the tournaments crowned their champions.
  EXPECT_EQ(Count("SELECT count(*) FROM AwardWinners WHERE Type = 'week'"), 14);
  EXPECT_TRUE(NctChampion(store()).has_value());
  EXPECT_EQ(Count("SELECT count(*) FROM Team WHERE Winner IN (1, 3)"),
            Count("SELECT count(*) FROM League WHERE SchedType <> ''"));
  ExpectCourtEdgeOnlyOnTheFirstNctRound(store(), played);

  // The season's end clears the year's titles of the first division, so no
  // champion keeps an automatic bid into the next season; the background
  // conferences keep their qualifiers.
  const int64_t qualifiers = Count("SELECT count(*) FROM ScrubTeam WHERE Winner = 1");
  EXPECT_GT(Count("SELECT count(*) FROM Team WHERE Winner > 0 OR NCTFinalFour > 0 OR "
                  "ACTWinner > 0 OR ACTFinalFour > 0"),
            0);
  ASSERT_EQ(EndSeason(run()), SeasonEnd::kEnded);
  EXPECT_EQ(Count("SELECT count(*) FROM Team WHERE Winner <> 0 OR NCTFinalFour <> 0 OR "
                  "ACTWinner <> 0 OR ACTFinalFour <> 0"),
            0);
  EXPECT_EQ(Count("SELECT count(*) FROM ScrubTeam WHERE Winner = 1"), qualifiers);
}

}  // namespace
}  // namespace courtmere::testing
