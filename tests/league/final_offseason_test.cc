// The last offseason tasks: the assistant's list and the preseason
// tournament's invitation, accepted or declined.
#include <gtest/gtest.h>

#include "league/final_offseason_tasks.h"
#include "people/league_fixture.h"

namespace courtmere {
namespace {

class InvitationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    league_.AddTeam("St. John's", "East", 66, "Human");
    league_.store().Exec("UPDATE Team SET Conference = 'Big East'");
    league_.store().Append("HeadCoach", {{"Name", "Coach"}, {"Team", "St. John's"}});
  }
  void Game(int no, const char* day, const char* type, const char* home, const char* homeConf,
            const char* away, const char* awayConf) {
    league_.store().Append("NonConfSchedule", {{"GameNo", int64_t{no}},
                                               {"Week", int64_t{1}},
                                               {"GameDay", day},
                                               {"GameType", type},
                                               {"HomeTeam", home},
                                               {"HomeConf", homeConf},
                                               {"AwayTeam", away},
                                               {"AwayConf", awayConf}});
  }
  std::string Sides(int no) {
    Rows rows = league_.store().Query(
        "SELECT HomeTeam, HomeConf, AwayTeam, AwayConf FROM NonConfSchedule WHERE GameNo = ?", no);
    rows.Next();
    return rows.Text(0) + "/" + rows.Text(1) + " v " + rows.Text(2) + "/" + rows.Text(3);
  }
  void Invite() {
    Game(1, "Thursday", "Hawaii Classic", "St. John's", "Big East", "Drake", "MVC");
    Game(2, "Thursday", "NonConference", "Syracuse", "Big East", "Navy", "Patriot");
    Game(3, "Thursday", "NonConference", "Kansas", "Big 12", "Binghamton", "America East");
    Game(4, "Saturday", "NonConference", "Albany", "America East", "Kansas", "Big 12");
    league_.store().Append("PreSeasonTourney",
                           {{"SchoolName", "St. John's"}, {"Conference", "Big East"}});
  }
  testing::LeagueFixture league_;
};

TEST_F(InvitationTest, TheListOfTasksGoesToTheInbox) {
  FinalOffseasonTasks(league_.session());
  ASSERT_EQ(league_.session().inbox.Messages.size(), 1u);
  const InboxMessage& m = league_.session().inbox.Messages[0];
  EXPECT_EQ(m.Sender, "Assistant");
  EXPECT_EQ(m.Subject, "Final Offseason Tasks");
  EXPECT_EQ(m.Text.rfind("Before starting the season, there are some coaching actions you can "
                         "take.\n\n1. You need to schedule",
                         0),
            0u);
  size_t breaks = 0;
  for (size_t at = m.Text.find("\n\n"); at != std::string::npos; at = m.Text.find("\n\n", at + 2)) {
    ++breaks;
  }
  EXPECT_EQ(breaks, 5u);
  EXPECT_TRUE(league_.ui().Questions().empty());  // no tournament, no question
}

// Accepting changes nothing; declining swaps the user with a school of
// another conference in every game of the week.
TEST_F(InvitationTest, AcceptingChangesNothingDecliningSwapsTheUserWithAnotherConference) {
  Invite();
  FinalOffseasonTasks(league_.session());
  EXPECT_EQ(league_.ui().Questions().back(),
            "You have been invited to attend the Hawaii Classic Tournament. Do you wish to "
            "accept?");
  EXPECT_EQ(Sides(1), "St. John's/Big East v Drake/MVC");
  EXPECT_EQ(Sides(3), "Kansas/Big 12 v Binghamton/America East");

  league_.ui().QueueAnswer(false);
  AnswerTournamentInvitation(league_.session());
  EXPECT_EQ(Sides(1), "Kansas/Big 12 v Drake/MVC");
  EXPECT_EQ(Sides(2), "Syracuse/Big East v Navy/Patriot");
  EXPECT_EQ(Sides(3), "St. John's/Big East v Binghamton/America East");
  EXPECT_EQ(Sides(4), "Albany/America East v St. John's/Big East");
  EXPECT_EQ(league_.store().ScalarText("SELECT SchoolName || '/' || Conference FROM "
                                       "PreSeasonTourney"),
            "Kansas/Big 12");
}

TEST_F(InvitationTest, WithNoSchoolToTakeHisPlaceTheInvitationStands) {
  Game(1, "Thursday", "Alaska Challenge", "Drake", "MVC", "St. John's", "Big East");
  Game(2, "Thursday", "NonConference", "Syracuse", "Big East", "Navy", "Patriot");
  league_.ui().QueueAnswer(false);
  AnswerTournamentInvitation(league_.session());
  EXPECT_EQ(Sides(1), "Drake/MVC v St. John's/Big East");
  EXPECT_EQ(Sides(2), "Syracuse/Big East v Navy/Patriot");
}

}  // namespace
}  // namespace courtmere
