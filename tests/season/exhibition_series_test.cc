// A series of exhibition games plays through its injuries: the lineup pass
// rebuilds a chart that an injury cleared and the injured heal every second
// game; a school left without enough fit men ends the series with the
// engine's message, the games before it recorded.
#include "season/exhibition_series.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "engine/engine_fixture.h"

namespace courtmere::testing {
namespace {

constexpr const char* kChart[15] = {"PG1", "SG1", "SF1", "PF1", "C1",  "PG2", "SG2", "SF2",
                                    "PF2", "C2",  "PG3", "SG3", "SF3", "PF3", "C3"};

std::set<int> Injured(Store& store, const std::string& school) {
  std::set<int> ids;
  for (Rows rows = store.Query("SELECT Id FROM Player WHERE Team = ? AND Health <> 'Good'", school);
       rows.Next();) {
    ids.insert(rows.Int(0));
  }
  return ids;
}

int FitMen(Store& store, const std::string& school) {
  return static_cast<int>(
      *store.ScalarInt("SELECT count(*) FROM Player WHERE Team = ? AND Health = 'Good'", school));
}

int GamesRecorded(Store& store, const std::string& school) {
  return static_cast<int>(*store.ScalarInt(
      "SELECT TotalWins + TotalLosses FROM TeamStats WHERE SchoolName = ?", school));
}

// A chart that names a man who is not fit has been cleared (PG1 = 0), so
// that the next lineup pass builds a new one from the healthy men.
void ExpectUnfitMenOnlyInClearedCharts(Store& store, const std::string& school) {
  const std::set<int> injured = Injured(store, school);
  if (store.ScalarInt("SELECT PG1 FROM Team WHERE SchoolName = ?", school) == 0) return;
  for (const char* column : kChart) {
    const auto id = store.ScalarInt(
        std::string("SELECT ") + column + " FROM Team WHERE SchoolName = ?", school);
    EXPECT_EQ(injured.count(static_cast<int>(*id)), 0u) << school << " " << column;
  }
}

// Rosters of ten, one of them inactive each game, with men who get hurt
// easily: without the weekly healing three injuries would leave a school
// without the eight fit men a chart needs.
TEST(ExhibitionSeries, ALongSeriesOfSmallRostersPlaysThroughItsInjuries) {
  EngineFixture fixture(17, 10);
  Store& store = fixture.store();
  store.Exec("UPDATE Player SET AvoidInjury = 20");
  const ExhibitionSeries series{kHomeSchool, kAwaySchool, 600, false};
  std::map<std::string, std::set<int>> known;
  std::map<std::string, int> injuries;
  const int played = PlayExhibitionSeries(fixture.session(), series, [&](const SeriesGame& g) {
    for (const char* school : {kHomeSchool, kAwaySchool}) {
      ExpectUnfitMenOnlyInClearedCharts(store, school);
      const std::set<int> now = Injured(store, school);
      for (int id : now) injuries[school] += known[school].count(id) == 0 ? 1 : 0;
      known[school] = now;
    }
    EXPECT_FALSE(g.boxFile.empty());
    EXPECT_EQ(g.logFile, "none");
  });
  EXPECT_EQ(played, 600) << (fixture.ui().Messages().empty() ? "" : fixture.ui().Messages().back());
  EXPECT_TRUE(fixture.ui().Messages().empty());
  for (const char* school : {kHomeSchool, kAwaySchool}) {
    EXPECT_GT(injuries[school], 10 - 8) << school;
    EXPECT_EQ(GamesRecorded(store, school), 600);
  }
  EXPECT_EQ(store.ScalarInt("SELECT MaxGameNo FROM Config WHERE IdConfig = 0"), 600);
}

// Eight men are just enough for a chart; the first injury that is still
// open at the next game leaves a school unable to play.
TEST(ExhibitionSeries, ASchoolThatCannotFieldATeamEndsTheSeriesWithTheEnginesMessage) {
  EngineFixture fixture(23, 8);
  Store& store = fixture.store();
  store.Exec("UPDATE Player SET AvoidInjury = 20");
  const ExhibitionSeries series{kHomeSchool, kAwaySchool, 500, false};
  int seen = 0;
  const int played =
      PlayExhibitionSeries(fixture.session(), series, [&](const SeriesGame&) { ++seen; });
  ASSERT_LT(played, 500);
  EXPECT_EQ(seen, played);
  ASSERT_EQ(fixture.ui().Messages().size(), 1u);
  const std::string& message = fixture.ui().Messages().back();
  const std::string school =
      message.find(kHomeSchool) != std::string::npos ? kHomeSchool : kAwaySchool;
  EXPECT_EQ(message,
            "Please set the depth chart for " + school + " before trying to sim this game.");
  EXPECT_LT(FitMen(store, school), 8);
  for (const char* side : {kHomeSchool, kAwaySchool}) EXPECT_EQ(GamesRecorded(store, side), played);
}

}  // namespace
}  // namespace courtmere::testing
