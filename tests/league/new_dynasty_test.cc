// File > New end to end: the nine conferences, the rosters and staff, the
// background field, the user's rows, the replay of a fixed seed, and the
// store left whole when the flow refuses, fails or is killed.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <set>
#include <stdexcept>

#include "league/clear_dynasty.h"
#include "league/dynasty_fixture.h"
#include "screens/new_dynasty_run.h"

namespace courtmere {
namespace {

using testing::DynastyFixture;
using testing::StandardRequest;

TEST(NewDynasty, BuildsNineConferencesRostersStaffBackgroundAndTheUsersRows) {
  DynastyFixture d;
  Store& s = d.store();
  std::vector<std::pair<int, std::string>> leagues;
  for (Rows rows = s.Query("SELECT Id, Conference FROM League ORDER BY Id"); rows.Next();) {
    leagues.emplace_back(rows.Int(0), rows.Text(1));
  }
  ASSERT_EQ(leagues.size(), 9u);
  for (int i = 0; i < 9; ++i) EXPECT_EQ(leagues[i].first, i + 1);
  EXPECT_EQ(leagues[6].second, "MVC");
  EXPECT_EQ(leagues[7].second, "WAC");
  EXPECT_EQ(leagues[8].second, "Atlantic 10");
  EXPECT_EQ(d.Count("SELECT count(DISTINCT Conference) FROM Team"), 9);
  EXPECT_EQ(d.Count("SELECT count(*) FROM Team"),
            d.Count("SELECT count(*) FROM TeamSetup") +
                d.Count("SELECT count(*) FROM LowLeagueSetup WHERE Conference IN "
                        "('MVC', 'WAC', 'Atlantic 10')"));
  // The seed's prestige is the starting prestige, and one row each in the
  // standings and the rankings.
  EXPECT_EQ(d.Count("SELECT count(*) FROM Team JOIN TeamSetup USING (SchoolName) "
                    "WHERE Team.InitialPrestige <> TeamSetup.Prestige"),
            0);
  EXPECT_EQ(d.Count("SELECT count(*) FROM TeamStats"), d.Count("SELECT count(*) FROM Team"));
  EXPECT_EQ(d.Count("SELECT count(*) FROM Ranking"),
            d.Count("SELECT count(*) FROM Team") + d.Count("SELECT count(*) FROM ScrubTeam"));
  EXPECT_EQ(d.Count("SELECT count(*) FROM Records"), d.Count("SELECT count(*) FROM Team") + 10);

  // Every team has thirteen players and a full staff.
  for (Rows rows =
           s.Query("SELECT SchoolName, "
                   "(SELECT count(*) FROM Player WHERE Player.Team = SchoolName), "
                   "(SELECT count(*) FROM Coach WHERE Coach.Team = SchoolName), "
                   "(SELECT count(*) FROM Scout WHERE Scout.Team = SchoolName), "
                   "(SELECT count(*) FROM Trainer WHERE Trainer.Team = SchoolName), "
                   "(SELECT count(*) FROM Coach WHERE Coach.Team = 'Looking at ' || SchoolName), "
                   "(SELECT count(*) FROM Player WHERE Player.Team = SchoolName AND "
                   " PlayerYear = 'Senior' AND NBAFlag = 1) FROM Team");
       rows.Next();) {
    SCOPED_TRACE(rows.Text(0));
    EXPECT_EQ(rows.Int(1), 13);
    EXPECT_EQ(rows.Int(2), 3);
    EXPECT_EQ(rows.Int(3), 1);
    EXPECT_EQ(rows.Int(4), 1);
    EXPECT_EQ(rows.Int(5), 2);
    EXPECT_GE(rows.Int(6), 3);
  }
  EXPECT_EQ(d.Count("SELECT count(*) FROM PlayerStats"), d.Count("SELECT count(*) FROM Player"));
  EXPECT_EQ(d.Count("SELECT NextId FROM Config"), d.Count("SELECT max(Id) FROM ScrubPlayer") + 1);

  // The background field comes from the other low conferences.
  EXPECT_EQ(d.Count("SELECT count(*) FROM ScrubTeam"), 110);  // the seeds have schools enough
  EXPECT_EQ(d.Count("SELECT count(*) FROM ScrubTeam WHERE Conference IN (SELECT Conference FROM "
                    "League)"),
            0);
  // Each other low conference has exactly one qualifier.
  const int64_t others = d.Count("SELECT count(*) FROM LeagueSetup WHERE Id > 6") - 3;
  EXPECT_EQ(d.Count("SELECT count(*) FROM ScrubTeam WHERE Winner = 1"), others);
  EXPECT_EQ(d.Count("SELECT count(*) FROM (SELECT Conference FROM ScrubTeam WHERE Winner = 1 "
                    "GROUP BY Conference HAVING count(*) = 1)"),
            others);
  // Qualifiers have coaches of 45 to 79, the others of 50 to 99.
  EXPECT_EQ(d.Count("SELECT count(*) FROM ScrubTeam WHERE Winner = 1 AND (OffCoach NOT BETWEEN "
                    "45 AND 79 OR Trainer NOT BETWEEN 45 AND 74)"),
            0);
  EXPECT_EQ(d.Count("SELECT count(*) FROM ScrubTeam WHERE Winner = 0 AND (OffCoach NOT BETWEEN "
                    "50 AND 99 OR Trainer NOT BETWEEN 60 AND 89)"),
            0);
  EXPECT_EQ(d.Count("SELECT count(*) FROM ScrubTeam WHERE (SELECT count(*) FROM ScrubPlayer "
                    "WHERE ScrubPlayer.Team = ScrubTeam.SchoolName) <> 13"),
            0);
  EXPECT_EQ(d.Count("SELECT count(*) FROM ScrubPlayer WHERE Team NOT IN (SELECT SchoolName "
                    "FROM ScrubTeam)"),
            0);

  // The user's rows keep their apostrophes.
  Rows coach = s.Query("SELECT Name, Team, Expectations FROM HeadCoach");
  ASSERT_TRUE(coach.Next());
  EXPECT_EQ(coach.Text(0), "D'Angelo O'Neil");
  EXPECT_EQ(coach.Text(1), "St. John's");
  EXPECT_EQ(coach.Int(2), 2);  // St. John's starts at 66: "High"
  EXPECT_EQ(s.ScalarText("SELECT SchoolName FROM Team WHERE Owner = 'Human'"), "St. John's");
  EXPECT_EQ(d.Count("SELECT count(*) FROM Team WHERE Owner = 'Computer'"),
            d.Count("SELECT count(*) FROM Team") - 1);
  EXPECT_EQ(s.ScalarText("SELECT Team FROM CoachHistory WHERE Season = 1 AND Year = 2001"),
            "St. John's");
  EXPECT_EQ(d.Count("SELECT count(*) FROM Records WHERE Type = 'St. John''s'"), 1);
  const Config c = LoadConfig(s);
  EXPECT_EQ(c.Stage, "Post Training");
  EXPECT_EQ(c.CurrWeek, 1);
  EXPECT_EQ(c.CurrDay, "Thursday");
  EXPECT_EQ(c.CurrYear, 2001);
  EXPECT_EQ(c.MaxGameNo, d.Count("SELECT coalesce(max(GameNo), 0) FROM NonConfSchedule"));
}

// File > New tells its steps in order and leaves the offseason letter; a
// fixed seed replays the whole store, another seed does not.
TEST(NewDynasty, TellsItsStepsAndAFixedSeedReplaysTheWholeStore) {
  testing::BlankProgram a(1);
  testing::BlankProgram b(1);
  ASSERT_TRUE(RunNewDynasty(a.session(), StandardRequest()));
  const std::vector<std::string> expected = {
      "Clearing Old Season",       "Setting up Teams",       "Creating Scouts",
      "Creating Coaches",          "Creating Trainers",      "Creating Players",
      "Creating Background Teams", "Finalizing Season Setup"};
  EXPECT_EQ(a.ui().Captions(), expected);
  ASSERT_EQ(a.session().inbox.Messages.size(), 1u);
  EXPECT_EQ(a.session().inbox.Messages[0].Sender, "Assistant");
  EXPECT_EQ(a.session().inbox.Messages[0].Subject, "Final Offseason Tasks");
  EXPECT_EQ(a.session().config.Stage, "Post Training");
  ASSERT_TRUE(RunNewDynasty(b.session(), StandardRequest()));
  EXPECT_TRUE(testing::DumpStore(a.store()) == testing::DumpStore(b.store()));
  testing::BlankProgram c(2);
  ASSERT_TRUE(RunNewDynasty(c.session(), StandardRequest()));
  EXPECT_FALSE(testing::DumpStore(a.store()) == testing::DumpStore(c.store()));
}

TEST(NewDynasty, ARefusalOrANoLeavesTheOldDynastyAsItWas) {
  DynastyFixture d;
  const std::string before = testing::DumpStore(d.store());
  struct Case {
    std::vector<std::string> conferences;
    std::string school;
    std::string coach;
    std::string message;
  };
  const std::vector<Case> cases = {
      {{"MVC", "Big West Coast", "WAC"}, "Duke", "Coach", "League not found"},
      {{"MVC", "WAC"}, "Duke", "Coach", "Please enter three leagues before proceeding."},
      {{"MVC", "WAC", "WCC", "MAC"},
       "Duke",
       "Coach",
       "You already have selected three leagues. Please remove one if you wish to select "
       "another."},
      {{"MVC", "WAC", "WCC"},
       "Gonzaga's Cousin",
       "Coach",
       "Please select a school of your nine conferences before proceeding."},
      {{"MVC", "WAC", "WCC"}, "Gonzaga", "", "Please enter the coach's name before proceeding."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    NewDynastyRequest request{c.conferences, c.school, c.coach, false};
    EXPECT_FALSE(RunNewDynasty(d.session(), request));
    ASSERT_FALSE(d.ui().Messages().empty());
    EXPECT_EQ(d.ui().Messages().back(), c.message);
    EXPECT_TRUE(testing::DumpStore(d.store()) == before);
    EXPECT_EQ(d.session().config.Stage, "Post Training");
  }
  d.ui().QueueAnswer(false);  // No to the first question
  EXPECT_FALSE(RunNewDynasty(d.session(), StandardRequest()));
  EXPECT_TRUE(testing::DumpStore(d.store()) == before);
}

// A Ui that fails at one caption, as a crash would stop the flow there.
class FailingUi : public ScriptedUi {
 public:
  explicit FailingUi(std::string at, bool kill) : at_(std::move(at)), kill_(kill) {}
  void ShowProgress(std::string_view caption) override {
    ScriptedUi::ShowProgress(caption);
    if (caption != at_) return;
    if (kill_) _exit(0);
    throw std::runtime_error("stopped at " + at_);
  }

 private:
  std::string at_;
  bool kill_;
};

TEST(NewDynasty, AFailureHalfWayLeavesTheOldDynasty) {
  DynastyFixture d;
  const std::string before = testing::DumpStore(d.store());
  FailingUi failing("Creating Background Teams", false);
  Session other(ProgramFolder(d.folder()), Rng(3), failing);
  other.store = std::move(d.session().store);
  EXPECT_THROW(RunNewDynasty(other, StandardRequest()), std::runtime_error);
  EXPECT_TRUE(testing::DumpStore(other.Db()) == before);
}

TEST(NewDynasty, AProcessKilledHalfWayLeavesAStoreThatOpensOnTheOldDynasty) {
  DynastyFixture d;
  const std::string before = testing::DumpStore(d.store());
  d.session().store.reset();
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    FailingUi killing("Creating Players", true);
    Session session(ProgramFolder(d.folder()), Rng(3), killing);
    session.store = std::make_unique<Store>(session.folder.Store());
    RunNewDynasty(session, StandardRequest());
    _exit(1);  // never reached: the flow is killed at "Creating Players"
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  ASSERT_EQ(WEXITSTATUS(status), 0);
  Store reopened(d.session().folder.Store());
  EXPECT_TRUE(testing::DumpStore(reopened) == before);
}

TEST(ClearDynasty, EmptiesTheDynastyAndKeepsTheSeeds) {
  DynastyFixture d;
  Store& s = d.store();
  const int64_t schools = d.Count("SELECT count(*) FROM TeamSetup");
  const int64_t names = d.Count("SELECT count(*) FROM LName");
  s.Exec("UPDATE Cities SET Final = 1");
  ClearDynasty(s);
  for (const char* table :
       {"Player", "ScrubPlayer", "Records", "League", "Team", "ScrubTeam", "TeamStats", "Ranking",
        "Coach", "Scout", "Trainer", "HeadCoach", "CoachHistory", "NonConfSchedule",
        "League1Schedule", "PreSeasonTourney"}) {
    EXPECT_EQ(s.RowCount(table), 0) << table;
  }
  EXPECT_EQ(d.Count("SELECT count(*) FROM TeamSetup"), schools);
  EXPECT_EQ(d.Count("SELECT count(*) FROM LName"), names);
  EXPECT_EQ(d.Count("SELECT sum(Final) FROM Cities"), 0);
  const Config c = LoadConfig(s);
  EXPECT_EQ(c.NextId, 1);
  EXPECT_EQ(c.NumRecruits, 0);
  EXPECT_EQ(c.MaxGameNo, 0);
  EXPECT_EQ(c.Stage, "Post Training");
}

}  // namespace
}  // namespace courtmere
