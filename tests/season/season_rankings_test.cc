// A whole regular season played by the day step on a real dynasty: every
// week's poll ranks 25 distinct schools, the rating index covers every
// first-division team from week 5, every week but the fifth has its player
// of the week, and week 15 names the season's teams.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "league/dynasty_fixture.h"
#include "league/start_season.h"
#include "season/day_step.h"
#include "season/season_run.h"
#include "season/season_session.h"

namespace courtmere {
namespace {

template <class... Args>
int64_t Count(Store& store, const std::string& sql, const Args&... args) {
  return store.ScalarInt(sql, args...).value_or(-1);
}

void CheckWeek(Store& store, int week) {
  SCOPED_TRACE("end of week " + std::to_string(week));
  const int64_t teams = Count(store, "SELECT count(*) FROM Team");
  if (week != 5) {
    EXPECT_EQ(Count(store,
                    "SELECT count(DISTINCT SchoolName) FROM Ranking WHERE TeamRanking BETWEEN 1 "
                    "AND 25"),
              25);
  }
  if (week >= 5) {
    EXPECT_EQ(Count(store, "SELECT count(*) FROM Team JOIN CRIRank USING (SchoolName)"), teams);
  }
  if (week != 5) {
    EXPECT_EQ(
        Count(store, "SELECT count(*) FROM AwardWinners WHERE Type = 'week' AND WeekNo = ?", week),
        1);
  }
}

TEST(SeasonRankings, EveryWeekHasItsPollIndexAndPlayerOfTheWeek) {
  testing::DynastyFixture d;
  Session& session = d.session();
  ASSERT_EQ(StartSeason(session), SeasonStart::kStarted);
  ResumeSeason(session);
  SeasonRun run(session);
  int week = session.config.CurrWeek;
  while (session.config.CurrWeek <= 15) {
    ASSERT_EQ(AutoSimDay(run), DayOutcome::kPlayed)
        << "week " << session.config.CurrWeek << " " << session.config.CurrDay;
    if (session.config.CurrWeek != week) CheckWeek(d.store(), week);
    week = session.config.CurrWeek;
  }
  Store& store = d.store();
  EXPECT_EQ(Count(store, "SELECT count(*) FROM NonConfSchedule WHERE Week <= 15 AND HomeScore = 0"),
            0);
  EXPECT_GT(Count(store, "SELECT count(*) FROM NonConfSchedule WHERE HomeScore > 0"), 100);
  std::set<int> positions;
  for (Rows r = store.Query("SELECT WeekNo FROM AwardWinners WHERE Type = 'FirstAA'"); r.Next();) {
    positions.insert(r.Int(0));
  }
  EXPECT_EQ(positions, (std::set<int>{1, 2, 3, 4, 5}));
  EXPECT_EQ(Count(store, "SELECT count(*) FROM AwardWinners WHERE Type = 'NationalPOY'"), 1);
  for (Rows r = store.Query("SELECT Conference FROM League WHERE SchedType <> ''"); r.Next();) {
    EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM AwardWinners WHERE Type = ?", r.Text(0)), 5)
        << r.Text(0);
  }
}

}  // namespace
}  // namespace courtmere
