// The scout's view: grade scales, error sizes, the scout who judges, reports
// and the statistics line of a recruit.
#include "people/grading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

#include "people/league_fixture.h"
#include "people/player_creation.h"
#include "people/recruit_report.h"
#include "platform/rng.h"

namespace courtmere {
namespace {

TEST(GradeScales, TestsAreStrictFromTheTop) {
  for (auto [value, grade] : std::vector<std::pair<double, char>>{{75, 'A'},
                                                                  {74.01, 'A'},
                                                                  {74, 'B'},
                                                                  {63, 'B'},
                                                                  {62, 'C'},
                                                                  {50, 'C'},
                                                                  {49, 'D'},
                                                                  {41, 'D'},
                                                                  {40, 'F'}}) {
    EXPECT_EQ(GradeLetter(value), grade) << value;
  }
  for (auto [value, grade] : std::vector<std::pair<int, char>>{
           {76, 'A'}, {75, 'B'}, {61, 'B'}, {60, 'C'}, {51, 'C'}, {50, 'D'}, {40, 'F'}}) {
    EXPECT_EQ(PotentialGradeLetter(value), grade) << value;
  }
}

TEST(ScoutSpread, ShrinksAsTheScoutGetsBetter) {
  const std::pair<int, int> table[] = {{100, 5}, {91, 5},  {90, 7},  {81, 7},  {80, 10}, {71, 10},
                                       {70, 13}, {61, 13}, {60, 15}, {51, 15}, {50, 18}, {41, 18},
                                       {40, 20}, {31, 20}, {30, 25}, {0, 25}};
  for (auto [skill, spread] : table) EXPECT_EQ(ScoutSpread(skill), spread) << skill;
}

void ExpectErrorRange(int skill, int most) {
  Rng rng(11);
  bool up = false, down = false;
  int widest = 0;
  for (int i = 0; i < 4000; ++i) {
    const double error = ScoutEstimate(rng, 60, ScoutSpread(skill)) - 60;
    ASSERT_GE(std::abs(error), 5) << skill;
    ASSERT_LE(std::abs(error), most) << skill;
    widest = std::max(widest, static_cast<int>(std::abs(error)));
    (error > 0 ? up : down) = true;
  }
  EXPECT_TRUE(up && down);
  EXPECT_EQ(widest, most);
}

TEST(ScoutEstimate, ErrsAtLeastFivePointsAndWithinTheSpread) {
  ExpectErrorRange(91, 9);
  ExpectErrorRange(30, 29);
  ExpectErrorRange(55, 19);
}

TEST(GradePlayer, RecruitsAreJudgedByTheUsersScoutAndNoScoutChangesNothing) {
  testing::LeagueFixture league;
  league.AddTeam("Home U", "West", 50, "Human");
  Player p;
  p.Team = "East";
  p.PlayerPosition = kSF;
  p.AthleticGrade = "Z";
  p.ScoutOverall = -1;
  GradePlayer(league.session(), p);
  EXPECT_EQ(p.AthleticGrade, "Z");
  EXPECT_EQ(p.ScoutOverall, -1);

  league.AddScout("Home U", 95);
  p.Jumpshot = p.InScoring = p.ThreePoint = p.PerrDefense = p.Quickness = 90;
  p.Strength = p.PostDefense = p.Handling = p.Passing = p.OffReb = p.DefReb = 90;
  p.Jumping = 90;
  p.Endurance = 2100;
  p.Potential = 95;
  GradePlayer(league.session(), p);
  // Every value is 80 or more; a scout of 95 errs by 5 to 9.
  EXPECT_EQ(p.ScoreGrade, "A");
  EXPECT_EQ(p.PotentialGrade, "A");
  EXPECT_GT(p.ScoutOverall, 70);
  EXPECT_LT(p.ScoutOverall, 110);
}

Player Reported(int position, int id, int value, const std::string& grade) {
  Player p;
  p.Id = id;
  p.Name = "Darnell Mack";
  p.PlayerPosition = position;
  p.Handling = p.Passing = p.ThreePoint = p.PerrDefense = p.Jumpshot = value;
  p.OffReb = p.DefReb = p.InScoring = p.PostDefense = value;
  p.HandlingGrade = p.PassingGrade = p.OutsideShootGrade = p.PerrDefenseGrade = grade;
  p.ShootingGrade = p.ReboundGrade = p.ScoreGrade = p.PostDefenseGrade = grade;
  return p;
}

struct ReportCase {
  int position;
  int id;  // k = id mod 4 picks the column; report 1
  const char* low;
  const char* high;
};

TEST(RecruitReport, EverySentenceWordForWord) {
  const ReportCase cases[] = {
      {kPG, 1, " It looks like we may have overrated Darnell's ability as a ball handler.",
       " National reports rate Darnell as a better ball handler than our scouts do."},
      {kPG, 4,
       " After speaking to other personnel people, we may have overestimated Darnell's ability "
       "as a passer.",
       " Darnell has a reputation of being a better passer than we expected."},
      {kC, 3,
       "After speaking to other personnel people about Darnell, we may have overestimated his "
       "ability as a passer.",
       " Darnell has a reputation of being a better passer than our rating suggests."},
      {kPG, 2, " Darnell has been disappointing from behind the arc thus far.",
       " Darnell has been hitting threes at a better clip than we expected."},
      {kSG, 3,
       " Darnell has had a tough time defensively and doesn't look as good we pegged him to be.",
       " Darnell has already shut down a few good players and may be a better defender than "
       "expected."},
      {kSG, 4, " Darnell looks like he may have digressed offensively since we last saw him.",
       " There is a consenus nationally that Darnell is a more dangerous scorer than we "
       "expected."},
      {kSF, 1, " It looks like we have overvalued Darnell's ability to rebound the ball.",
       " Darnell has hit the boards better than we thought and has a great work ethic."},
      {kPF, 1, " It looks like we have overvalued Darnell's ability to rebound the ball.",
       " Darnell has hit the boards better than we thought and has a great work ethic."},
      {kC, 1, "It looks like we may have overvalued Darnell's ability to rebound the ball.",
       " Darnell has hit the boards better than we thought and has a great work ethic."},
      {kPF, 2, " National reports have downgraded Darnell's ability to score inside.",
       " Darnell has shown some good moves around the basket and may be a better post scorer "
       "than we thought."},
      {kC, 2, "National reports have downgraded Darnell's ability to score inside.",
       " Darnell has shown some good moves around the basket and may be a better post scorer "
       "than we thought."},
      {kPF, 3, " Darnell hasn't developed into the post defender we thought he would.",
       " Darnell is beginning to develop a reputation as a more intimidating defender than we "
       "expected."},
  };
  Rng rng(5);
  for (const ReportCase& c : cases) {
    // A value of 0 against an "A" always reads low; 100 against an "F" high.
    EXPECT_EQ(RecruitReport(rng, Reported(c.position, c.id, 0, "A"), 1), c.low);
    EXPECT_EQ(RecruitReport(rng, Reported(c.position, c.id, 100, "F"), 1), c.high);
  }
  EXPECT_EQ(RecruitReport(rng, Reported(0, 1, 50, "C"), 1), "");
}

TEST(RecruitReport, ThreeReportsNeverRepeatATopic) {
  Rng rng(9);
  for (int position = kPG; position <= kC; ++position) {
    for (int id = 1; id <= 4; ++id) {
      const Player p = Reported(position, id, 100, "F");
      const std::string a = RecruitReport(rng, p, 1);
      const std::string b = RecruitReport(rng, p, 2);
      const std::string c = RecruitReport(rng, p, 3);
      EXPECT_NE(a, b);
      EXPECT_NE(b, c);
      EXPECT_NE(a, c);
      EXPECT_EQ(RecruitReport(rng, p, 7), c);  // later reports use the last row
    }
  }
}

TEST(RecruitReport, TheMarkOfTheGradeDecides) {
  Rng rng(2);
  int low = 0;
  const int draws = 2000;
  for (int i = 0; i < draws; ++i) {
    // Handling 80 against the mark 80 of "A": below only when the coin goes down.
    const std::string s = RecruitReport(rng, Reported(kPG, 1, 80, "A"), 1);
    if (s.find("overrated") != std::string::npos) ++low;
  }
  EXPECT_GT(low, draws * 0.4);
  EXPECT_LT(low, draws * 0.6);
}

// A weak player falls into every small case; a strong point guard is scaled.
TEST(RecruitStats, WeakPlayersFallIntoTheSmallCasesStrongOnesAreScaled) {
  Rng rng(4);
  Player weak;
  weak.PlayerPosition = kPG;
  weak.Intelligence = 40;
  Player strong = weak;
  strong.Passing = strong.Handling = 90;  // 90 - 50 = 40, up to 54, over 2.5
  strong.ThreePoint = strong.Jumpshot = 90;
  strong.Intelligence = 100;  // 70 / 9.5 is above 4
  for (int i = 0; i < 300; ++i) {
    Recruit r;
    RecruitStats(rng, weak, r);
    EXPECT_GE(r.PPG, 5);
    EXPECT_LT(r.PPG, 12);
    EXPECT_GE(r.APG, 1);
    EXPECT_LT(r.APG, 5);
    EXPECT_GE(r.RPG, 1);
    EXPECT_LT(r.RPG, 3);
    EXPECT_GE(r.SPG, 0);
    EXPECT_LT(r.SPG, 1.5);
    EXPECT_GE(r.GPA, 1.5);
    EXPECT_LT(r.GPA, 2.5);
    EXPECT_NEAR(r.TOs, 100.0 / 11, 10.0 / 11);
    Recruit s;
    RecruitStats(rng, strong, s);
    EXPECT_GE(s.APG, 40 / 2.5);
    EXPECT_LE(s.APG, 54 / 2.5);
    EXPECT_GE(s.PPG, 40);
    EXPECT_LE(s.PPG, 54);
    EXPECT_GE(s.GPA, 3.2);
    EXPECT_LT(s.GPA, 4.0);
  }
}

TEST(SetPlayerGPA, FollowsIntelligenceAndStaysWithinFour) {
  Rng rng(8);
  for (int i = 0; i < 200; ++i) {
    Player p;
    p.Intelligence = 100;  // 60 / 9.5 = 6.3 is sent back to 3.2 .. 4.0
    SetPlayerGPA(rng, p);
    EXPECT_GE(p.GPA, 3.2);
    EXPECT_LT(p.GPA, 4.0);
    p.Intelligence = 60;  // i = 20: the low formula
    SetPlayerGPA(rng, p);
    EXPECT_GE(p.GPA, 1.65);
    EXPECT_LT(p.GPA, 2.5);
    p.Intelligence = 70;
    SetPlayerGPA(rng, p);
    EXPECT_DOUBLE_EQ(p.GPA, 30 / 9.5);
  }
}

}  // namespace
}  // namespace courtmere
