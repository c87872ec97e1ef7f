// The recruit pool: whom a recruit lists, and how the magazines rank him.
#include "people/recruit_pool.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "people/league_fixture.h"
#include "people/player_creation.h"
#include "platform/rng.h"

namespace courtmere {
namespace {

// Sixty schools by prestige, 90 down to 31. Ten stand near a recruit from
// Wichita: six in Kansas, four more in its area; all ten in the Midwest.
std::vector<InterestSchool> Table() {
  const std::set<int> inState = {10, 20, 30, 40, 45, 50};
  const std::set<int> inArea = {12, 25, 35, 55};
  std::vector<InterestSchool> schools;
  for (int i = 0; i < 60; ++i) {
    InterestSchool s{"School " + std::to_string(i), "CA", "SCAL", "West", 90.0 - i};
    if (inState.count(i)) s = {s.SchoolName, "KS", "KS", "Midwest", s.Prestige};
    if (inArea.count(i)) s = {s.SchoolName, "MO", "KS", "Midwest", s.Prestige};
    schools.push_back(s);
  }
  return schools;
}

struct Listed {
  std::vector<std::string> schools;
};

Listed Draw(Rng& rng, const std::vector<InterestSchool>& table, int homesick, int winner,
            double overall, const std::string& home, const std::string& area,
            const std::string& region) {
  Player p;
  p.Homesick = homesick;
  p.PlayWinner = winner;
  p.Overall = overall;
  p.HomeTown = home;
  Recruit r;
  r.Area = area;
  r.Region = region;
  SetRecruitInterest(rng, table, r, p);
  return {{r.Team1, r.Team2, r.Team3}};
}

int IndexOf(const std::string& school) {
  return std::stoi(school.substr(7));
}

// A homesick recruit lists schools near home; one who wants to win lists
// the powers.
TEST(RecruitInterest, HomesicknessAndTheWishToWinPickTheSchools) {
  Rng rng(11);
  const auto table = Table();
  int near = 0, sum = 0, top30 = 0, all = 0;
  for (int i = 0; i < 200; ++i) {
    const Listed homesick = Draw(rng, table, 90, 20, 50, "Wichita,KS", "KS", "Midwest");
    const Listed winner = Draw(rng, table, 50, 90, 60, "Macon,GA", "GA", "South");
    for (int k = 0; k < 3; ++k) {
      near += table[IndexOf(homesick.schools[k])].Area == "KS" ? 1 : 0;
      sum += IndexOf(winner.schools[k]);
      top30 += IndexOf(winner.schools[k]) < 30 ? 1 : 0;
      ++all;
    }
  }
  EXPECT_GE(near, all * 98 / 100);
  EXPECT_LT(static_cast<double>(sum) / all, 12);
  EXPECT_GE(top30, all * 95 / 100);
}

TEST(RecruitInterest, EveryListHasThreeDifferentSchools) {
  Rng rng(13);
  const auto table = Table();
  for (int i = 0; i < 300; ++i) {
    const Listed l =
        Draw(rng, table, rng.Roll(100), rng.Roll(100), rng.Roll(100),
             i % 2 ? "Wichita,KS" : "Fresno,CA", i % 2 ? "KS" : "NCAL", i % 3 ? "West" : "Midwest");
    const std::set<std::string> distinct(l.schools.begin(), l.schools.end());
    EXPECT_EQ(distinct.size(), 3u);
    EXPECT_EQ(distinct.count(""), 0u);
  }
  // Only two schools: the list holds both and ends.
  const std::vector<InterestSchool> two(table.begin(), table.begin() + 2);
  const Listed l = Draw(rng, two, 10, 10, 40, "Fresno,CA", "NCAL", "South");
  EXPECT_EQ(std::set<std::string>(l.schools.begin(), l.schools.end()),
            (std::set<std::string>{"School 0", "School 1", ""}));
}

TEST(RecruitRanks, EligibleRecruitsGetNoisyPointsAndTheirRanks) {
  testing::LeagueFixture league(4);
  Store::Transaction tx(league.store());
  for (int i = 0; i < 20; ++i) league.AddTeam("Team " + std::to_string(i), "West", 30 + 3 * i);
  PlayerBatch batch = PlayerBatch::Begin(league.session());
  batch.recruitInterest = RecruitInterestFromStore();
  CreatePlayers(league.session(), batch, "West", "West", 60, 90, 0, 18);
  batch.Save(league.session());
  Store& s = league.store();
  s.Exec("UPDATE Recruit SET InEligible = 1 WHERE Id = 1");
  s.Exec("UPDATE Recruit SET InEligible = 2001 WHERE Id = 2");
  RankRecruitPool(league.session());
  tx.Commit();

  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Recruit WHERE Team1 = '' OR Team3 = ''"), 0);
  EXPECT_EQ(s.ScalarInt("SELECT PosRank + Top50Rank + RankPoints FROM Recruit WHERE Id = 1"), 0);
  for (Rows rows = s.Query("SELECT Overall, Potential, RankPoints FROM Recruit JOIN Player USING "
                           "(Id) WHERE Id > 1");
       rows.Next();) {
    const double middle = (rows.Double(0) + rows.Int(1)) / 2;
    EXPECT_LE(std::abs(rows.Double(2) - middle), 16.505);  // and the rounding
    EXPECT_DOUBLE_EQ(rows.Double(2), std::round(rows.Double(2) * 100) / 100);
  }
  for (int position = 1; position <= 5; ++position) {
    std::vector<int> ranks;
    for (Rows rows = s.Query(
             "SELECT PosRank FROM Recruit JOIN Player USING (Id) WHERE PlayerPosition = ? AND "
             "PosRank > 0 ORDER BY RankPoints DESC",
             position);
         rows.Next();) {
      ranks.push_back(rows.Int(0));
    }
    ASSERT_EQ(ranks.size(), 15u) << position;
    for (int i = 0; i < 15; ++i) EXPECT_EQ(ranks[i], i + 1);
  }
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Recruit WHERE Top50Rank > 0"), 50);
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Recruit a JOIN Recruit b ON a.Top50Rank > 0 AND "
                        "b.Top50Rank > a.Top50Rank AND b.RankPoints > a.RankPoints"),
            0);
}

}  // namespace
}  // namespace courtmere
