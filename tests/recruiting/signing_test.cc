// Signing day and what leads to it: who stays in a recruit's running, the
// score of a bid, the two runs, the leftovers and the walk-ons, the academic
// test and the junior-college men's return, and the class ranks.
#include "recruiting/signing.h"

#include <gtest/gtest.h>

#include "league/class_ranks.h"
#include "platform/rng.h"
#include "recruiting/test_scores.h"
#include "recruiting_fixture.h"

namespace courtmere::testing {
namespace {

SigningSchool School(const char* name, double prestige, int left = 3, bool user = false,
                     const char* region = "East") {
  SigningSchool s;
  s.name = name;
  s.prestige = prestige;
  s.left = left;
  s.user = user;
  s.region = region;
  s.top = {0, 70, 70, 70, 70, 70};
  return s;
}

TEST(SigningRules, WhoStaysInTheRunningByClassAndPrestige) {
  SigningRecruit exc{1, 1, "Exc", "East", 0, "Duke", "", ""};
  SigningRecruit good = exc;
  good.recruitType = "Good";
  SigningRecruit average = exc;
  average.recruitType = "Average";
  EXPECT_TRUE(StaysInRunning(exc, School("Duke", 10)));
  EXPECT_FALSE(StaysInRunning(exc, School("Duke", 90, 0)));  // no scholarship left
  EXPECT_TRUE(StaysInRunning(exc, School("Iona", 10)));      // a computer team
  EXPECT_FALSE(StaysInRunning(exc, School("Iona", 59, 3, true)));
  EXPECT_TRUE(StaysInRunning(exc, School("Iona", 60, 3, true)));
  EXPECT_FALSE(StaysInRunning(good, School("Iona", 44, 3, true)));
  EXPECT_TRUE(StaysInRunning(good, School("Iona", 45, 3, true)));
  EXPECT_FALSE(StaysInRunning(average, School("Iona", 99)));
  EXPECT_TRUE(StaysInRunning(average, School("Duke", 1)));
}

TEST(SigningRules, TheScoreWeighsListPlaceHomeRegionAndPrestige) {
  SigningRecruit r{1, 2, "Good", "East", 70, "Duke", "Iona", "UCLA"};
  // 50 points - 70 at his position + 90 + 40.5 prestige = 110.5, to even.
  EXPECT_EQ(BidScore(r, School("Duke", 40.5), 50), 110);
  EXPECT_EQ(BidScore(r, School("Iona", 40), 50), 80);
  EXPECT_EQ(BidScore(r, School("UCLA", 40), 50), 50);
  EXPECT_EQ(BidScore(r, School("Rice", 40), 50), 20);
  // Homesick above 70 only: 15 up at home, 15 down away.
  r.homesick = 71;
  EXPECT_EQ(BidScore(r, School("Rice", 40), 50), 35);
  EXPECT_EQ(BidScore(r, School("Rice", 40, 3, false, "West"), 50), 5);  // 5, the floor
  EXPECT_EQ(BidScore(r, School("Rice", 0), 0), 5);
}

TEST(SigningRules, TheBestScoreSignsTheFewerPointsWinATieAndTheListIsTheFallback) {
  SigningRecruit r{1, 1, "Good", "East", 0, "Duke", "Iona", ""};
  std::vector<SigningSchool> schools = {School("Duke", 50), School("Iona", 80), School("Rice", 50)};
  // A bid of 200 beats a first choice: 200 - 70 + 50 = 180 against 170.
  EXPECT_EQ(ChooseSchool(r, {{"Duke", 100}, {"Rice", 200}}, schools)->name, "Rice");
  // Duke 100 - 70 + 90 + 50 = 170; Iona 110 - 70 + 60 + 80 = 180; equal
  // scores go to the first in the table, the one with fewer points.
  EXPECT_EQ(ChooseSchool(r, {{"Duke", 100}, {"Iona", 110}}, schools)->name, "Iona");
  EXPECT_EQ(ChooseSchool(r, {{"Duke", 110}, {"Iona", 100}}, schools)->name, "Duke");
  // An Average man drops a bidder off his list and goes to his first
  // school with room, bid or no bid.
  r.recruitType = "Average";
  schools[0].left = 0;
  EXPECT_EQ(ChooseSchool(r, {{"Rice", 500}}, schools)->name, "Iona");
  schools[1].left = 0;
  EXPECT_EQ(ChooseSchool(r, {{"Rice", 500}}, schools), nullptr);
}

class Signing : public RecruitingFixture {
 protected:
  // The pool's best eligible recruits, best first.
  std::vector<int> Best(int n) {
    std::vector<int> ids;
    for (Rows r = store().Query(
             "SELECT Recruit.Id FROM Recruit JOIN Player ON Player.Id = Recruit.Id WHERE "
             "InEligible = 0 ORDER BY Overall DESC, Recruit.Id LIMIT ?",
             n);
         r.Next();) {
      ids.push_back(r.Int(0));
    }
    return ids;
  }
  void Bid(const std::string& team, int recruit, int points, int scholarship) {
    store().Exec(
        "INSERT INTO RecruitDecision (Team, PlayerID, RecruitPoints, Scholarship) VALUES (?, ?, "
        "?, ?)",
        team, recruit, points, scholarship);
  }
  std::string Choice(int recruit) {
    return store().ScalarText("SELECT TeamChoice FROM Recruit WHERE Id = ?", recruit).value_or("");
  }
  std::string Computer(int n) {
    return *store().ScalarText(
        "SELECT SchoolName FROM Team WHERE Owner = 'Computer' ORDER BY rowid LIMIT 1 OFFSET ?", n);
  }
};

TEST_F(Signing, TheRunsSignScholarshipOffersFirstThenTheRestAndNeverPastTheScholarships) {
  store().Exec("DELETE FROM RecruitDecision");
  store().Exec("UPDATE Team SET Scholarships = 1");
  const std::vector<int> best = Best(3);
  const std::string x = Computer(0), y = Computer(1);
  // Good men who name nobody: every computer bidder stays.
  store().Exec("UPDATE Recruit SET RecruitType = 'Good', Team1 = 'a', Team2 = 'b', Team3 = 'c'");
  Bid(x, best[0], 10, 1);
  Bid(y, best[0], 900, 0);
  Bid(y, best[1], 900, 0);
  Bid(x, best[2], 900, 0);  // x's one scholarship is gone by then
  SignRecruits(session(), 1);
  EXPECT_EQ(Choice(best[0]), x);
  EXPECT_EQ(Choice(best[1]), "");
  SignRecruits(session(), 0);
  EXPECT_EQ(Choice(best[0]), x);  // never signed twice
  EXPECT_EQ(Choice(best[1]), y);
  EXPECT_NE(Choice(best[2]), x);
  EXPECT_NE(store()
                .ScalarText("SELECT ScoutingReport FROM Recruit WHERE Id = ?", best[1])
                ->find(" He has signed with " + y + "."),
            std::string::npos);
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Team WHERE (SELECT count(*) FROM Recruit "
                               "WHERE TeamChoice = SchoolName) > Scholarships"),
            0);
}

TEST_F(Signing, LeftoversGoToThePrestigiousAndADryPoolBringsWalkOns) {
  store().Exec("DELETE FROM RecruitDecision");
  store().Exec("UPDATE Team SET Scholarships = 0");
  const std::vector<int> best = Best(2);
  store().Exec("UPDATE Recruit SET InEligible = 99 WHERE Id NOT IN (?, ?)", best[0], best[1]);
  const std::string top =
      *store().ScalarText("SELECT SchoolName FROM Team ORDER BY Prestige DESC, rowid LIMIT 1");
  const std::string next = *store().ScalarText(
      "SELECT SchoolName FROM Team ORDER BY Prestige DESC, rowid LIMIT 1 OFFSET 1");
  store().Exec("UPDATE Team SET Scholarships = 1 WHERE SchoolName = ?", top);
  store().Exec("UPDATE Team SET Scholarships = 8 WHERE SchoolName = ?", next);
  const int64_t before = *store().ScalarInt("SELECT count(*) FROM Recruit");
  SignRecruits(session(), 0);
  EXPECT_EQ(Choice(best[0]), top);
  EXPECT_EQ(Choice(best[1]), next);
  // Seven places left at the second school, at most five walk-ons.
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Recruit"), before + 5);
  const std::string region =
      *store().ScalarText("SELECT Region FROM Team WHERE SchoolName = ?", next);
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Recruit WHERE TeamChoice = ? AND Region = ? "
                               "AND Id NOT IN (?, ?) AND ScoutingReport NOT LIKE '%has signed%'",
                               next, region, best[0], best[1]),
            5);
}

TEST_F(Signing, TheTestCutsAtFiftyAndTheFailedReturnAsJuniorCollegeMen) {
  const std::vector<int> men = Best(3);
  store().Exec("UPDATE Recruit SET GPA = 3 WHERE InEligible = 0");
  store().Exec("UPDATE Recruit SET GPA = 1.5 WHERE Id IN (?, ?, ?)", men[0], men[1], men[2]);
  store().Exec("UPDATE Player SET Intelligence = 10 WHERE Id = ?", men[0]);
  store().Exec("UPDATE Player SET Intelligence = 60 WHERE Id = ?", men[1]);
  store().Exec("UPDATE Player SET Intelligence = 15 WHERE Id = ?", men[2]);
  const int year = config().CurrYear;
  GiveRecruitTest(session());
  auto score = [&](int id) {
    return *store().ScalarInt("SELECT TestScore FROM Recruit WHERE Id = ?", id);
  };
  auto inEligible = [&](int id) {
    return *store().ScalarInt("SELECT InEligible FROM Recruit WHERE Id = ?", id);
  };
  EXPECT_EQ(score(men[0]), 10);  // 15 or below: no swing
  EXPECT_EQ(score(men[2]), 15);
  EXPECT_TRUE(score(men[1]) == 45 || score(men[1]) == 75);
  EXPECT_EQ(inEligible(men[0]), year + 2);
  EXPECT_EQ(inEligible(men[1]), score(men[1]) < 50 ? year + 2 : 0);
  EXPECT_NE(store()
                .ScalarText("SELECT ScoutingReport FROM Recruit WHERE Id = ?", men[0])
                ->find(" He failed to qualify academically for Division I schools."),
            std::string::npos);
  const std::vector<TestScoreRow> list = RecruitTestScores(session());
  ASSERT_EQ(list.size(), 3u);
  EXPECT_GE(list[0].Score, list[1].Score);
  EXPECT_EQ(list[2].Result, "Fail");
  EXPECT_EQ(session().inbox.Messages.back().Subject, "Recruit Test Scores");

  // A failed man in junior college comes back to the pool the year before
  // he may sign.
  store().Exec("UPDATE Player SET PlayerYear = 'JC' WHERE Id = ?", men[0]);
  store().Exec("UPDATE Recruit SET InEligible = ? WHERE Id = ?", year + 1, men[0]);
  store().Exec("UPDATE Team SET Scholarships = 0");
  SignRecruits(session(), 0);
  EXPECT_EQ(*store().ScalarText("SELECT PlayerYear FROM Player WHERE Id = ?", men[0]), "JCRecruit");
  EXPECT_EQ(Choice(men[0]), "");
}

TEST_F(Signing, ClassPointsAreTheFreshmensValuesOverTheirNumberPlusOne) {
  store().Exec("UPDATE Player SET PlayerYear = 'Junior' WHERE PlayerYear = 'Freshman' AND Team = ?",
               kUserSchool);
  const int one = *store().ScalarInt("SELECT Id FROM Player WHERE Team = ? LIMIT 1", kUserSchool);
  store().Exec(
      "UPDATE Player SET PlayerYear = 'Freshman', Redshirt = 0, Overall = 60, Potential = 60 "
      "WHERE Id = ?",
      one);
  RankRecruitClasses(session());
  // One freshman counts half of a value of 60 seen through the noise.
  const double points =
      *store().ScalarDouble("SELECT ClassPoints FROM Team WHERE SchoolName = ?", kUserSchool);
  EXPECT_GE(points, (60 - 0.5 * 19 - 0.5 * 14) / 2);
  EXPECT_LE(points, (60 + 0.5 * 19 + 0.5 * 14) / 2);
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Team WHERE ClassRank > 0"), 10);
  double last = 1e9;
  for (Rows r = store().Query("SELECT ClassPoints FROM Team WHERE ClassRank > 0 ORDER BY "
                              "ClassRank");
       r.Next();) {
    EXPECT_LE(r.Double(0), last);
    last = r.Double(0);
  }
  EXPECT_GE(last, *store().ScalarDouble("SELECT max(ClassPoints) FROM Team WHERE ClassRank = 0"));
}

}  // namespace
}  // namespace courtmere::testing
