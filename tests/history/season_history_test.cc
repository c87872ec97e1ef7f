// One whole season played and ended: what End Season leaves in the history
// tables holds together, and a failed end leaves nothing behind.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "history/coach_rank.h"
#include "history/dynasty_history.h"
#include "history/exports.h"
#include "history/record_groups.h"
#include "history/record_update.h"
#include "season/end_season.h"
#include "season/season_fixture.h"

namespace courtmere::testing {
namespace {

// The history steps, failing at the record books as a crash would.
class FailingHistory : public DynastyHistory {
 public:
  void UpdateRecords(Session&) override { throw std::runtime_error("killed"); }
};

class SeasonHistoryTest : public SeasonFixture {
 protected:
  void PlaySeason() {
    run().cpuSetsUserTeam = true;
    SimTo(21, "Monday");
    ASSERT_EQ(config().Stage, "Season Over");
  }
  int64_t Differences(const std::string& sql) {
    return Count("SELECT count(*) FROM (" + sql + ")");
  }
  size_t Lines(const std::filesystem::path& file) {
    std::ifstream in(file);
    size_t lines = 0;
    for (std::string line; std::getline(in, line);) ++lines;
    return lines;
  }
  DynastyHistory history_;
};

void ExpectNoSeasonMarkBelowItsBest(Store& store) {
  for (const RecordGroup& g : RecordGroups()) {
    if (g.career) continue;
    const std::string best = std::string("SELECT max(") + g.source +
                             ") FROM PlayerStats AS s, Player AS p, Team AS t WHERE s.Id = p.Id "
                             "AND p.Team = t.SchoolName AND ";
    for (Rows r = store.Query("SELECT SchoolName, Conference FROM Team"); r.Next();) {
      const RecordBook school = ReadRecordBook(store, r.Text(0));
      const RecordBook conference = ReadRecordBook(store, r.Text(1));
      const int i = static_cast<int>(&g - RecordGroups().data());
      const double own =
          store.ScalarDouble(best + "p.Team = ? " + g.qualifier, r.Text(0)).value_or(0);
      const double conf =
          store.ScalarDouble(best + "t.Conference = ? " + g.qualifier, r.Text(1)).value_or(0);
      EXPECT_GE(school.marks[i].value, own) << g.stem << " " << r.Text(0);
      EXPECT_GE(conference.marks[i].value, conf) << g.stem << " " << r.Text(1);
      EXPECT_GE(ReadRecordBook(store, "National").marks[i].value, conf) << g.stem;
    }
  }
}

TEST_F(SeasonHistoryTest, EndSeasonTurnsTheSeasonIntoHistoryOnce) {
  PlaySeason();
  // A kill inside the history steps leaves the season unended and no
  // career, school or record counted.
  FailingHistory failing;
  run().history = &failing;
  EXPECT_THROW(EndSeason(run()), std::runtime_error);
  EXPECT_EQ(*store().ScalarText("SELECT Stage FROM Config WHERE IdConfig = 0"), "Season Over");
  EXPECT_EQ(Count("SELECT count(*) FROM CareerPlayerStats"), 0);
  EXPECT_EQ(Count("SELECT count(*) FROM TeamHistory"), 0);
  EXPECT_EQ(Count("SELECT sum(OverallWins) FROM Team"), 0);

  run().history = &history_;
  ASSERT_EQ(EndSeason(run()), SeasonEnd::kEnded);

  // Careers are the season's lines, and the year lines its averages.
  EXPECT_GT(Count("SELECT count(*) FROM CareerPlayerStats"), 100);
  EXPECT_EQ(Differences("SELECT s.Id FROM PlayerStats AS s LEFT JOIN CareerPlayerStats AS c ON "
                        "c.Id = s.Id WHERE c.Id IS NULL OR c.Points <> s.Points OR c.Games <> "
                        "s.Games OR c.Fouls <> s.Fouls OR c.Shots <> s.Shots OR "
                        "abs(c.PPG - s.PPG) > 1e-9"),
            0);
  EXPECT_EQ(Differences("SELECT s.Id FROM PlayerStats AS s LEFT JOIN PlayerYearStats AS y ON "
                        "y.PlayerId = s.Id WHERE y.PlayerId IS NULL OR abs(y.RPG - s.RPG) > 1e-9 "
                        "OR y.Overall <= 0"),
            0);
  // Every school's all-time wins are the sum of its seasons.
  EXPECT_EQ(Differences("SELECT t.SchoolName FROM Team AS t, TeamStats AS s WHERE s.SchoolName = "
                        "t.SchoolName AND (t.OverallWins <> (SELECT sum(Wins) FROM TeamHistory "
                        "AS h WHERE h.SchoolName = t.SchoolName) OR t.OverallWins <> s.TotalWins "
                        "OR t.OverallGames <> s.TotalWins + s.TotalLosses)"),
            0);
  // Each NCT school's wins are counted once: a champion's six.
  EXPECT_EQ(
      Count("SELECT count(*) FROM Team WHERE NCTChamps = 1 AND NCTWins = 6 AND NCTLosses = 0") +
          Count("SELECT count(*) FROM ScrubTeam AS s, NCTTourney AS n WHERE n.SchoolName = "
                "s.SchoolName AND n.Seed = 71"),
      1);
  EXPECT_EQ(Count("SELECT sum(NCTApps) FROM Team"),
            Count("SELECT count(*) FROM NCTTourney AS n, Team AS t WHERE n.SchoolName = "
                  "t.SchoolName AND n.Seed BETWEEN 1 AND 16"));
  // The coach's year.
  EXPECT_EQ(Count("SELECT Seasons FROM HeadCoach"), 1);
  EXPECT_EQ(Differences("SELECT h.Year FROM CoachHistory AS h, TeamStats AS s WHERE s.SchoolName "
                        "= h.Team AND (h.Wins <> s.TotalWins OR h.ConfLosses <> s.ConfLosses OR "
                        "h.Summary = '')"),
            0);
  EXPECT_EQ(TopCoaches(store()).size(), 10u);
  ExpectNoSeasonMarkBelowItsBest(store());

  // The draft pools, the statistics and the roster.
  for (ReportKind kind :
       {ReportKind::kJsb, ReportKind::kFbb, ReportKind::kStats, ReportKind::kRoster}) {
    ASSERT_FALSE(ReportClosed(session(), kind));
    WriteReport(session(), kind, kUserSchool);
  }
  const std::filesystem::path reports = session().folder.Path("\\reports\\");
  const int year = config().CurrYear;
  const int64_t pool = Count("SELECT count(*) FROM Player WHERE NBAFlag = 1");
  const int64_t shotless = Count(
      "SELECT count(*) FROM Player AS p LEFT JOIN PlayerStats AS s ON s.Id = p.Id WHERE NBAFlag = "
      "1 AND coalesce(s.Shots, 0) = 0 AND p.Id NOT IN (SELECT Id FROM Recruit)");
  EXPECT_GT(pool, 0);
  EXPECT_EQ(Lines(reports / ("JSBdraftpool" + std::to_string(year) + ".csv")), pool - shotless + 2);
  EXPECT_EQ(Lines(reports / ("FBBdraftpool" + std::to_string(year) + ".txt")), pool + 2);
  EXPECT_TRUE(std::filesystem::exists(
      reports / (std::string(kUserSchool) + "stats" + std::to_string(year) + ".txt")));
  EXPECT_TRUE(std::filesystem::exists(
      reports / (std::string(kUserSchool) + "Roster" + std::to_string(year) + ".txt")));
  // The draft's list waits for the draft.
  EXPECT_TRUE(ReportClosed(session(), ReportKind::kDraft));
}

}  // namespace
}  // namespace courtmere::testing
