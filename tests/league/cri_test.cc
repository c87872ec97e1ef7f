// The rating index on a league whose games are laid by hand: the blend of a
// team's own record with its opponents' and their opponents', which games
// count, the background teams' estimates, and the ranks.
#include "league/cri.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "league/dynasty_fixture.h"
#include "league/selection_sort.h"

namespace courtmere {
namespace {

using testing::DynastyFixture;

// Figures of one CRIRank row.
struct CriRow {
  int CRIRank = 0;
  double CRIValue = -1;
  double WinPer = -1;
  double SchedStrength = -1;
  int SchedRank = 0;
};

class CriTest : public ::testing::Test {
 protected:
  // Every schedule emptied and every record at 0-0; A and B of one
  // conference, C of another.
  void SetUp() override {
    store().Exec("DELETE FROM NonConfSchedule");
    for (Rows r = store().Query("SELECT Id FROM League"); r.Next();) {
      store().Exec("DELETE FROM League" + std::to_string(r.Int(0)) + "Schedule");
    }
    store().Exec("UPDATE TeamStats SET TotalWins = 0, TotalLosses = 0");
    store().Exec("UPDATE ScrubTeam SET Wins = 0, Losses = 0");
    a_ = School("MVC", 0);
    b_ = School("MVC", 1);
    c_ = School("WAC", 0);
    mvcTable_ =
        "League" +
        std::to_string(*store().ScalarInt("SELECT Id FROM League WHERE Conference = 'MVC'")) +
        "Schedule";
  }
  Store& store() { return d_.store(); }
  std::string School(const std::string& conference, int nth) {
    return *store().ScalarText(
        "SELECT SchoolName FROM Team WHERE Conference = ? ORDER BY SchoolName LIMIT 1 OFFSET ?",
        conference, nth);
  }
  void Record(const std::string& school, int wins, int losses) {
    store().Exec("UPDATE TeamStats SET TotalWins = ?, TotalLosses = ? WHERE SchoolName = ?", wins,
                 losses, school);
  }
  void Game(const std::string& table, const std::string& home, const std::string& away, int week,
            int homeScore = 0) {
    store().Exec("INSERT INTO " + table +
                     " (GameNo, Week, GameDay, HomeTeam, AwayTeam, HomeScore, AwayScore) "
                     "VALUES (1, ?, 'Thursday', ?, ?, ?, 60)",
                 week, home, away, homeScore);
  }
  void Run(int week) {
    d_.session().config.CurrWeek = week;
    UpdateCRI(d_.session());
  }
  CriRow Row(const std::string& school) {
    CriRow row;
    Rows r = store().Query(
        "SELECT CRIRank, CRIValue, WinPer, SchedStrength, SchedRank FROM CRIRank "
        "WHERE SchoolName = ?",
        school);
    if (r.Next()) row = {r.Int(0), r.Double(1), r.Double(2), r.Double(3), r.Int(4)};
    return row;
  }
  std::string Background(int nth = 0) { return d_.Background(nth); }

  DynastyFixture d_;
  std::string a_, b_, c_, mvcTable_;
};

TEST_F(CriTest, BlendsOwnRecordWithOpponentsAndTheirOpponentsUpToThisWeek) {
  Record(a_, 3, 1);
  Record(b_, 1, 1);            // C stays 0-0: a win fraction of 0, not a division by zero
  Game(mvcTable_, a_, b_, 6);  // not played yet: it counts all the same
  Game("NonConfSchedule", c_, a_, 7, 71);
  Game("NonConfSchedule", b_, c_, 9);  // after this week: not yet
  Run(7);
  // Opponents' win fractions: A (C, B) 0.25, B (A) 0.75, C (A) 0.75; their
  // opponents' again: A 0.75, B 0.25, C 0.25.
  const CriRow a = Row(a_), b = Row(b_), c = Row(c_);
  EXPECT_DOUBLE_EQ(a.WinPer, 0.75);
  EXPECT_DOUBLE_EQ(c.WinPer, 0);
  EXPECT_DOUBLE_EQ(a.CRIValue, 0.5 * 0.25 + 0.25 * 0.75 + 0.25 * 0.75);
  EXPECT_DOUBLE_EQ(b.CRIValue, 0.5 * 0.75 + 0.25 * 0.5 + 0.25 * 0.25);
  EXPECT_DOUBLE_EQ(c.CRIValue, 0.5 * 0.75 + 0.25 * 0.25);
  EXPECT_DOUBLE_EQ(a.SchedStrength, 2 * 0.25 / 3 + 0.75 / 3);
  EXPECT_DOUBLE_EQ(b.SchedStrength, 2 * 0.75 / 3 + 0.25 / 3);
  // B's index is the best of the first division; the background teams, on
  // their estimates, stand between.
  EXPECT_LT(b.CRIRank, a.CRIRank);
  EXPECT_LT(a.CRIRank, c.CRIRank);
  EXPECT_LT(b.SchedRank, a.SchedRank);

  // A team with no game has nothing to blend.
  const CriRow idle = Row(School("WAC", 1));
  EXPECT_EQ(idle.CRIValue, 0);
  EXPECT_EQ(idle.SchedStrength, 0);

  // Two weeks on, B's game with C counts too: B meets C (0) and A (0.75),
  // C meets A and B, 0.625, and A still 0.25.
  Run(9);
  EXPECT_DOUBLE_EQ(Row(b_).CRIValue, 0.5 * 0.375 + 0.25 * 0.5 + 0.25 * (0.625 + 0.25) / 2);
}

TEST_F(CriTest, OnlyItsOwnConferencesTableCountsForATeam) {
  // A game of A's in the WAC's table is no game of A's.
  const std::string wacTable =
      "League" +
      std::to_string(*store().ScalarInt("SELECT Id FROM League WHERE Conference = 'WAC'")) +
      "Schedule";
  Record(c_, 2, 0);
  Game(wacTable, a_, c_, 3);
  Run(6);
  EXPECT_EQ(Row(a_).CRIValue, 0);
  EXPECT_DOUBLE_EQ(Row(c_).CRIValue, 0.25 * 1.0);
}

TEST_F(CriTest, ABackgroundTeamsIndexRestsOnItsEstimates) {
  struct Case {
    double prestige;
    int rating;
    double low;  // the band its two estimates are drawn from
  };
  // Q = 0.45 * Prestige + 0.55 * (TeamRating - 400)
  const std::vector<Case> cases = {{60, 500, 0.48}, {50, 450, 0.46}, {40, 420, 0.44}};
  for (size_t i = 0; i < cases.size(); ++i) {
    store().Exec("UPDATE ScrubTeam SET Prestige = ?, TeamRating = ? WHERE SchoolName = ?",
                 cases[i].prestige, cases[i].rating, Background(static_cast<int>(i)));
  }
  store().Exec("UPDATE ScrubTeam SET Wins = 3, Losses = 1 WHERE SchoolName = ?", Background(2));
  Run(6);
  for (size_t i = 0; i < cases.size(); ++i) {
    const CriRow row = Row(Background(static_cast<int>(i)));
    // Without games the schedule strength is 2/3 and 1/3 of the estimates,
    // the index half and a quarter of them plus a quarter of the record:
    // 4 * CRI = 3 * SchedStrength + WinPer.
    EXPECT_NEAR(4 * row.CRIValue, 3 * row.SchedStrength + row.WinPer, 1e-12) << i;
    EXPECT_GE(row.SchedStrength, cases[i].low) << i;
    EXPECT_LT(row.SchedStrength, cases[i].low + 0.03) << i;
  }
  EXPECT_DOUBLE_EQ(Row(Background(2)).WinPer, 0.75);

  // A game moves its schedule strength, on top of the estimates, but not its
  // index.
  const CriRow before = Row(Background(0));
  Record(a_, 1, 0);
  Game("NonConfSchedule", a_, Background(0), 2);
  Run(6);
  const CriRow after = Row(Background(0));
  EXPECT_GT(after.SchedStrength, before.SchedStrength);
  // The estimates are drawn anew each run, from the same band.
  EXPECT_GE(after.CRIValue, 0.5 * 0.48 + 0.25 * 0.48);
  EXPECT_LT(after.CRIValue, 0.5 * 0.51 + 0.25 * 0.51);
  // A's opponent is 0-0: A's OppWin is 0. The background team's OppWin is
  // its estimate with A's 1.0 added over one game, and that is A's
  // OppOppWin.
  const CriRow a = Row(a_);
  const double oppOppWin = a.SchedStrength * 3;
  EXPECT_GE(oppOppWin, 1.48);
  EXPECT_LT(oppOppWin, 1.51);
  EXPECT_DOUBLE_EQ(a.CRIValue, 0.25 * 1.0 + 0.25 * oppOppWin);
}

TEST_F(CriTest, RewritesOneRowPerSchoolRankedByIndexAndBySchedule) {
  store().Exec("INSERT INTO CRIRank (SchoolName, CRIRank) VALUES ('Gone U', 1)");
  Run(5);
  const int64_t schools = *store().ScalarInt("SELECT count(*) FROM Team") +
                          *store().ScalarInt("SELECT count(*) FROM ScrubTeam");
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM CRIRank"), schools);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM CRIRank WHERE SchoolName = 'Gone U'"), 0);
  EXPECT_EQ(store().ScalarInt("SELECT count(DISTINCT CRIRank) FROM CRIRank"), schools);
  EXPECT_EQ(store().ScalarInt("SELECT count(DISTINCT SchedRank) FROM CRIRank"), schools);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM CRIRank a JOIN CRIRank b ON a.CRIRank < "
                              "b.CRIRank AND a.CRIValue < b.CRIValue"),
            0);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM CRIRank a JOIN CRIRank b ON a.SchedRank < "
                              "b.SchedRank AND a.SchedStrength < b.SchedStrength"),
            0);
}

TEST(SelectionSort, AnEqualKeyDoesNotDisplaceButSwapsMoveTheRest) {
  struct R {
    int key;
    char name;
  };
  std::vector<R> rows = {{2, 'a'}, {1, 'b'}, {2, 'c'}, {3, 'd'}};
  SelectionSortDescending(rows, [](const R& r) { return r.key; });
  std::string order;
  for (const R& r : rows) order += r.name;
  // d is swapped into first place, sending a behind c; c, found first among
  // the equal ones, keeps second place.
  EXPECT_EQ(order, "dcab");

  rows = {{2, 'a'}, {2, 'b'}, {1, 'c'}};
  SelectionSortDescending(rows, [](const R& r) { return r.key; });
  order.clear();
  for (const R& r : rows) order += r.name;
  EXPECT_EQ(order, "abc");
}

}  // namespace
}  // namespace courtmere
