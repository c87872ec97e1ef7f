// The job list's bounds and top-ten exclusion, the fired coach's three
// schools, taking a job with its resets and its failure, and the headless
// coach's policies.
#include <gtest/gtest.h>

#include "career/coach_policy.h"
#include "career/fire_head_coach.h"
#include "career/job_list.h"
#include "career/take_job.h"
#include "career_fixture.h"

namespace courtmere {
namespace {

std::string Schools(const std::vector<JobOffer>& offers) {
  std::string names;
  for (const JobOffer& o : offers) names += o.School + ";";
  return names;
}

// Schools from prestige 5 to 85, the user at Tulsa (50).
struct JobMarket : ::testing::Test {
  JobMarket() {
    for (auto [school, prestige] : {std::pair("Ames", 5.0),
                                    {"Bates", 8.0},
                                    {"Cole", 9.0},
                                    {"Tulsa", 50.0},
                                    {"Rice", 55.0},
                                    {"Iowa", 60.4},
                                    {"Utah", 61.0},
                                    {"Duke", 85.0}}) {
      f.AddSchool(school, prestige);
    }
    f.HireUser("Tulsa", 4);
    f.session().config.Stage = kStageNbaDraft;
    f.session().config.CurrYear = 2005;
  }
  testing::CareerFixture f;
};

TEST_F(JobMarket, TakesSchoolsBelowTheRatingAndAtMostTenAboveHisOwn) {
  f.SetCareer("Rating = 80.4");
  // Prestige below 61 (50 + 11) and below 80: Utah at 61 is out.
  EXPECT_EQ(Schools(LoadJobList(f.store())), "Iowa;Rice;Cole;Bates;Ames;");
  f.SetCareer("Rating = 55");
  EXPECT_EQ(Schools(LoadJobList(f.store())), "Cole;Bates;Ames;");
  f.store().Exec("UPDATE Ranking SET CoachRank = 10 WHERE SchoolName = 'Bates'");
  f.store().Exec("UPDATE Ranking SET CoachRank = 1 WHERE SchoolName = 'Cole'");
  EXPECT_EQ(Schools(LoadJobList(f.store())), "Ames;");
  const JobOffer ames = LoadJobList(f.store())[0];
  EXPECT_EQ(ames.Prestige, "Very Low");
  EXPECT_EQ(ames.Expectations, 7);
  EXPECT_EQ(ames.WinPct, "");
  f.store().Exec("UPDATE Team SET OverallWins = 2, OverallGames = 3 WHERE SchoolName = 'Ames'");
  EXPECT_EQ(LoadJobList(f.store())[0].WinPct, ".667");
  f.SetCareer("Rating = 4");
  EXPECT_TRUE(LoadJobList(f.store()).empty());  // no offer, and not fired
}

TEST_F(JobMarket, AFiredCoachFindsSchoolsBelowElevenOrTheThreeLowest) {
  f.SetCareer("Rating = 70");
  FireHeadCoach(f.session(), "Tulsa");
  EXPECT_EQ(Schools(LoadJobList(f.store())), "Cole;Bates;Ames;");
  f.SetCareer("Rating = 3");
  f.store().Exec("UPDATE Team SET Prestige = 1 WHERE SchoolName = 'Tulsa'");
  const std::vector<JobOffer> lowest = LoadJobList(f.store());
  EXPECT_EQ(Schools(lowest), "Ames;Bates;Cole;");  // not Tulsa, which fired him
  EXPECT_EQ(lowest[2].Prestige, "Low");
  EXPECT_EQ(lowest[2].Expectation, "Win a few games");
  EXPECT_EQ(lowest[2].Expectations, 5);
}

TEST_F(JobMarket, TakingAJobMovesTheUserAndClearsHisNegativeHistory) {
  f.SetCareer("Rating = -3, PrestigeChange = -4, Strikes = 2, Wins = 70, Losses = 40, Seasons = 4");
  FireHeadCoach(f.session(), "Tulsa");
  const std::vector<JobOffer> offers = LoadJobList(f.store());
  ASSERT_EQ(Schools(offers), "Ames;Bates;Cole;");
  f.ui().QueueAnswer(false);
  EXPECT_FALSE(TakeJob(f.session(), offers[2]));
  EXPECT_EQ(f.Career().Team, "Fired-Tulsa");

  ASSERT_TRUE(TakeJob(f.session(), offers[2]));
  EXPECT_EQ(f.ui().Questions().back(), "Are you sure you wish to switch jobs and join Cole?");
  EXPECT_EQ(f.ui().Messages().back(), "Congratulations, you are the new head coach of Cole");
  const CareerRow c = f.Career();
  EXPECT_EQ(c.Team, "Cole");
  EXPECT_EQ(c.Rating, 0);
  EXPECT_EQ(c.PrestigeChange, 0);
  EXPECT_EQ(c.Strikes, 0);
  EXPECT_EQ(c.Expectations, 5);
  EXPECT_EQ(c.Wins, 70);
  EXPECT_EQ(c.Seasons, 4);
  EXPECT_EQ(f.store().ScalarText("SELECT group_concat(SchoolName) FROM Team WHERE Owner = "
                                 "'Human'"),
            "Cole");
  EXPECT_EQ(f.session().humanScheduleTable, "League7Schedule");
  EXPECT_EQ(JobListClosed(f.session()), "You have already changed jobs this year.");
}

TEST_F(JobMarket, AFailedMoveLeavesTheStoreAsItWas) {
  f.SetCareer("Rating = 80");
  f.store().Exec("UPDATE Team SET Conference = 'Lost' WHERE SchoolName = 'Rice'");
  const std::vector<JobOffer> offers = LoadJobList(f.store());
  ASSERT_EQ(offers[1].School, "Rice");
  EXPECT_FALSE(TakeJob(f.session(), offers[1]));
  EXPECT_EQ(f.ui().Messages().back(),
            "There was an error in the Apply Routine with the League Schedule. Please exit the "
            "game and contact the developers of Courtmere.");
  EXPECT_EQ(f.Career().Team, "Tulsa");
  EXPECT_EQ(f.store().ScalarText("SELECT Owner FROM Team WHERE SchoolName = 'Tulsa'"), "Human");
  EXPECT_EQ(f.store().ScalarText("SELECT Owner FROM Team WHERE SchoolName = 'Rice'"), "Computer");
}

TEST_F(JobMarket, TheListOpensOnlyAfterTheDraft) {
  f.session().config.Stage = kStageBeginOffSeason;
  EXPECT_TRUE(JobListClosed(f.session()).has_value());
  f.session().config.Stage = kStageNbaDraft;
  EXPECT_FALSE(JobListClosed(f.session()).has_value());
}

TEST_F(JobMarket, PoliciesStayOrClimb) {
  f.SetCareer("Rating = 80");
  EXPECT_FALSE(ApplyCoachPolicy(f.session(), CoachPolicy::kStay));
  EXPECT_TRUE(ApplyCoachPolicy(f.session(), CoachPolicy::kClimb));
  EXPECT_EQ(f.Career().Team, "Iowa");
  EXPECT_FALSE(ApplyCoachPolicy(f.session(), CoachPolicy::kClimb));  // once a year

  f.session().config.CurrYear = 2006;
  f.SetCareer("Rating = 55");  // only schools below his own offer
  EXPECT_FALSE(ApplyCoachPolicy(f.session(), CoachPolicy::kClimb));
  FireHeadCoach(f.session(), "Iowa");
  EXPECT_TRUE(ApplyCoachPolicy(f.session(), CoachPolicy::kStay));
  EXPECT_EQ(f.Career().Team, "Cole");
}

}  // namespace
}  // namespace courtmere
