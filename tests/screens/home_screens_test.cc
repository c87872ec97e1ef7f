// What the home screen and its neighbours read: the staff's roles screen (a
// choice takes a role from the others, a submit is refused whole or written
// whole), the list of what to do next, which follows the stage and the guards
// of Sim Day, and the NCT bubble once the field is chosen.
#include <gtest/gtest.h>

#include "league/rank_history.h"
#include "people/league_fixture.h"
#include "screens/coach_roles.h"
#include "screens/coaching_staff.h"
#include "screens/home.h"
#include "screens/nct_bubble.h"
#include "screens/todo_list.h"
#include "store/session.h"

namespace courtmere {
namespace {

constexpr const char* kSchool = "St. John's";

class HomeScreensTest : public ::testing::Test {
 protected:
  HomeScreensTest() {
    league_.AddTeam(kSchool, "East", 60, "Human");
    league_.AddTeam("Duke", "South", 80);
    session().humanSchool = kSchool;
    // Two coaches of one name: the roles are written by Id.
    for (const char* name : {"Al O'Hara", "Bo Diaz", "Al O'Hara"}) {
      ids_.push_back(static_cast<int>(store().Append("Coach", {{"Name", name},
                                                               {"Team", kSchool},
                                                               {"RecPoints", int64_t{2}},
                                                               {"OffCoach", int64_t{81}},
                                                               {"DefCoach", int64_t{40}}})));
    }
    store().Append("Coach", {{"Name", "Duke's man"}, {"Team", "Duke"}, {"OffPoints", int64_t{1}}});
  }
  Session& session() { return league_.session(); }
  Store& store() { return league_.store(); }
  std::vector<int> Points(const char* column) {
    std::vector<int> values;
    for (int id : ids_) {
      values.push_back(static_cast<int>(
          *store().ScalarInt(std::string("SELECT ") + column + " FROM Coach WHERE Id = ?", id)));
    }
    return values;
  }
  std::vector<std::string> Entries() {
    std::vector<std::string> entries;
    for (const TodoItem& item : TodoList(session())) entries.push_back(item.Entry);
    return entries;
  }

  testing::LeagueFixture league_;
  std::vector<int> ids_;
};

TEST_F(HomeScreensTest, AChoiceTakesTheRoleFromTheOthers) {
  CoachRoles roles = LoadCoachRoles(store(), kSchool);
  ASSERT_EQ(roles.Lines.size(), 3u);
  EXPECT_EQ(roles.Caption, "St. John's Coaching Roles");
  ChooseOffence(roles, 0, 1);
  ChooseDefence(roles, 0, 1);  // the same coach: his offence goes
  EXPECT_EQ(roles.Lines[0].Off, 0);
  EXPECT_EQ(roles.Lines[0].Def, 1);
  ChooseOffence(roles, 1, 1);
  ChooseOffence(roles, 2, 1);  // a second offence coach: the first loses it
  EXPECT_EQ(roles.Lines[1].Off, 0);
  EXPECT_EQ(roles.Lines[2].Off, 1);
  ChooseOffence(roles, 2, 0);  // a "0" clears only its own list
  EXPECT_EQ(roles.Lines[0].Def, 1);
  EXPECT_EQ(CheckRoles(roles), RolesCheck::kNotOneEach);
}

TEST_F(HomeScreensTest, ASubmitIsRefusedWholeOrWrittenWhole) {
  CoachRoles roles = LoadCoachRoles(store(), kSchool);
  EXPECT_FALSE(SubmitCoachRoles(session(), roles));
  EXPECT_EQ(league_.ui().Messages().back(), kRolesNotOneEach);
  // Named for both roles by Id, as the command line can: nothing is written.
  ASSERT_TRUE(AssignRole(roles, ids_[2], Role::kOffence));
  ASSERT_TRUE(AssignRole(roles, ids_[2], Role::kDefence));
  EXPECT_FALSE(SubmitCoachRoles(session(), roles));
  EXPECT_EQ(league_.ui().Messages().back(), kRolesBothToOne);
  EXPECT_EQ(Points("RecPoints"), (std::vector<int>{2, 2, 2}));
  EXPECT_FALSE(AssignRole(roles, 999, Role::kOffence));
  EXPECT_EQ(roles.Lines[2].Off, 1) << "an unknown coach changes nothing";

  ASSERT_TRUE(AssignRole(roles, ids_[0], Role::kDefence));
  ASSERT_TRUE(SubmitCoachRoles(session(), roles));
  EXPECT_EQ(Points("OffPoints"), (std::vector<int>{0, 0, 1}));
  EXPECT_EQ(Points("DefPoints"), (std::vector<int>{1, 0, 0}));
  EXPECT_EQ(Points("RecPoints"), (std::vector<int>{1, 2, 1}));
  const CoachingStaff staff = LoadCoachingStaff(store(), kSchool);
  ASSERT_EQ(staff.Rows.size(), 3u);
  EXPECT_EQ(staff.Rows[2].Cells,
            (std::array<std::string, kStaffColumns.size()>{"Al O'Hara", "0", "F", "F", "F", "F",
                                                           "F", "A", "F", "F", "", "1", "0", "1"}));
  EXPECT_EQ(StaffLetter(80), "B");
  EXPECT_EQ(StaffLetter(56), "C");
  EXPECT_EQ(StaffLetter(40), "F");
}

// The tasks of the season follow the guards: the chart and the roles go from
// the list when they are set; the day to play stays.
TEST_F(HomeScreensTest, TheListFollowsTheStageAndTheGuards) {
  session().config.Stage = kStagePostTraining;
  EXPECT_EQ(Entries(), (std::vector<std::string>{"mnuNonConfPre", "mnuManagementRoster",
                                                 "mnuStaffViewCoaches", "mnuOffSeasonStart"}));
  session().config.Stage = kStageSeason;
  session().config.CurrWeek = 14;
  EXPECT_EQ(Entries(), (std::vector<std::string>{"mnuManagementRoster", "mnuStaffViewCoaches",
                                                 "mnuSeasonSimGames"}));
  CoachRoles roles = LoadCoachRoles(store(), kSchool);
  ChooseOffence(roles, 0, 1);
  ChooseDefence(roles, 1, 1);
  ASSERT_TRUE(SubmitCoachRoles(session(), roles));
  store().Exec("UPDATE Team SET Scholarships = 2 WHERE SchoolName = ?", kSchool);
  EXPECT_EQ(Entries(), (std::vector<std::string>{"mnuManagementRoster", "mnuRecruitViewTeam",
                                                 "mnuSeasonSimGames"}));
  EXPECT_EQ(TodoList(session())[1].Text,
            "Offer your scholarships by the end of week 15 (0 of 2 given)");
  session().config.Stage = kStageBeginOffSeason;
  EXPECT_EQ(Entries(), (std::vector<std::string>{"mnuOffSeasonTrain", "mnuOffSeasonTrainPlayers"}));
  session().humanSchool.clear();
  EXPECT_TRUE(Entries().empty());
}

TEST_F(HomeScreensTest, OrdinalsReadAsWords) {
  EXPECT_EQ(Ordinal(1), "1st");
  EXPECT_EQ(Ordinal(2), "2nd");
  EXPECT_EQ(Ordinal(3), "3rd");
  EXPECT_EQ(Ordinal(11), "11th");
  EXPECT_EQ(Ordinal(12), "12th");
  EXPECT_EQ(Ordinal(22), "22nd");
  EXPECT_EQ(Ordinal(104), "104th");
}

// Each week's ranks are kept once (a week kept again replaces its row), and
// the home screen reads them back with its newest letters.
TEST_F(HomeScreensTest, TheRanksAreKeptWeekByWeekForTheHomeScreen) {
  store().Append("Ranking", {{"SchoolName", kSchool}, {"TeamRanking", int64_t{30}}});
  RecordRanks(store(), 1);
  store().Exec("UPDATE Ranking SET TeamRanking = 12 WHERE SchoolName = ?", kSchool);
  store().Append("CRIRank", {{"SchoolName", kSchool}, {"CRIRank", int64_t{7}}});
  RecordRanks(store(), 5);
  store().Exec("UPDATE Ranking SET TeamRanking = 9 WHERE SchoolName = ?", kSchool);
  RecordRanks(store(), 5);
  const std::vector<RankPoint> ranks = RankHistoryOf(store(), kSchool);
  ASSERT_EQ(ranks.size(), 2u);
  EXPECT_EQ(ranks[0].Week, 1);
  EXPECT_EQ(ranks[0].Poll, 30);
  EXPECT_EQ(ranks[0].Cri, 0);
  EXPECT_EQ(ranks[1].Poll, 9);
  EXPECT_EQ(ranks[1].Cri, 7);
  EXPECT_EQ(RankHistoryOf(store(), "Duke").size(), 2u);

  for (int i = 0; i < 6; ++i) {
    store().Append("InboxMessage", {{"Week", int64_t{i}},
                                    {"Sender", "Assistant"},
                                    {"Subject", "Letter " + std::to_string(i)}});
  }
  session().config.Stage = kStageSeason;
  const Home home = LoadHome(session(), RecruitingPeriod::kContact);
  EXPECT_EQ(home.School, kSchool);
  EXPECT_EQ(home.Period, "Contact Period");
  EXPECT_EQ(home.PollRank, "No. 9");
  EXPECT_EQ(home.CriRank, "No. 7");
  EXPECT_EQ(home.Ranks.size(), 2u);
  ASSERT_EQ(home.Letters.size(), kNewestLetters);
  EXPECT_EQ(home.Letters[0].Subject, "Letter 5");
  EXPECT_FALSE(home.Next.has_value());
}

// Once the field is chosen the bubble is the selection's own: its last four
// in and first four out at places 30 to 37, scored as the selection scored.
TEST_F(HomeScreensTest, TheChosenFieldShowsTheSelectionsBubble) {
  const std::vector<std::string> schools = {"A", "B", "C", "D", "E", "F", "G", kSchool};
  for (size_t i = 0; i + 1 < schools.size(); ++i) league_.AddTeam(schools[i], "West", 50);
  for (size_t i = 0; i < schools.size(); ++i) {
    store().Append("Ranking", {{"SchoolName", schools[i]},
                               {"TeamRanking", static_cast<int64_t>(40 + i)},
                               {"TeamPoints", 10.0 * static_cast<double>(i)}});
    store().Append("CRIRank", {{"SchoolName", schools[i]}, {"CRIValue", 0.5}});
  }
  store().Append("NCTTourney", {{"SchoolName", "Duke"}, {"Seed", int64_t{1}}});
  store().Append("NCTHistory", {{"Year", int64_t{2001}},
                                {"LastIn1", "A"},
                                {"LastIn2", "B"},
                                {"LastIn3", "C"},
                                {"LastIn4", "D"},
                                {"FirstOut1", "E"},
                                {"FirstOut2", "F"},
                                {"FirstOut3", "G"},
                                {"FirstOut4", kSchool}});
  const NctBubble bubble = ShowNctBubble(store(), kSchool, 2001);
  ASSERT_TRUE(bubble.Selected);
  ASSERT_EQ(bubble.Rows.size(), 8u);
  for (size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(bubble.Rows[i].Place, 30 + static_cast<int>(i));
    EXPECT_EQ(bubble.Rows[i].School, schools[i]);
    EXPECT_EQ(bubble.Rows[i].In, i < 4);
    EXPECT_EQ(bubble.Rows[i].PollRank, 40 + static_cast<int>(i));
    EXPECT_DOUBLE_EQ(bubble.Rows[i].Score, 50 + 10.0 * static_cast<double>(i));
  }
  EXPECT_TRUE(bubble.Rows[7].User);
}

}  // namespace
}  // namespace courtmere
