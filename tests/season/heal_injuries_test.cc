// The weekly healing: the trainer's threshold with its rounding, one draw
// per injured man in table order, and who is left alone.
#include "season/heal_injuries.h"

#include <gtest/gtest.h>

#include <utility>

#include "people/league_fixture.h"
#include "platform/numeric.h"
#include "platform/rng.h"

namespace courtmere {
namespace {

TEST(HealingThreshold, AboveEightyFiveTwoElseHalfTheGapToNinetyRoundedToEven) {
  // 85 gives 2.5, 53 18.5, 51 19.5, 49 20.5: halves round to even.
  const std::pair<int, int> cases[] = {{100, 2}, {86, 2},  {85, 2},  {84, 3}, {53, 18},
                                       {51, 20}, {50, 20}, {49, 20}, {0, 45}};
  for (auto [ability, threshold] : cases)
    EXPECT_EQ(HealingThreshold(ability), threshold) << ability;
}

class HealInjuriesTest : public ::testing::Test {
 protected:
  static constexpr uint64_t kSeed = 41;
  HealInjuriesTest() : league_(kSeed) {
    league_.AddTeam("St. John's", "East", 60);
    league_.AddTeam("No Trainer U", "East", 60);
    store().Append("Trainer", {{"Name", "T"}, {"Team", "St. John's"}, {"Ability", int64_t{50}}});
  }
  Store& store() { return league_.store(); }
  int Injure(const std::string& team, int weeks, const std::string& health = "Knee") {
    const int id = league_.AddPlayer(team, 1, 50);
    store().Exec("UPDATE Player SET Health = ?, TimeInjured = ? WHERE Id = ?", health, weeks, id);
    return id;
  }
  int TimeInjured(int id) {
    return static_cast<int>(*store().ScalarInt("SELECT TimeInjured FROM Player WHERE Id = ?", id));
  }
  std::string Health(int id) {
    return *store().ScalarText("SELECT Health FROM Player WHERE Id = ?", id);
  }

  testing::LeagueFixture league_;
};

TEST_F(HealInjuriesTest, EachInjuredManOfTheFirstDivisionDrawsOnceInTableOrder) {
  struct Case {
    int id;
    int weeks;
    int threshold;
  };
  std::vector<Case> cases;
  const int healthy = league_.AddPlayer("St. John's", 2, 60);
  for (int i = 0; i < 60; ++i) {
    const bool trained = i % 2 == 0;
    const int weeks = i % 4;  // 0: a knock of a week or less
    cases.push_back(
        {Injure(trained ? "St. John's" : "No Trainer U", weeks), weeks, trained ? 20 : 45});
  }
  // A background team's man does not heal, nor draw.
  league_.AddScrubTeam("Little U", 40);
  store().Append("ScrubPlayer", {{"Id", int64_t{9000}},
                                 {"Team", "Little U"},
                                 {"Health", "Knee"},
                                 {"TimeInjured", int64_t{1}}});
  HealInjuries(league_.session());
  EXPECT_EQ(store().ScalarText("SELECT Health FROM ScrubPlayer WHERE Id = 9000"), "Knee");
  EXPECT_EQ(store().ScalarInt("SELECT TimeInjured FROM ScrubPlayer WHERE Id = 9000"), 1);

  // The same generator, drawn once per injured man in the order of the rows.
  Rng replay(kSeed);
  int counted = 0;
  for (const Case& c : cases) {
    const int r = Int(replay.Rnd() * 100 + 1);
    const int left = c.weeks - (r > c.threshold ? 1 : 0);
    counted += r > c.threshold ? 1 : 0;
    if (left > 0) {
      EXPECT_EQ(TimeInjured(c.id), left) << c.id;
      EXPECT_EQ(Health(c.id), "Knee");
    } else {
      EXPECT_EQ(TimeInjured(c.id), 0) << c.id;
      EXPECT_EQ(Health(c.id), "Good") << c.id;
    }
  }
  // Both outcomes happened, so the comparison above was put to the test.
  EXPECT_GT(counted, 0);
  EXPECT_LT(counted, 60);
  EXPECT_EQ(Health(healthy), "Good");
}

}  // namespace
}  // namespace courtmere
