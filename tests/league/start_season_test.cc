// Start Season: its two refusals and its warning change nothing; once it
// runs, the season stands on Thursday of week 1 with its recruit pool, its
// walk-ons, the computer's rosters and the assistant's letter.
#include "league/start_season.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "league/dynasty_fixture.h"

namespace courtmere {
namespace {

using testing::DynastyFixture;
using testing::kUserSchool;

// A dynasty whose user has exactly `games` non-conference games.
struct ReadyDynasty : DynastyFixture {
  explicit ReadyDynasty(int games = 4) {
    store().Exec("DELETE FROM NonConfSchedule WHERE HomeTeam = ? OR AwayTeam = ?", kUserSchool,
                 kUserSchool);
    AddNonConferenceGames(games);
  }
};

// Each refusal and a No to the warning leave the store as it was.
TEST(StartSeason, ItsRefusalsAndANoToTheWarningChangeNothing) {
  ReadyDynasty d;
  Store& s = d.store();
  const std::string before = testing::DumpStore(s);
  auto expectUnchanged = [&](SeasonStart expected) {
    const std::string now = testing::DumpStore(s);
    EXPECT_EQ(StartSeason(d.session()), expected);
    EXPECT_TRUE(testing::DumpStore(s) == now);
  };
  const int64_t last =
      *s.ScalarInt("SELECT max(GameNo) FROM NonConfSchedule WHERE HomeTeam = ?", kUserSchool);
  s.Exec("UPDATE NonConfSchedule SET HomeTeam = 'Nobody' WHERE GameNo = ?", last);
  expectUnchanged(SeasonStart::kRefused);
  EXPECT_EQ(d.ui().Messages().back(),
            "Please setup your full four game non-conference schedule before starting the season");
  EXPECT_TRUE(d.ui().Questions().empty());
  s.Exec("UPDATE NonConfSchedule SET HomeTeam = ? WHERE GameNo = ?", kUserSchool, last);
  ASSERT_TRUE(testing::DumpStore(s) == before);

  d.ui().QueueAnswer(false);
  expectUnchanged(SeasonStart::kDeclined);
  EXPECT_EQ(d.ui().Questions().back(),
            "Once you start the season you will no longer have the ability to pick your "
            "non-conference schedule, change your staff, assign redshirts, cut players and switch "
            "player positions. Do you wish to proceed?");

  s.Exec("DELETE FROM Coach WHERE Id = (SELECT min(Id) FROM Coach WHERE Team = 'St. John''s')");
  expectUnchanged(SeasonStart::kRefused);
  EXPECT_EQ(d.ui().Messages().back(),
            "Please setup your full three member coaching staff before starting the season");
}

class StartedSeason : public ::testing::Test {
 protected:
  void SetUp() override {
    Store& s = d_.store();
    s.Exec("DELETE FROM Player WHERE Id IN (SELECT Id FROM Player WHERE Team = 'Duke' LIMIT 2)");
    s.Exec("UPDATE Player SET Health = 'Sprained ankle', TimeInjured = 3 WHERE Id = 1");
    s.Append("Messages", {{"Type", "Injury"}, {"Week", int64_t{12}}, {"Message", "old"}});
    ASSERT_EQ(StartSeason(d_.session()), SeasonStart::kStarted);
  }
  Store& store() { return d_.store(); }
  ReadyDynasty d_;
};

TEST_F(StartedSeason, StandsOnThursdayOfWeekOneWithItsPoolsRostersPollAndLetter) {
  const Config c = LoadConfig(store());
  EXPECT_EQ(c.Stage, "Season");
  EXPECT_EQ(c.CurrWeek, 1);
  EXPECT_EQ(c.CurrDay, "Thursday");
  EXPECT_EQ(d_.session().config.Stage, "Season");
  const std::vector<std::string> steps = {
      "Clearing Old Season", "Creating Recruits", "Ranking Recruits",     "Creating Schedule",
      "Ranking Teams",       "Loading Players",   "Assessing CPU rosters"};
  EXPECT_EQ(d_.ui().Captions(), steps);
  EXPECT_EQ(d_.Count("SELECT Health = 'Good' AND TimeInjured = 0 FROM Player WHERE Id = 1"), 1);
  for (const char* folder : {"SaveGame", "log", "reports"}) {
    EXPECT_TRUE(std::filesystem::is_directory(d_.folder() / folder)) << folder;
  }
  EXPECT_EQ(store().ScalarText("SELECT Team FROM TeamRecruit"), kUserSchool);

  // It draws and ranks the regional pools of recruits.
  EXPECT_GT(d_.Count("SELECT count(*) FROM Recruit"), 200);
  EXPECT_EQ(d_.Count("SELECT NumRecruits FROM Config"), d_.Count("SELECT count(*) FROM Recruit"));
  EXPECT_EQ(d_.Count("SELECT count(*) FROM Recruit JOIN Player USING (Id) WHERE Player.Team <> "
                     "Recruit.Region OR PlayerYear <> 'Recruit'"),
            0);
  EXPECT_EQ(d_.Count("SELECT count(DISTINCT Region) FROM Recruit"), 4);
  EXPECT_EQ(d_.Count("SELECT count(*) FROM Recruit WHERE Team1 = '' OR Team2 = '' OR Team3 = '' "
                     "OR Team1 = Team2 OR Team2 = Team3 OR Team1 = Team3"),
            0);
  for (int position = 1; position <= 5; ++position) {
    EXPECT_EQ(d_.Count("SELECT count(DISTINCT PosRank) FROM Recruit JOIN Player USING (Id) "
                       "WHERE PosRank > 0 AND PlayerPosition = " +
                       std::to_string(position)),
              15);
  }
  EXPECT_EQ(d_.Count("SELECT count(DISTINCT Top50Rank) FROM Recruit WHERE Top50Rank > 0"), 50);
  // The top 50 follows RankPoints, and no one outside it has more points.
  EXPECT_EQ(d_.Count("SELECT count(*) FROM Recruit a JOIN Recruit b ON a.Top50Rank > 0 AND "
                     "(b.Top50Rank = 0 OR b.Top50Rank > a.Top50Rank) AND "
                     "b.RankPoints > a.RankPoints"),
            0);

  // Short rosters are filled with senior walk-ons.
  EXPECT_EQ(d_.Count("SELECT count(*) FROM Team WHERE (SELECT count(*) FROM Player WHERE "
                     "Player.Team = Team.SchoolName) < 13"),
            0);
  EXPECT_EQ(d_.Count("SELECT count(*) FROM Player WHERE Team = 'Duke' AND Id > (SELECT "
                     "max(Id) FROM Recruit) AND PlayerYear = 'Senior' AND NBAFlag = 1"),
            2);

  // Every school is ranked in the preseason poll.
  const int64_t schools =
      d_.Count("SELECT count(*) FROM Team") + d_.Count("SELECT count(*) FROM ScrubTeam");
  EXPECT_EQ(d_.Count("SELECT count(DISTINCT TeamRanking) FROM Ranking WHERE TeamRanking > 0"),
            schools);
  // Before any game, by prestige, rating and the schedule strength of the
  // same step.
  EXPECT_EQ(
      d_.Count("SELECT count(*) FROM Ranking JOIN Team USING (SchoolName) WHERE "
               "abs(TeamPoints - (Prestige + TeamRating / 7.0 + ScheduleStrength / 7.0)) > 1e-9"),
      0);

  // The computer's rosters are set and the letter written.
  EXPECT_EQ(d_.Count("SELECT count(*) FROM Team WHERE PG1 = 0 AND Owner = 'Computer'"), 0);
  EXPECT_EQ(d_.Count("SELECT count(*) FROM ScrubTeam WHERE PG1 = 0"), 0);
  EXPECT_EQ(d_.Count("SELECT PG1 FROM Team WHERE Owner = 'Human'"), 0);
  EXPECT_EQ(d_.Count("SELECT count(*) FROM Messages"), 1);
  EXPECT_EQ(store().ScalarText("SELECT Type FROM Messages"), "Team");
  const Inbox& inbox = d_.session().inbox;
  ASSERT_EQ(inbox.Messages.size(), 1u);
  EXPECT_EQ(inbox.Messages[0].Subject, "Season Instructions");
  EXPECT_EQ(inbox.Week, 1);
}

TEST(StartSeason, FilesLastSeasonsBoxScoresWhenTheOptionIsOn) {
  for (int option : {0, 1}) {
    ReadyDynasty d;
    d.store().Exec("UPDATE Config SET NumPlayers = ?", option);
    const auto log = d.folder() / "log";
    std::filesystem::create_directories(log);
    std::filesystem::create_directories(d.folder() / "St. John's2001" / "1");
    std::ofstream(log / "Box12.txt") << "box";
    std::ofstream(log / "Game12.txt") << "log";
    std::ofstream(log / "notes.dat") << "kept";
    ASSERT_EQ(StartSeason(d.session()), SeasonStart::kStarted);
    EXPECT_FALSE(std::filesystem::exists(log / "Box12.txt"));
    EXPECT_FALSE(std::filesystem::exists(log / "Game12.txt"));
    EXPECT_TRUE(std::filesystem::exists(log / "notes.dat"));
    EXPECT_EQ(std::filesystem::exists(d.folder() / "St. John's2001" / "2" / "Box12.txt"),
              option == 1);
  }
}

}  // namespace
}  // namespace courtmere
