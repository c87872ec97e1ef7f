// A coached game, driven by scripts through the console screen: timeouts,
// substitutions at a stop, the free-throw refusal, forced substitutions,
// halftime adjustments, leaving the game, coaching only the finish; and the
// box score of a coached game adds up like any other.
#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <string>

#include "engine/box_score.h"
#include "engine_fixture.h"
#include "screens/live_console.h"

namespace courtmere::testing {
namespace {

struct LiveRun {
  std::string out;
  int played = 0;
};

// The user's school is the home side.
void MakeHomeTheUsers(EngineFixture& fixture) {
  fixture.store().Exec("UPDATE Team SET Owner = 'Human' WHERE SchoolName = ?", kHomeSchool);
}

int ChartEntry(EngineFixture& fixture, const char* column) {
  return static_cast<int>(
      fixture.store()
          .ScalarInt(std::string("SELECT ") + column + " FROM Team WHERE SchoolName = ?",
                     kHomeSchool)
          .value_or(0));
}

LiveRun PlayLive(Game& game, const std::string& script, bool autoSub = false,
                 bool finishOnly = false) {
  std::istringstream commands(script);
  std::ostringstream out;
  LiveConsole::Options options;
  options.autoSubstitution = autoSub;
  LiveConsole console(commands, out, options);
  game.screen = &console;
  GameRequest request;
  request.HomeTeam = kHomeSchool;
  request.AwayTeam = kAwaySchool;
  request.GameType = "Conference";
  request.GameNo = 1;
  request.Live = finishOnly ? 0 : 1;
  request.CoachFinish = finishOnly ? 1 : 0;
  request.WriteFiles = false;
  DayResults day;
  std::string box;
  std::string log = "none";
  LiveRun run;
  run.played = RunEngine(game, day, request, box, log);
  run.out = out.str();
  game.screen = nullptr;
  return run;
}

// Every side's men add up to its team line, and that to its score.
void ExpectAddsUp(const Game& game) {
  for (const GameSide& side : game.sides) {
    int points = 0;
    for (int i = 1; i <= side.RosterCount; ++i) points += side.Stats[i].Points;
    EXPECT_EQ(points + side.Unattributed.Points, side.Team().Points);
    EXPECT_EQ(side.Team().Points, side.Score);
  }
}

int Count(const std::string& text, const std::string& part) {
  int n = 0;
  for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++n;
  return n;
}

TEST(LiveGame, TimeoutsAreTakenAtTheNextDeadBallUntilNoneAreLeft) {
  EngineFixture fixture(11);
  MakeHomeTheUsers(fixture);
  Game game(fixture.session());
  const LiveRun run = PlayLive(game,
                               "at 2 15:00\ntimeout\nat 2 12:00\ntimeout\nat 2 09:00\ntimeout\n"
                               "at 2 06:00\ntimeout\n");
  ASSERT_EQ(run.played, 1);
  EXPECT_EQ(Count(run.out, "***St. John's TIMEOUT***"), 3);
  // Each one taken leaves one less; the fourth request finds none.
  EXPECT_NE(run.out.find("Timeouts left: St. John's 2, Lakeview State 3\n"), std::string::npos);
  EXPECT_NE(run.out.find("Timeouts left: St. John's 0, Lakeview State 3\n"), std::string::npos);
  // Asked at 15:00 of the second half, taken no earlier.
  const std::smatch first = [&] {
    std::smatch m;
    std::regex_search(run.out, m, std::regex(R"((\d) (\d\d):(\d\d)  \*\*\*St\. John's TIMEOUT)"));
    return m;
  }();
  ASSERT_FALSE(first.empty());
  EXPECT_EQ(first[1], "2");
  EXPECT_LE(std::stoi(first[2]) * 60 + std::stoi(first[3]), 15 * 60);
  EXPECT_EQ(Count(run.out, "> Your team will call timeout at the next opportunity"), 3);
  ExpectAddsUp(game);
}

TEST(LiveGame, ASubIsMadeAtTheNextStopAndHalftimeTakesTheSavedGameplan) {
  EngineFixture fixture(12);
  MakeHomeTheUsers(fixture);
  // A chart without the short roster's repeats in its third row, as the
  // user would have set it.
  fixture.store().Exec("UPDATE Team SET SF3 = 100, PF3 = 101, C3 = 105 WHERE SchoolName = ?",
                       kHomeSchool);
  const int pointGuard = ChartEntry(fixture, "PG1");
  const int thirdGuard = ChartEntry(fixture, "SG3");
  Game game(fixture.session());
  const std::string script = "at 1 15:00\nsub " + std::to_string(pointGuard) + " " +
                             std::to_string(thirdGuard) +
                             "\nat 1 05:00\ndefence Matchup Zone\ngameplan\n";
  const LiveRun run = PlayLive(game, script);
  ASSERT_EQ(run.played, 1);
  EXPECT_NE(run.out.find("> You will be able to make Subs at the next stop in play"),
            std::string::npos);
  EXPECT_NE(run.out.find("> Your lineup is now updated."), std::string::npos);
  EXPECT_NE(run.out.find("> Your Adjustments have been saved."), std::string::npos);
  EXPECT_NE(run.out.find("ST. JOHN'S SUB  -  "), std::string::npos);
  // Halftime read the saved chart and tactics back into the game.
  EXPECT_EQ(ChartEntry(fixture, "PG1"), thirdGuard);
  EXPECT_EQ(game.Home().Depth[1], thirdGuard);
  EXPECT_EQ(game.Home().tactics.Defense(), "Matchup Zone");
  ExpectAddsUp(game);
}

// Asks for a stop before every line; at the first free throw of the user's
// side, tries to take the shooter off.
class FreeThrowProbe : public LiveConsole {
 public:
  using LiveConsole::LiveConsole;
  void ShowPlay(Game& game, PlayKind kind, std::string_view text,
                std::string_view listLine) override {
    if (reply.empty() && game.UserSubAsked == 0) PressSub(game);
    LiveConsole::ShowPlay(game, kind, text, listLine);
  }
  void OpenSubstitutions(Game& game) override {
    LiveConsole::OpenSubstitutions(game);
    if (!reply.empty() || game.AtFreeThrowLine != 1 || game.Possession != Side::Home) return;
    GameSide& home = game.Home();
    std::array<int, 5> five{};
    for (int slot = 1; slot <= 5; ++slot) five[slot - 1] = home.Court[slot].Id;
    const int shooter = home.Court[game.BallPos].Id;
    five[game.BallPos - 1] = home.Bench[1].Id;
    reply = UpdateLineup(game, five).message;
    stillOn = home.Court[game.BallPos].Id == shooter;
  }
  std::string reply;
  bool stillOn = false;
};

TEST(LiveGame, TheManAtTheFreeThrowLineCannotBeSubbed) {
  EngineFixture fixture(13);
  MakeHomeTheUsers(fixture);
  Game game(fixture.session());
  std::istringstream none;
  std::ostringstream out;
  FreeThrowProbe probe(none, out, {});
  game.screen = &probe;
  GameRequest request;
  request.HomeTeam = kHomeSchool;
  request.AwayTeam = kAwaySchool;
  request.Live = 1;
  request.WriteFiles = false;
  DayResults day;
  std::string box;
  std::string log = "none";
  ASSERT_EQ(RunEngine(game, day, request, box, log), 1);
  EXPECT_EQ(probe.reply, "You cannot sub for a player shooting freethrows.");
  EXPECT_TRUE(probe.stillOn);
}

TEST(LiveGame, AFoulOutForcesASubAndTheGameGoesOnWithAFullFloor) {
  // The user's men rest only when he rests them: over a few games one of
  // them fouls out.
  bool seen = false;
  for (uint64_t seed = 1; seed <= 12 && !seen; ++seed) {
    EngineFixture fixture(seed);
    MakeHomeTheUsers(fixture);
    Game game(fixture.session());
    const LiveRun run = PlayLive(game, "");
    ASSERT_EQ(run.played, 1);
    const size_t box = run.out.find("> You had a player foul out, please sub in another player.");
    if (box == std::string::npos) continue;
    seen = true;
    EXPECT_NE(run.out.find("fouled out of the game", box > 400 ? box - 400 : 0), std::string::npos);
    EXPECT_EQ(game.SubForced, 0);
    EXPECT_TRUE(game.Home().FloorFull());
    ExpectAddsUp(game);
  }
  EXPECT_TRUE(seen);
}

TEST(LiveGame, ExitLeavesTheRestToTheComputer) {
  EngineFixture fixture(14);
  MakeHomeTheUsers(fixture);
  Game game(fixture.session());
  const LiveRun run = PlayLive(game, "at 1 10:00\nexit\n");
  ASSERT_EQ(run.played, 1);
  EXPECT_EQ(run.out.find("\n2 "), std::string::npos);  // no line of the second half
  EXPECT_EQ(run.out.find("Final:"), std::string::npos);
  EXPECT_EQ(game.LiveGame, 0);
  EXPECT_GT(game.Half, 2);
  ExpectAddsUp(game);
}

TEST(LiveGame, WithNoCommandsAndAutomaticSubsTheGameIsTheUnattendedOne) {
  EngineFixture unattended(15);
  MakeHomeTheUsers(unattended);
  Game plain(unattended.session());
  DayResults day;
  ASSERT_EQ(unattended.Play(plain, day, 0, false, false), 1);

  EngineFixture coached(15);
  MakeHomeTheUsers(coached);
  Game live(coached.session());
  ASSERT_EQ(PlayLive(live, "", true).played, 1);
  EXPECT_EQ(FormatBoxScore(live), FormatBoxScore(plain));
}

TEST(LiveGame, CoachingTheFinishOpensOnlyOnACloseEndGame) {
  int opened = 0;
  for (uint64_t seed = 1; seed <= 8; ++seed) {
    EngineFixture fixture(seed);
    MakeHomeTheUsers(fixture);
    Game game(fixture.session());
    const LiveRun run = PlayLive(game, "", false, true);
    ASSERT_EQ(run.played, 1);
    ExpectAddsUp(game);
    if (run.out.empty()) continue;
    ++opened;
    std::smatch m;
    ASSERT_TRUE(std::regex_search(run.out, m, std::regex(R"(\n(\d) (\d\d):(\d\d)  )")));
    EXPECT_GE(std::stoi(m[1]), 2);
    EXPECT_LT(std::stoi(m[2]) * 60 + std::stoi(m[3]), 180);
    EXPECT_NE(run.out.find("Final:"), std::string::npos);
  }
  EXPECT_GT(opened, 0);
}

}  // namespace
}  // namespace courtmere::testing
