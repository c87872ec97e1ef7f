// Bringing a store of an older layout up to date: the seed rows every load
// puts right, and the old layout turned into exactly the current one.
#include "store/upgrade_store.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "people/grade_all_players.h"
#include "small_dynasty.h"
#include "store/blank_store.h"
#include "store/store_error.h"
#include "support/temp_folder.h"

namespace courtmere {
namespace {

using testing::SmallDynasty;

// A table's columns with their types, in the table's order, or sorted when
// only the set matters.
std::vector<std::string> Columns(Store& store, const std::string& table, bool inOrder) {
  std::vector<std::string> columns;
  for (Rows r = store.Query("SELECT name, type FROM pragma_table_info(?)", table); r.Next();) {
    columns.push_back(r.Text(0) + " " + r.Text(1));
  }
  if (!inOrder) std::sort(columns.begin(), columns.end());
  return columns;
}

void Script(Store& store, const std::vector<std::string>& statements) {
  for (const std::string& sql : statements) store.ExecScript(sql);
}

// The store as the old layout had it.
void MakeOldLayout(Store& store) {
  for (const char* stat : {"FGPercent", "FTPercent"}) {
    for (const char* span : {"Season", "Career"}) {
      store.ExecScript(std::string("ALTER TABLE Records DROP COLUMN ") + stat + span + "Year");
    }
  }
  Script(store, {"ALTER TABLE Records ADD COLUMN PGPercentSeasonYear INTEGER",
                 "ALTER TABLE Records ADD COLUMN PGPercentCareerYear INTEGER",
                 "ALTER TABLE Records ADD COLUMN PTPercentSeasonYear INTEGER",
                 "ALTER TABLE Records ADD COLUMN PTPercentCareerYear INTEGER",
                 "ALTER TABLE Records ADD COLUMN TOPGSeason REAL",
                 "ALTER TABLE Records ADD COLUMN TOPGSeasonPlayer TEXT",
                 "ALTER TABLE Records ADD COLUMN TOPGSeasonTeam TEXT",
                 "ALTER TABLE Records ADD COLUMN TOPGSeasonYear INTEGER", "DROP TABLE TrainPlayer",
                 "DROP TABLE CoachHistory", "ALTER TABLE Player DROP COLUMN ShootingGrade",
                 "ALTER TABLE Development DROP COLUMN PreShootingGrade",
                 "ALTER TABLE Development DROP COLUMN PreAthleticGrade",
                 "ALTER TABLE Development ADD COLUMN Attribute1 INTEGER",
                 "ALTER TABLE Development ADD COLUMN Attribute2 INTEGER",
                 "ALTER TABLE Development ADD COLUMN Attribute3 INTEGER",
                 "ALTER TABLE Development ADD COLUMN PrePotentialGrade TEXT"});
  for (const char* column : {"ACTFinalFour", "ACTWinner", "ACTFinalFourApps", "Press"}) {
    store.ExecScript(std::string("ALTER TABLE Team DROP COLUMN ") + column);
  }
  for (const char* column : {"ACTWins", "ACTApps", "ACTLosses", "ACTFinalFour", "ACTChamps"}) {
    store.ExecScript(std::string("ALTER TABLE HeadCoach DROP COLUMN ") + column);
  }
  for (const char* column : {"ACTFinalFour", "ACTWinner", "Press"}) {
    store.ExecScript(std::string("ALTER TABLE ScrubTeam DROP COLUMN ") + column);
  }
}

class UpgradeStoreTest : public ::testing::Test {
 protected:
  Session& session() { return dynasty_.session(); }
  Store& store() { return dynasty_.store(); }

  SmallDynasty dynasty_;
};

TEST_F(UpgradeStoreTest, EveryLoadPutsTheSeedRowsRight) {
  store().Exec("UPDATE LeagueSetup SET SchedType = '10' WHERE Id = 4");
  for (const char* area : {"OK", "KS", "TX", "IA"}) {
    store().Append("TeamSetup", {{"SchoolName", std::string("Test ") + area},
                                 {"Conference", "Big 12"},
                                 {"Area", area},
                                 {"Division", "None"}});
  }
  UpgradeStore(session());
  EXPECT_EQ(store().ScalarText("SELECT SchedType FROM LeagueSetup WHERE Id = 4"), "12C");
  auto division = [&](const char* area) {
    return *store().ScalarText("SELECT Division FROM TeamSetup WHERE SchoolName = ?",
                               std::string("Test ") + area);
  };
  EXPECT_EQ(division("OK"), "South");
  EXPECT_EQ(division("TX"), "South");
  EXPECT_EQ(division("KS"), "North");
  EXPECT_EQ(division("IA"), "North");
  EXPECT_TRUE(dynasty_.ui().Captions().empty()) << "the current layout needs no more";
}

// A save from before the user could recruit declared the week's decision an
// integer; the strict table would refuse "Visit" there.
TEST_F(UpgradeStoreTest, ASaveFromBeforeRecruitingTakesTheWeeksDecisionAsText) {
  Script(store(), {"DROP TABLE RecruitDecision",
                   "CREATE TABLE RecruitDecision (Id INTEGER PRIMARY KEY, Team TEXT, PlayerID "
                   "INTEGER DEFAULT 0, RecruitNo INTEGER DEFAULT 0, Call INTEGER DEFAULT 0, "
                   "Assistant INTEGER DEFAULT 0, Visit INTEGER DEFAULT 0, CampusVisit INTEGER "
                   "DEFAULT 0, WeekDecision INTEGER DEFAULT 0, WeekBid INTEGER DEFAULT 0, "
                   "RecruitPoints INTEGER DEFAULT 0, TopBid INTEGER DEFAULT 0, Scholarship "
                   "INTEGER DEFAULT 0) STRICT",
                   "INSERT INTO RecruitDecision (Team, PlayerID, Visit) VALUES ('Duke', 7, 1)"});
  EXPECT_ANY_THROW(store().Exec("UPDATE RecruitDecision SET WeekDecision = 'Visit'"));
  UpgradeStore(session());
  store().Exec("UPDATE RecruitDecision SET WeekDecision = 'Visit'");
  EXPECT_EQ(store().ScalarInt("SELECT Visit FROM RecruitDecision WHERE PlayerID = 7"), 1);
  testing::TempFolder fresh;
  BuildBlankStore(fresh / "blank.dat");
  Store blank(fresh / "blank.dat");
  EXPECT_EQ(Columns(store(), "RecruitDecision", true), Columns(blank, "RecruitDecision", true));
}

TEST_F(UpgradeStoreTest, TheOldLayoutBecomesTheCurrentOne) {
  store().Exec("UPDATE HeadCoach SET Wins = 40, Losses = 22, ConfChamps = 1");
  store().Append("ScrubTeam", {{"SchoolName", "Siena"}});
  MakeOldLayout(store());
  ASSERT_TRUE(HasOldLayout(store()));
  EXPECT_THROW(UpgradeStore(session()), StoreError) << "the old layout needs its grader";

  UpgradeStore(session(), GradeAllPlayers);
  EXPECT_EQ(dynasty_.ui().Captions().back(), "Updating Save Game");
  EXPECT_FALSE(HasOldLayout(store()));

  testing::TempFolder fresh;
  BuildBlankStore(fresh / "blank.dat");
  Store blank(fresh / "blank.dat");
  // The record books are read by column position: their order must match too;
  // other tables are read by column name.
  for (const char* table : {"Records", "TrainPlayer", "CoachHistory", "Player", "Development",
                            "Team", "HeadCoach", "ScrubTeam"}) {
    const bool inOrder = std::string(table) == "Records";
    EXPECT_EQ(Columns(store(), table, inOrder), Columns(blank, table, inOrder)) << table;
  }
  for (const char* index : {"PlayerIndex", "HistoryIndex"}) {
    EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM sqlite_master WHERE name = ?", index), 1);
  }

  Rows history = store().Query(
      "SELECT Season, Team, Wins, Losses, ConfChamps, ACTRecord, NCTRecord FROM CoachHistory");
  ASSERT_TRUE(history.Next());
  EXPECT_EQ(history.Int(0), 1);
  EXPECT_EQ(history.Text(1), SmallDynasty::kHuman);
  EXPECT_EQ(history.Int(2), 40);
  EXPECT_EQ(history.Int(3), 22);
  EXPECT_EQ(history.Text(4), "Yes");
  EXPECT_EQ(history.Text(5), "NA");
  EXPECT_EQ(history.Text(6), "NA");
  EXPECT_FALSE(history.Next());

  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Team WHERE Press = 'None'"), 2);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM ScrubTeam WHERE Press = 'None'"), 1);
  EXPECT_EQ(store().ScalarInt("SELECT count(*) FROM Player WHERE length(ShootingGrade) = 1"), 24)
      << "every player graded anew";
  std::vector<std::string> books;
  for (Rows r = store().Query("SELECT Type FROM Records ORDER BY Id"); r.Next();) {
    books.push_back(r.Text(0));
  }
  EXPECT_EQ(books,
            (std::vector<std::string>{SmallDynasty::kHuman, "Duke", "Big East", "National"}));
}

}  // namespace
}  // namespace courtmere
