// Careers and year lines over two seasons of a small store made by hand.
#include "history/career_stats.h"

#include "hand_made_store.h"

namespace courtmere::testing {
namespace {

class CareerStats : public HandMadeStore {
 protected:
  CareerStats() { AddSchool("Duke", "ACC"); }
};

TEST_F(CareerStats, ACareerIsTheSumOfItsSeasonsWithAveragesOnTheTotals) {
  const int star = AddPlayer("Star", "Duke");
  const int bench = AddPlayer("Bench", "Duke");
  SetSeason(star, {{"Games", 30},
                   {"Points", 600},
                   {"Shots", 400},
                   {"ShotsMade", 200},
                   {"Fouls", 50},
                   {"PlusMinus", 40},
                   {"PPG", 20}});
  SetSeason(bench, {});
  SaveCareerStats(store(), 2002);
  SetSeason(star, {{"Games", 10},
                   {"Points", 100},
                   {"Shots", 100},
                   {"ShotsMade", 25},
                   {"Fouls", 5},
                   {"PlusMinus", -10},
                   {"PPG", 10}});
  SaveCareerStats(store(), 2003);

  Rows r = store().Query(
      "SELECT Games, Points, Shots, ShotsMade, Fouls, PlusMinus, PPG, FGPercent FROM "
      "CareerPlayerStats WHERE Id = ?",
      star);
  ASSERT_TRUE(r.Next());
  EXPECT_EQ(r.Int(0), 40);
  EXPECT_EQ(r.Int(1), 700);
  EXPECT_EQ(r.Int(2), 500);
  EXPECT_EQ(r.Int(3), 225);
  EXPECT_EQ(r.Int(4), 55);
  EXPECT_EQ(r.Int(5), 30);
  EXPECT_DOUBLE_EQ(r.Double(6), 17.5);
  EXPECT_DOUBLE_EQ(r.Double(7), 0.45);
  EXPECT_EQ(*store().ScalarText("SELECT group_concat(Year || ':' || PPG, ' ') FROM (SELECT Year, "
                                "PPG FROM PlayerYearStats WHERE PlayerId = ? ORDER BY Year)",
                                star),
            "2002:20.0 2003:10.0");
  // A man with no game keeps a career row with zero averages.
  EXPECT_EQ(Count("SELECT count(*) FROM CareerPlayerStats WHERE Id = " + std::to_string(bench) +
                  " AND Games = 0 AND PPG = 0 AND FGPercent = 0"),
            1);
}

}  // namespace
}  // namespace courtmere::testing
