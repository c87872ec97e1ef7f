// The assistant's season letter: the scholarship sentence in all its forms,
// the early leavers, and where the letter goes.
#include "league/season_letter.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "people/league_fixture.h"

namespace courtmere {
namespace {

constexpr const char* kStart = " As of right now, you have ";

TEST(ScholarshipSentence, HasAFormForEachCase) {
  EXPECT_EQ(ScholarshipSentence(0, 0), "");
  EXPECT_EQ(ScholarshipSentence(0, -2), "");  // more than 13 on the roster, no seniors
  // At most five: the open places give way to the seniors.
  const std::tuple<int, int, const char*> cases[] = {
      {3, 0, "3 scholarships to use for your recruits because of 3 graduating seniors."},
      {2, 2,
       "4 scholarships to use for your recruits because of 2 graduating seniors and 2 open "
       "roster spots."},
      {2, 1,
       "3 scholarships to use for your recruits because of 2 graduating seniors and 1 open "
       "roster spot."},
      {0, 1,
       "1 scholarships to use for your recruits because of 0 graduating seniors and 1 open "
       "roster spot."},
      {4, 3,
       "5 scholarships to use for your recruits because of 4 graduating seniors and 1 open "
       "roster spot."},
      {6, 1, "5 scholarships to use for your recruits because of 6 graduating seniors."}};
  for (const auto& [seniors, open, sentence] : cases) {
    EXPECT_EQ(ScholarshipSentence(seniors, open), kStart + std::string(sentence));
  }
}

class SeasonLetterTest : public ::testing::Test {
 protected:
  void SetUp() override {
    league_.AddTeam("St. John's", "East", 66, "Human");
    league_.store().Append("HeadCoach", {{"Name", "D'Angelo O'Neil"}, {"Team", "St. John's"}});
  }
  int Add(const std::string& year, double overall) {
    return league_.AddPlayer("St. John's", 1, overall, year);
  }
  testing::LeagueFixture league_;
};

TEST_F(SeasonLetterTest, CountsSeniorsWhoLeaveAndOpenPlaces) {
  Add("Senior", 60);
  Add("Senior", 61);
  const int redshirt = Add("Senior", 62);
  league_.store().Exec("UPDATE Player SET Redshirt = 1 WHERE Id = ?", redshirt);
  for (int i = 0; i < 8; ++i) Add("Junior", 50);
  const std::string text = SeasonLetterText(league_.store(), "St. John's");
  EXPECT_NE(text.find("inform you of the number of scholarships you have." + std::string(kStart) +
                      "4 scholarships to use for your recruits because of 2 graduating seniors "
                      "and 2 open roster spots.\n\n"),
            std::string::npos);
  EXPECT_EQ(text.find("whisperings"), std::string::npos);
  EXPECT_EQ(text.rfind("Welcome to Courtmere! I am your assistant coach.\n\n", 0), 0u);
  EXPECT_NE(text.find("recruits that have St. John's as a top 1,2 or 3 team"), std::string::npos);
  const std::string last = "\n\nI will check back with you in a few weeks. Good Luck!";
  EXPECT_EQ(text.substr(text.size() - last.size()), last);
}

TEST_F(SeasonLetterTest, ListsTheLikelyEarlyLeaversWeakestFirst) {
  league_.AddPlayer("St. John's", 1, 80, "Junior");
  league_.store().Exec("UPDATE Player SET Name = 'Kevin O''Hare' WHERE Overall = 80");
  league_.AddPlayer("St. John's", 2, 74, "Sophomore");
  league_.store().Exec("UPDATE Player SET Name = 'Al Lowe' WHERE Overall = 74");
  Add("Senior", 90);  // a senior leaves anyway
  Add("Junior", 72);  // not above 72
  for (int i = 0; i < 9; ++i) Add("Freshman", 50);
  const std::string text = SeasonLetterText(league_.store(), "St. John's");
  EXPECT_NE(text.find("graduating seniors.\n\nI have also heard whisperings that some of the "
                      "following players may leave early for the NBA:\nAl Lowe\nKevin O'Hare\n\n"
                      "Now, on to business."),
            std::string::npos);
}

TEST_F(SeasonLetterTest, IsAMessageOfTheWeekAndInTheInbox) {
  for (int i = 0; i < 13; ++i) Add("Junior", 50);
  league_.store().Exec("UPDATE Config SET CurrWeek = 1");
  SeasonLetter(league_.session());
  Rows rows = league_.store().Query("SELECT Type, Week, Message FROM Messages");
  ASSERT_TRUE(rows.Next());
  EXPECT_EQ(rows.Text(0), "Team");
  EXPECT_EQ(rows.Int(1), 1);
  const std::string text = rows.Text(2);
  // A full roster without seniors: no scholarship sentence at all.
  EXPECT_NE(text.find("number of scholarships you have.\n\nNow, on to business."),
            std::string::npos);
  ASSERT_EQ(league_.session().inbox.Messages.size(), 1u);
  EXPECT_EQ(league_.session().inbox.Messages[0].Sender, "Assistant Coach");
  EXPECT_EQ(league_.session().inbox.Messages[0].Subject, "Season Instructions");
  EXPECT_EQ(league_.session().inbox.Messages[0].Text, text);
}

}  // namespace
}  // namespace courtmere
