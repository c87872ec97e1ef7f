// The report files' layouts, the invented season of a recruit, and when a
// report is open, on a small store made by hand.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "hand_made_store.h"
#include "history/draft_pool.h"
#include "history/exports.h"
#include "history/fixed_columns.h"
#include "history/invented_line.h"
#include "history/text_reports.h"
#include "platform/rng.h"

namespace courtmere::testing {
namespace {

class Reports : public HandMadeStore {
 protected:
  Reports() {
    AddSchool("Duke", "ACC");
    store().Exec(
        "UPDATE Team SET TeamRating = 501, ScheduleStrength = 471 WHERE SchoolName = 'Duke'");
    store().Exec("INSERT INTO HeadCoach (Id, Name, Team) VALUES (1, 'Coach K', 'Duke')");
  }
  std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }
  void SetStage(const std::string& stage) {
    store().Exec("UPDATE Config SET Stage = ? WHERE IdConfig = 0", stage);
    session().config.Stage = stage;
  }
};

TEST_F(Reports, TheJsbPoolHasAHeaderWithBlanksAndLinesWithout) {
  const int senior = AddPlayer("Sam Senior", "Duke", 5);
  store().Exec(
      "UPDATE Player SET NBAFlag = 1, PlayerYear = 'Senior', Overall = 70, Jumpshot = 60, "
      "InScoring = 80, Potential = 76, AvoidInjury = 91 WHERE Id = ?",
      senior);
  SetSeason(senior, {{"Games", 30},
                     {"Minutes", 900},
                     {"Shots", 300},
                     {"ShotsMade", 150},
                     {"OffRebounds", 60},
                     {"DefRebounds", 140},
                     {"Fouls", 70}});
  // A college man without a shot and no recruit: no line.
  const int quiet = AddPlayer("Quiet Man", "Duke");
  store().Exec("UPDATE Player SET NBAFlag = 1, Overall = 60 WHERE Id = ?", quiet);
  SetSeason(quiet, {{"Games", 2}});
  const int recruit = AddPlayer("Rick Recruit", "East", 1);
  store().Exec("UPDATE Player SET NBAFlag = 1, PlayerYear = 'Recruit', Overall = 65 WHERE Id = ?",
               recruit);
  store().Exec("INSERT INTO Recruit (Id, PPG, RPG, APG, SPG, TOs) VALUES (?, 20, 5, 4, 2, 3)",
               recruit);

  const std::vector<std::string> lines = LinesOf(JsbDraftPool(session()));
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_TRUE(lines[0].starts_with("PLAYER NAME, POS, AGE, G, MIN,"));
  EXPECT_EQ(lines[1], "");
  // Talent (60 + 80) / 2 = 70: 3; skill 76: 4; team 501: 6; comp 471: 2;
  // durable 91: 5; ability 70 + 3.
  EXPECT_TRUE(lines[2].starts_with("Sam Senior,C,22,30,900,150,300,0,0,0,0,60,200,0,0,0,0,70,3,4,"))
      << lines[2];
  EXPECT_TRUE(lines[2].ends_with(",6,2,5,73")) << lines[2];
  EXPECT_EQ(lines[2].find(' ', lines[2].find(',')), std::string::npos);
  // A recruit's team and competition are always 1; his season has 24 games.
  EXPECT_TRUE(lines[3].starts_with("Rick Recruit,PG,1")) << lines[3];
  EXPECT_NE(lines[3].find(",24,"), std::string::npos);
  EXPECT_TRUE(lines[3].ends_with(",1,1,1,68")) << lines[3];

  // The FBB pool has every man, the recruit with his high school.
  store().Exec("UPDATE Player SET HighSchool = 'Central', HomeTown = 'Gary, IN' WHERE Id = ?",
               recruit);
  const std::vector<std::string> fbb = LinesOf(FbbDraftPool(session()));
  ASSERT_EQ(fbb.size(), 5u);
  EXPECT_TRUE(fbb[2].ends_with(",471,76,Duke")) << fbb[2];
  EXPECT_TRUE(fbb[3].ends_with(",0,0,Central (Gary IN)")) << fbb[3];
}

TEST_F(Reports, AnInventedSeasonKeepsItsShares) {
  Rng rng(5);
  int guardBlocks = 100;
  for (int i = 0; i < 400; ++i) {
    const PoolLine centre = InventedLine(rng, 5, {20, 10, 1, 1, 2});
    EXPECT_GE(centre.BLK, 20);
    EXPECT_LE(centre.BLK, 70);
    EXPECT_EQ(centre.G, 24);
    EXPECT_EQ(centre.REB, 240);
    EXPECT_LE(centre.FTM + 3 * centre.ThreeFGM + 2 * centre.FGM, 481);
    EXPECT_GE(centre.FTA, centre.FTM);
    guardBlocks = std::min(guardBlocks, InventedLine(rng, 1, {20, 4, 6, 2, 3}).BLK);
  }
  EXPECT_LE(guardBlocks, 2);
}

TEST_F(Reports, TheDraftListAndTheRosterStandInFixedColumns) {
  EXPECT_EQ(FixedLine("---  -- ----", {"1", "Boston", "x"}), "1    Bo x   ");
  store().Exec(
      "INSERT INTO NBADraft (Pick, Height, Name, School, Team, Position, PPG, RPG, APG) VALUES "
      "(1, '6-11', 'Sam Senior', 'Duke', 'Boston', 'C', 21.25, 9.5, 1)");
  const std::vector<std::string> draft = LinesOf(DraftReport(store()));
  ASSERT_EQ(draft.size(), 3u);
  EXPECT_EQ(draft[2],
            "1     Boston        Sam Senior              Duke              C    6-11  21.2  9.5   "
            "1.0 ");
  const int id = AddPlayer("Sam Senior", "Duke", 5);
  store().Exec("UPDATE Player SET Height = '6-11', PlayerYear = 'Senior', GPA = 3.456 WHERE Id = ?",
               id);
  const std::vector<std::string> roster = LinesOf(RosterReport(store(), "Duke", 2002));
  EXPECT_EQ(roster[0], "2002 Duke ROSTER");
  EXPECT_TRUE(roster[4].starts_with("Sam Senior      C   6-11 Senr ")) << roster[4];
  EXPECT_TRUE(roster[4].ends_with("3.46")) << roster[4];
}

TEST_F(Reports, TeamStatsComeFromMemoryDuringTheSeasonAndFromTheStoreAfterIt) {
  const int id = AddPlayer("S. Senior", "Duke", 5);
  SetSeason(id, {{"Games", 30}, {"Points", 450}, {"PPG", 15}});
  TeamSeasonLines& team = session().seasonStats.Team(1);
  team.SchoolName = "Duke";
  team.Players[1].Id = id;
  team.Players[1].Games = 31;
  team.Players[1].Points = 470;
  SetStage("Season");
  std::vector<std::string> lines = LinesOf(TeamStatsReport(session(), "Duke"));
  EXPECT_EQ(lines[0], "2001 Duke STATS");
  EXPECT_TRUE(lines[4].starts_with("S. Senior        C   31  470 ")) << lines[4];
  SetStage("End Season");
  lines = LinesOf(TeamStatsReport(session(), "Duke"));
  EXPECT_TRUE(lines[4].starts_with("S. Senior        C   30  450 ")) << lines[4];
  EXPECT_TRUE(lines[8].starts_with("S. Senior        C   30  15.0")) << lines[8];
}

TEST_F(Reports, AReportOpensWithItsStageAndAnUnwritableFolderIsRefused) {
  SetStage("Post Training");
  EXPECT_TRUE(ReportClosed(session(), ReportKind::kJsb));
  SetStage("End Season");
  EXPECT_FALSE(ReportClosed(session(), ReportKind::kJsb));
  EXPECT_TRUE(ReportClosed(session(), ReportKind::kDraft));
  SetStage("NBA Draft");
  EXPECT_FALSE(ReportClosed(session(), ReportKind::kDraft));
  SetStage("Begin OffSeason");
  EXPECT_TRUE(ReportClosed(session(), ReportKind::kFbb));
  EXPECT_TRUE(ReportClosed(session(), ReportKind::kStats));

  std::ofstream(folder() / "reports") << "a file where the folder should be";
  EXPECT_THROW(WriteReport(session(), ReportKind::kRoster, "Duke"), ReportError);
  std::filesystem::remove(folder() / "reports");
  const ReportWritten written = WriteReport(session(), ReportKind::kRoster, "Duke");
  EXPECT_EQ(written.path, folder() / "reports" / "DukeRoster2001.txt");
  EXPECT_EQ(written.message, "Your team roster can be found at " + written.path.string());
}

}  // namespace
}  // namespace courtmere::testing
