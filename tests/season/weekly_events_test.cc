// The week's events of the players: marks and suspensions with their limits,
// the academic letter, the trainer's letter that tells each injury once, and
// the inbox kept in the store week by week.
#include <gtest/gtest.h>

#include "season/academics.h"
#include "season/injury_report.h"
#include "season_fixture.h"
#include "store/inbox.h"

namespace courtmere::testing {
namespace {

class WeeklyEvents : public SeasonFixture {
 protected:
  WeeklyEvents() {
    computer_ = *store().ScalarText(
        "SELECT SchoolName FROM Team WHERE SchoolName <> ? ORDER BY rowid LIMIT 1", kUserSchool);
    // Nobody fails but the men a test picks.
    store().Exec("UPDATE Player SET Intelligence = 70, GPA = 3.0, Suspended = 0, Health = 'Good'");
  }
  std::vector<int> Men(const std::string& school) {
    std::vector<int> ids;
    for (Rows r = store().Query("SELECT Id FROM Player WHERE Team = ? ORDER BY Id", school);
         r.Next();) {
      ids.push_back(r.Int(0));
    }
    return ids;
  }
  // Every man of the school on the edge of failing: his old mark fails,
  // and his new one fails on about one draw in three.
  void AllAtRisk(const std::string& school) {
    store().Exec("UPDATE Player SET Intelligence = 40, GPA = 1.5 WHERE Team = ?", school);
  }
  int Suspended(const std::string& school) {
    return static_cast<int>(
        *store().ScalarInt("SELECT count(*) FROM Player WHERE Team = ? AND Suspended = 1", school));
  }
  // Men lifted to a passing mark in place of a suspension, or who drew one.
  int Passing(const std::string& school) {
    return static_cast<int>(*store().ScalarInt(
        "SELECT count(*) FROM Player WHERE Team = ? AND Suspended = 0 AND GPA >= 1.99", school));
  }
  std::string computer_;
};

// A healthy team loses two men at most, a team with two injured men one;
// a computer team loses its chart, the user keeps his and meets Sim Day's
// guard instead.
TEST_F(WeeklyEvents, AHealthyTeamLosesTwoMenAtMostAndAComputerTeamLosesItsChart) {
  AllAtRisk(computer_);
  AllAtRisk(kUserSchool);
  const std::vector<int> user = Men(kUserSchool);
  store().Exec("UPDATE Player SET Health = 'Knee' WHERE Id IN (?, ?)", user[0], user[1]);
  UpdateGrades(session());
  EXPECT_EQ(Suspended(computer_), 2);
  EXPECT_EQ(Suspended(kUserSchool), 1);
  // Every other man passes, the failing ones lifted to 2.0 to 2.1.
  EXPECT_EQ(Passing(computer_), static_cast<int>(Men(computer_).size()) - 2);
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Player WHERE Team = ? AND GPA < 1.99 AND "
                               "Suspended = 0",
                               computer_),
            0);
  EXPECT_EQ(*store().ScalarInt("SELECT PG1 FROM Team WHERE SchoolName = ?", computer_), 0);
  EXPECT_NE(*store().ScalarInt("SELECT PG1 FROM Team WHERE SchoolName = ?", kUserSchool), 0);
}

// A first low mark does not suspend, every check ends the old suspensions,
// and the marks follow intelligence.
TEST_F(WeeklyEvents, AFirstLowMarkDoesNotSuspendAndMarksFollowIntelligence) {
  store().Exec("UPDATE Player SET Intelligence = 40, GPA = 2.5 WHERE Team = ?", computer_);
  const std::vector<int> men = Men(kUserSchool);
  store().Exec("UPDATE Player SET Suspended = 1 WHERE Id = ?", men[0]);
  store().Exec("UPDATE Player SET Intelligence = 61 WHERE Id = ?", men[1]);
  store().Exec("UPDATE Player SET Intelligence = 78 WHERE Id = ?", men[2]);
  store().Exec("UPDATE Player SET Intelligence = 95 WHERE Id = ?", men[3]);
  UpdateGrades(session());
  EXPECT_EQ(Suspended(computer_), 0);
  EXPECT_EQ(Suspended(kUserSchool), 0);
  // Intelligence 40 draws from 1.75 to 2.5.
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Player WHERE Team = ? AND (GPA < 1.75 OR "
                               "GPA > 2.5)",
                               computer_),
            0);
  auto gpa = [&](int id) {
    return *store().ScalarDouble("SELECT GPA FROM Player WHERE Id = ?", id);
  };
  EXPECT_DOUBLE_EQ(gpa(men[1]), 21 / 9.5);
  EXPECT_DOUBLE_EQ(gpa(men[2]), 4.0);
  EXPECT_GE(gpa(men[3]), 3.2);
  EXPECT_LE(gpa(men[3]), 4.0);
}

TEST_F(WeeklyEvents, TheAcademicLetterNamesWhoReturnsAndWhoIsSuspended) {
  const std::vector<int> men = Men(kUserSchool);
  store().Exec("UPDATE Player SET Suspended = 1 WHERE Id = ?", men[0]);
  AllAtRisk(kUserSchool);
  store().Exec("UPDATE Player SET Intelligence = 70, GPA = 3.0 WHERE Id = ?", men[0]);
  AcademicCheck(session());
  ASSERT_FALSE(session().inbox.Messages.empty());
  const InboxMessage& letter = session().inbox.Messages.back();
  EXPECT_EQ(letter.Sender, "Compliance Dir");
  EXPECT_EQ(letter.Subject, "Academic Update");
  const std::string returning = *store().ScalarText("SELECT Name FROM Player WHERE Id = ?", men[0]);
  EXPECT_EQ(letter.Text.rfind(
                "We have released a list of players suspended in the conference for the next four "
                "weeks. Click News and then Player Suspensions from the main menu to get the full "
                "list.",
                0),
            0u);
  EXPECT_NE(letter.Text.find("The following St. John's players are now eligible to return:\n" +
                             returning),
            std::string::npos);
  EXPECT_NE(letter.Text.find("The following St. John's players are now suspended:"),
            std::string::npos);
  const std::string conference = session().humanConference;
  const std::vector<SuspendedPlayer> list = ShowSuspensions(session(), conference);
  EXPECT_EQ(list.size(), 2u);
  EXPECT_EQ(list.front().Line,
            list.front().Name + " is suspended for four weeks because of academics.");
}

TEST_F(WeeklyEvents, EachInjuryIsToldOnceAndItsHealingOnce) {
  const std::vector<int> men = Men(kUserSchool);
  const std::string name = *store().ScalarText("SELECT Name FROM Player WHERE Id = ?", men[1]);
  store().Exec("UPDATE Player SET Health = 'Ankle', InjuryUpdate = 0 WHERE Id = ?", men[1]);
  // Hurt and healed between two letters: told neither way.
  store().Exec("UPDATE Player SET Health = 'Good', InjuryUpdate = 0 WHERE Id = ?", men[2]);
  std::vector<InboxMessage>& letters = session().inbox.Messages;
  letters.clear();
  InjuryReport(session());
  ASSERT_EQ(letters.size(), 1u);
  EXPECT_EQ(letters[0].Sender, "Trainer");
  EXPECT_EQ(letters[0].Subject, "Injury Update");
  EXPECT_EQ(letters[0].Text,
            "The following St. John's players have been injured. Check the injury log for more "
            "details on their severity.\n" +
                name);
  EXPECT_EQ(*store().ScalarInt("SELECT count(*) FROM Messages WHERE Type = 'Injury'"), 1);
  InjuryReport(session());
  EXPECT_EQ(letters.size(), 1u);
  store().Exec("UPDATE Player SET Health = 'Good' WHERE Id = ?", men[1]);
  InjuryReport(session());
  ASSERT_EQ(letters.size(), 2u);
  EXPECT_EQ(letters[1].Text, "The following St. John's players are now healthy:\n" + name);
}

TEST_F(WeeklyEvents, TheInboxIsKeptWeekByWeekInTheStore) {
  BringInboxUpTo(session(), 3);
  AddInboxMessage(session(), "Dynasty Gazette", "News", "St. John's wins again");
  BringInboxUpTo(session(), 4);
  EXPECT_TRUE(session().inbox.Messages.empty());
  AddInboxMessage(session(), "Trainer", "Injury Update", "All fit");
  ASSERT_EQ(InboxOfWeek(store(), 3).size(), 1u);
  EXPECT_EQ(InboxOfWeek(store(), 3)[0],
            (InboxMessage{"Dynasty Gazette", "News", "St. John's wins again"}));
  LoadInbox(session(), 3);
  EXPECT_EQ(session().inbox.Week, 3);
  EXPECT_EQ(session().inbox.Messages, InboxOfWeek(store(), 3));
}

}  // namespace
}  // namespace courtmere::testing
