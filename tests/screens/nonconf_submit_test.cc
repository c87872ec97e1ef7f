// Submitting the non-conference screen: the question, the three refusals
// that change nothing, and the hand-over that keeps every other school's
// games.
#include "screens/nonconf_submit.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

#include "schedule/league_schedule.h"
#include "schedule/schedule_league.h"

namespace courtmere {
namespace {

using testing::ScheduleLeague;
using testing::ScheduleRow;

constexpr const char* kUser = "Clemson";

class NonConfSubmitTest : public ::testing::Test {
 protected:
  NonConfSubmitTest() : league_({"Big Sky", "MAC", "Northeast"}, 33) {
    BuildLeagueSchedules(league_.session());
    league_.SetUser(kUser);
  }

  // Every row of NonConfSchedule as text, to tell whether anything changed.
  std::vector<std::string> Snapshot() {
    std::vector<std::string> rows;
    for (const ScheduleRow& r : league_.NonConfRows()) {
      rows.push_back(std::to_string(r.GameNo) + r.HomeTeam + "|" + r.HomeConf + "|" + r.AwayTeam +
                     "|" + r.AwayConf);
    }
    return rows;
  }

  std::map<std::string, int> GamesPerSchool() {
    std::map<std::string, int> games;
    for (const ScheduleRow& r : league_.NonConfRows()) {
      ++games[r.HomeTeam];
      ++games[r.AwayTeam];
    }
    return games;
  }

  // The present opponents, with the choice at `row` replaced.
  static std::vector<std::string> Keep(const NonConfScreen& screen, size_t row = SIZE_MAX,
                                       const std::string& school = "") {
    std::vector<std::string> choices;
    for (size_t i = 0; i < screen.Rows.size(); ++i) {
      choices.push_back(i == row ? school : screen.Rows[i].Opponent);
    }
    return choices;
  }

  // The opponent of `school` on the day of `row`, and its conference.
  std::pair<std::string, std::string> OpponentOn(const NonConfRow& row, const std::string& school) {
    Rows rows = league_.store().Query(
        "SELECT HomeTeam, HomeConf, AwayTeam, AwayConf FROM NonConfSchedule WHERE Week = ? AND "
        "GameDay = ? AND (HomeTeam = ? OR AwayTeam = ?)",
        row.Week, row.GameDay, school, school);
    if (!rows.Next()) return {};
    const bool home = rows.Text(0) == school;
    return {rows.Text(home ? 2 : 0), rows.Text(home ? 3 : 1)};
  }

  // The first (row, candidate) of the later games that `fits`.
  std::pair<size_t, std::string> FindChoice(
      const NonConfScreen& screen,
      const std::function<bool(const NonConfRow&, const std::string&)>& fits) {
    for (size_t i = 0; i < screen.Rows.size(); ++i) {
      for (size_t c = 1; c < screen.Rows[i].Choices.size(); ++c) {
        if (fits(screen.Rows[i], screen.Rows[i].Choices[c].School)) {
          return {i, screen.Rows[i].Choices[c].School};
        }
      }
    }
    return {SIZE_MAX, ""};
  }

  void ExpectNobodyPlaysTwiceADay() {
    std::set<std::tuple<std::string, int, std::string>> busy;
    for (const ScheduleRow& r : league_.NonConfRows()) {
      for (const std::string& school : {r.HomeTeam, r.AwayTeam}) {
        if (school.size() > 1 && school[1] == '-') continue;
        EXPECT_TRUE(busy.insert({school, r.Week, r.GameDay}).second) << school;
      }
    }
  }

  ScheduleLeague league_;
};

TEST_F(NonConfSubmitTest, RefusalsAndANoChangeNothing) {
  const NonConfScreen screen = ShowOtherGames(league_.session(), kUser);
  ASSERT_GE(screen.Rows.size(), 2u);
  const std::vector<std::string> before = Snapshot();
  ScriptedUi& ui = league_.ui();

  ui.QueueAnswer(false);
  EXPECT_FALSE(
      SubmitGames(league_.session(), screen, Keep(screen, 0, screen.Rows[0].Choices[1].School)));
  EXPECT_TRUE(ui.Messages().empty());

  EXPECT_FALSE(SubmitGames(league_.session(), screen, Keep(screen, 0, screen.Rows[1].Opponent)));
  EXPECT_EQ(ui.Messages().back(), kSameTeamTwice);

  EXPECT_FALSE(SubmitGames(league_.session(), screen, Keep(screen, 1, "")));
  EXPECT_EQ(ui.Messages().back(), kSelectEveryGame);
  EXPECT_EQ(Snapshot(), before);
}

TEST_F(NonConfSubmitTest, TheQuestionNamesEveryChoice) {
  const NonConfScreen screen = ShowOtherGames(league_.session(), kUser);
  ASSERT_GE(screen.Rows.size(), 3u);
  league_.ui().QueueAnswer(false);
  SubmitGames(league_.session(), screen, Keep(screen));
  const std::vector<std::string> names = Keep(screen);
  std::string list;
  for (size_t i = 0; i + 1 < names.size(); ++i) list += names[i] + ", ";
  list += "and " + names.back();
  EXPECT_EQ(league_.ui().Questions().back(),
            "Do you wish to schedule " + list + " for your nonconference opponent?");
}

TEST_F(NonConfSubmitTest, TheDisplacedOpponentTakesOverTheChosenSchoolsGame) {
  const NonConfScreen screen = ShowOtherGames(league_.session(), kUser);
  const auto [row, chosen] = FindChoice(screen, [&](const NonConfRow& r, const std::string& s) {
    const auto opponent = OpponentOn(r, s);
    return !league_.IsBackground(opponent.first) && opponent.second != r.OpponentConf;
  });
  ASSERT_NE(row, SIZE_MAX);
  const NonConfRow& game = screen.Rows[row];
  const auto [other, otherConf] = OpponentOn(game, chosen);
  const std::map<std::string, int> before = GamesPerSchool();

  EXPECT_TRUE(SubmitGames(league_.session(), screen, Keep(screen, row, chosen)));
  EXPECT_EQ(league_.ui().Messages().back(), kChangesSaved);
  EXPECT_EQ(OpponentOn(game, kUser), std::pair(chosen, league_.ConferenceOf(chosen)));
  EXPECT_EQ(OpponentOn(game, game.Opponent), std::pair(other, otherConf));
  EXPECT_EQ(GamesPerSchool(), before);
  ExpectNobodyPlaysTwiceADay();
}

TEST_F(NonConfSubmitTest, TheGameGoesWhenConferenceMatesWouldMeet) {
  const NonConfScreen screen = ShowOtherGames(league_.session(), kUser);
  const auto [row, chosen] = FindChoice(screen, [&](const NonConfRow& r, const std::string& s) {
    return OpponentOn(r, s).second == r.OpponentConf;
  });
  ASSERT_NE(row, SIZE_MAX);
  const NonConfRow& game = screen.Rows[row];
  const std::string other = OpponentOn(game, chosen).first;
  std::map<std::string, int> expected = GamesPerSchool();
  --expected[game.Opponent];
  --expected[other];

  EXPECT_TRUE(SubmitGames(league_.session(), screen, Keep(screen, row, chosen)));
  EXPECT_EQ(OpponentOn(game, kUser).first, chosen);
  EXPECT_TRUE(OpponentOn(game, game.Opponent).first.empty());
  EXPECT_TRUE(OpponentOn(game, other).first.empty());
  std::map<std::string, int> after = GamesPerSchool();
  std::erase_if(expected, [](const auto& e) { return e.second == 0; });
  EXPECT_EQ(after, expected);
  ExpectNobodyPlaysTwiceADay();
}

TEST_F(NonConfSubmitTest, TwoBackgroundTeamsAreNeverLeftToMeet) {
  // Week 1, Thursday: every game is a first-division school against a
  // background team, so a first-division school chosen there leaves its
  // background opponent facing the user's.
  const NonConfScreen screen = ShowPreConferenceGames(league_.session(), kUser);
  ASSERT_TRUE(screen.Rows[0].Offered());
  const NonConfRow& game = screen.Rows[0];
  ASSERT_TRUE(league_.IsBackground(game.Opponent));
  const std::string chosen = *league_.store().ScalarText(
      "SELECT HomeTeam FROM NonConfSchedule WHERE Week = 1 AND GameDay = 'Thursday' AND "
      "GameType = 'NonConference' AND HomeConf NOT IN ('ACC', ?) LIMIT 1",
      game.OpponentConf);
  const std::string other = OpponentOn(game, chosen).first;
  ASSERT_TRUE(league_.IsBackground(other));

  EXPECT_TRUE(SubmitGames(league_.session(), screen, Keep(screen, 0, chosen)));
  EXPECT_EQ(OpponentOn(game, kUser).first, chosen);
  EXPECT_TRUE(OpponentOn(game, other).first.empty());
  for (const ScheduleRow& r : league_.NonConfRows()) {
    EXPECT_FALSE(league_.IsBackground(r.HomeTeam) && league_.IsBackground(r.AwayTeam));
  }
}

}  // namespace
}  // namespace courtmere
