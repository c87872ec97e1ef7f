// Begin Offseason: the fired coach's refusal, a No, and each step: the
// leavers and their rows, four years of season lines, the season's figures
// at 0, suspensions over, the stage.
#include "offseason/begin_offseason.h"

#include <gtest/gtest.h>

#include "league/dynasty_fixture.h"
#include "league/head_coach.h"
#include "people/player_writer.h"

namespace courtmere::testing {
namespace {

class BeginOffseasonTest : public ::testing::Test {
 protected:
  BeginOffseasonTest() {
    store().Exec("UPDATE Config SET Stage = 'NBA Draft', CurrYear = 2006 WHERE IdConfig = 0");
    program.session().config.Stage = "NBA Draft";
    program.session().config.CurrYear = 2006;
    AddPlayerRow(1, "Senior", 1);  // graduates
    AddPlayerRow(2, "Junior", 1);  // an early entry
    AddPlayerRow(3, "Senior", 0);  // redshirted his senior year: stays
    AddPlayerRow(4, "Freshman", 0);
    store().Exec("UPDATE Player SET Suspended = 1 WHERE Id = 4");
    for (int id = 1; id <= 4; ++id) {
      store().Exec(
          "INSERT INTO PlayerStats (Id, Games, Points, PPG, AwardScore) VALUES (?, 3, 30, "
          "10.0, 5.0)",
          id);
      store().Exec("INSERT INTO CareerPlayerStats (Id) VALUES (?)", id);
      store().Exec("INSERT INTO TrainPlayer (PlayerId) VALUES (?)", id);
      store().Exec("INSERT INTO Development (PlayerId) VALUES (?)", id);
      for (int year = 2001; year <= 2006; ++year) {
        store().Exec("INSERT INTO PlayerYearStats (PlayerId, Year) VALUES (?, ?)", id, year);
      }
    }
  }
  void AddPlayerRow(int id, const char* year, int nbaFlag) {
    Player p;
    p.Id = id;
    p.Team = "Home U";
    p.PlayerYear = year;
    p.NBAFlag = nbaFlag;
    AddPlayer(store(), p);
  }
  Store& store() { return program.store(); }
  int64_t Count(const std::string& sql) { return store().ScalarInt(sql).value_or(-1); }
  BlankProgram program{2};
};

TEST_F(BeginOffseasonTest, AFiredCoachIsRefusedAndANoChangesNothing) {
  AddHeadCoach(store(), "Coach", "Fired-Home U", 1);
  EXPECT_EQ(BeginOffseason(program.session()), OffseasonBegin::kRefused);
  EXPECT_EQ(program.ui().Messages().back(),
            "Since you were just fired, you need to choose a team before continuing.");
  store().Exec("UPDATE HeadCoach SET Team = 'Home U'");
  program.ui().QueueAnswer(false);
  EXPECT_EQ(BeginOffseason(program.session()), OffseasonBegin::kDeclined);
  EXPECT_EQ(Count("SELECT count(*) FROM Player"), 4);
  EXPECT_EQ(*store().ScalarText("SELECT Stage FROM Config"), "NBA Draft");
}

TEST_F(BeginOffseasonTest, LeaversGoAndTheSeasonStartsAgainAtZero) {
  AddHeadCoach(store(), "Coach", "Home U", 1);
  ASSERT_EQ(BeginOffseason(program.session()), OffseasonBegin::kBegun);
  EXPECT_EQ(Count("SELECT group_concat(Id, '') FROM Player"), 34);  // "3" and "4"
  for (const char* table : {"PlayerStats", "CareerPlayerStats"}) {
    EXPECT_EQ(Count(std::string("SELECT count(*) FROM ") + table), 2) << table;
  }
  EXPECT_EQ(Count("SELECT count(*) FROM TrainPlayer"), 2);
  EXPECT_EQ(Count("SELECT group_concat(PlayerId, '') FROM Development"), 34);
  EXPECT_EQ(Count("SELECT count(*) FROM PlayerYearStats WHERE PlayerId IN (1, 2)"), 0);
  // 2002 (2006 - 4) goes; 2001 was gone a year ago in a running dynasty.
  EXPECT_EQ(Count("SELECT count(*) FROM PlayerYearStats WHERE Year = 2002"), 0);
  EXPECT_EQ(Count("SELECT count(DISTINCT Year) FROM PlayerYearStats WHERE Year > 2002"), 4);
  EXPECT_EQ(Count("SELECT sum(Games + Points) FROM PlayerStats"), 0);
  EXPECT_EQ(Count("SELECT sum(PPG) FROM PlayerStats"), 0);
  EXPECT_EQ(Count("SELECT sum(AwardScore) FROM PlayerStats"), 10);
  EXPECT_EQ(Count("SELECT Suspended FROM Player WHERE Id = 4"), 0);
  EXPECT_EQ(*store().ScalarText("SELECT Stage FROM Config"), "Begin OffSeason");
}

}  // namespace
}  // namespace courtmere::testing
