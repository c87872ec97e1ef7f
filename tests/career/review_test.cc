// The board's review: the rating and its cap, the strikes, the firing limits
// by expectations, the letters, and the review screen's fields.
#include <gtest/gtest.h>

#include "career/head_coach_review.h"
#include "career_fixture.h"
#include "screens/coach_review.h"

namespace courtmere {
namespace {

TEST(CoachRating, WeighsTheCareerAndIsCappedAt100WithNoFloor) {
  CareerRow c;
  c.Seasons = 4;
  c.Wins = 90;
  c.Losses = 30;
  c.NCTApps = 2;
  c.NCTWins = 3;
  c.NCTChamps = 1;
  c.ConfChamps = 2;
  c.FirstRound = 1;
  c.PrestigeChange = 1.5;
  // 0.75 x 45 + 2/4 x 10 + 1/4 x 35 + 2/4 x 20 + 5 + 7.5, then 3/2 x 5.
  EXPECT_DOUBLE_EQ(CoachRatingOf(c), 33.75 + 5 + 8.75 + 10 + 5 + 7.5 + 7.5);
  c.NCTApps = 0;  // no tournament share without an appearance
  EXPECT_DOUBLE_EQ(CoachRatingOf(c), 33.75 + 8.75 + 10 + 5 + 7.5);
  c.FirstRound = 20;
  EXPECT_DOUBLE_EQ(CoachRatingOf(c), 100);
  c.FirstRound = 0;
  c.PrestigeChange = -30;
  EXPECT_LT(CoachRatingOf(c), 0);
}

TEST(Strikes, ComeWithAFallAndGoAboveTwo) {
  EXPECT_EQ(StrikesAfter(1, -0.01), 2);
  EXPECT_EQ(StrikesAfter(1, 0), 1);
  EXPECT_EQ(StrikesAfter(1, 2), 1);
  EXPECT_EQ(StrikesAfter(1, 2.01), 0);
  EXPECT_EQ(StrikesAfter(0, 5), 0);
}

TEST(Strikes, FireByTheSchoolsExpectations) {
  EXPECT_FALSE(BoardFires(1, 2));
  EXPECT_TRUE(BoardFires(1, 3));
  EXPECT_FALSE(BoardFires(2, 3));
  EXPECT_TRUE(BoardFires(2, 4));
  for (int e = 3; e <= 7; ++e) {
    EXPECT_FALSE(BoardFires(e, 4)) << e;
    EXPECT_TRUE(BoardFires(e, 5)) << e;
  }
}

TEST(ReviewHeadCoach, FiresAnEliteCoachAtHisThirdStrike) {
  testing::CareerFixture f;
  f.AddSchool("Duke", 80);
  f.HireUser("Duke", 1);
  f.SetCareer("Seasons = 3, Wins = 60, Losses = 30, Strikes = 2, PrestigeChange = -1.5");
  ReviewHeadCoach(f.session());
  const CareerRow c = f.Career();
  EXPECT_EQ(c.Strikes, 3);
  EXPECT_DOUBLE_EQ(c.Rating, 30 - 7.5);
  EXPECT_EQ(c.Team, "Fired-Duke");
  EXPECT_EQ(f.store().ScalarText("SELECT Owner FROM Team WHERE SchoolName = 'Duke'"), "Computer");
  EXPECT_EQ(f.Subjects(), "You've Been Fired!;");
  EXPECT_EQ(f.session().inbox.Messages[0].Sender, "Athletic Director");
  EXPECT_NE(f.session().inbox.Messages[0].Text.find(" The Atheltic Director of Duke has decided"),
            std::string::npos);
}

TEST(ReviewHeadCoach, KeepsACoachWithinHisLimitAndTellsHimOfInterest) {
  testing::CareerFixture f;
  f.AddSchool("Tulsa", 45);
  f.HireUser("Tulsa", 5);
  f.SetCareer("Seasons = 3, Wins = 30, Losses = 60, Strikes = 4, PrestigeChange = -2");
  ReviewHeadCoach(f.session());
  EXPECT_EQ(f.Career().Strikes, 5);
  EXPECT_EQ(f.Career().Team, "Fired-Tulsa");

  testing::CareerFixture g;
  g.AddSchool("Duke", 80);
  g.HireUser("Duke", 2);
  g.SetCareer("Seasons = 2, Wins = 40, Losses = 20, Strikes = 3, PrestigeChange = 0");
  ReviewHeadCoach(g.session());
  EXPECT_EQ(g.Career().Team, "Duke");
  EXPECT_EQ(g.Career().Strikes, 3);
  EXPECT_EQ(g.Subjects(), "Check School Interest;");
}

TEST(ReviewHeadCoach, WorksOutNothingBeforeTheFirstSeason) {
  testing::CareerFixture f;
  f.AddSchool("Duke", 80);
  f.HireUser("Duke", 1);
  f.SetCareer("Rating = 12.5, Strikes = 1, PrestigeChange = -9");
  ReviewHeadCoach(f.session());
  EXPECT_DOUBLE_EQ(f.Career().Rating, 12.5);
  EXPECT_EQ(f.Career().Strikes, 1);
}

TEST(CoachReviewScreen, ShowsTheLetterAndTheBoardsMood) {
  EXPECT_EQ(CoachRatingLetter(75.01), "A");
  EXPECT_EQ(CoachRatingLetter(75), "B");
  EXPECT_EQ(CoachRatingLetter(35), "D");
  EXPECT_EQ(CoachRatingLetter(-4), "F");
  EXPECT_EQ(JobPerformance(1, 2, -1), "Two Strikes, one more and you are out!");
  EXPECT_EQ(JobPerformance(1, 2, 0), "");  // no line fits an unchanged prestige
  EXPECT_EQ(JobPerformance(1, 1, 1), "Like the direction of the team, but need results");
  EXPECT_EQ(JobPerformance(2, 3, 1), "Happy, but losing patience");
  EXPECT_EQ(JobPerformance(2, 2, -1), "Like the direction of the team, but need results");
  EXPECT_EQ(JobPerformance(4, 3, -1), "The board is patient, for now");
  EXPECT_EQ(JobPerformance(4, 4, -1), "Two Strikes, one more and you are out!");
  EXPECT_EQ(JobPerformance(6, 0, -3), "Satisfied with your performance");

  testing::CareerFixture f;
  f.AddSchool("St. John's", 60);
  f.HireUser("St. John's", 3);
  f.SetCareer("Seasons = 2, Wins = 41, Losses = 19, NCTWins = 2, NCTLosses = 1, Rating = 61");
  const CoachReview review = LoadCoachReview(f.store());
  EXPECT_EQ(review.Caption, "St. John's Head Coach Review");
  ASSERT_EQ(review.Fields.size(), 16u);
  EXPECT_EQ(review.Fields[3].first, "Overall Record:");
  EXPECT_EQ(review.Fields[3].second, "41-19 (0.683)");
  EXPECT_EQ(review.Fields[6].second, "2-1");
  EXPECT_EQ(review.Fields[14].second, "B");
  EXPECT_EQ(review.Fields[15].second, "Satisfied with your performance");
}

}  // namespace
}  // namespace courtmere
