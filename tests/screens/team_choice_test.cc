// The team choice of File > New: the prestige options, the grid, and Start.
#include "screens/team_choice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "league/dynasty_fixture.h"
#include "league/new_dynasty.h"
#include "league/prestige_bands.h"
#include "screens/conference_choice.h"

namespace courtmere {
namespace {

// A store at the team choice: nine conferences and their schools, no coach.
struct AtTeamChoice : testing::BlankProgram {
  AtTeamChoice() {
    BeginNewDynasty(session());
    ConferenceChoice leagues(session());
    for (const char* c : {"MVC", "WAC", "Atlantic 10"}) leagues.Add(c);
    leagues.Continue();
  }
  std::vector<int64_t> Prestige() {
    std::vector<int64_t> values;
    for (Rows rows = store().Query("SELECT InitialPrestige FROM Team ORDER BY SchoolName");
         rows.Next();) {
      values.push_back(rows.Int64(0));
    }
    return values;
  }
};

// The shift by which `after` is `before` moved on over the schools, or -1.
int RotationOf(const std::vector<int64_t>& before, const std::vector<int64_t>& after) {
  const size_t n = before.size();
  for (size_t shift = 0; shift < n; ++shift) {
    bool same = true;
    for (size_t i = 0; i < n && same; ++i) same = after[(i + shift) % n] == before[i];
    if (same) return static_cast<int>(shift);
  }
  return -1;
}

TEST(TeamChoice, RandomizeRotatesThePrestigeOverTheSchoolsAndDefaultRestoresIt) {
  AtTeamChoice p;
  TeamChoice choice(p.session());
  const std::vector<int64_t> seed = p.Prestige();
  ASSERT_TRUE(choice.PrestigeButton(false));
  EXPECT_EQ(p.ui().Questions().back(),
            "Do you wish to randomize the prestige levels for all schools?");
  const std::vector<int64_t> once = p.Prestige();
  const int first = RotationOf(seed, once);
  EXPECT_GE(first, 0);
  ASSERT_TRUE(choice.Randomize());
  const std::vector<int64_t> twice = p.Prestige();
  const int second = RotationOf(once, twice);
  EXPECT_GE(second, 0);
  EXPECT_EQ(RotationOf(seed, twice), (first + second) % static_cast<int>(seed.size()));
  std::vector<int64_t> sortedSeed = seed, sortedTwice = twice;
  std::sort(sortedSeed.begin(), sortedSeed.end());
  std::sort(sortedTwice.begin(), sortedTwice.end());
  EXPECT_EQ(sortedSeed, sortedTwice);

  p.ui().QueueAnswer(false);
  EXPECT_FALSE(choice.Default());
  EXPECT_EQ(p.Prestige(), twice);
  ASSERT_TRUE(choice.PrestigeButton(true));
  EXPECT_EQ(p.ui().Questions().back(),
            "Do you wish to go back to the default prestige levels for all schools?");
  EXPECT_EQ(p.Prestige(), seed);
}

TEST(TeamChoice, TheGridReadsTheStartingPrestige) {
  AtTeamChoice p;
  TeamChoice choice(p.session());
  EXPECT_EQ(choice.Conferences().size(), 9u);
  const auto grid = choice.Grid("St. John's");
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"Location:", "Queens, NY"}, {"Population:", "2,229,379"},
      {"Arena Cap.:", "6,008"},    {"Colors:", "Red and White"},
      {"Prestige:", "High"},       {"Expectations:", "Vie for NCT Championship"}};
  EXPECT_EQ(grid, expected);
  p.store().Exec("UPDATE Team SET InitialPrestige = 80 WHERE SchoolName = ?", "St. John's");
  EXPECT_EQ(choice.Grid("St. John's")[4].second, "Elite");
}

TEST(TeamChoice, StartAsksThenNeedsAName) {
  AtTeamChoice p;
  TeamChoice choice(p.session());
  p.ui().QueueAnswer(false);
  EXPECT_FALSE(choice.Start("St. John's", "D'Angelo O'Neil"));
  EXPECT_EQ(p.ui().Questions().back(), "Do you wish to select St. John's?");
  EXPECT_FALSE(choice.Start("St. John's", ""));
  EXPECT_EQ(p.ui().Messages().back(), "Please enter the coach's name before proceeding.");
  EXPECT_EQ(p.store().RowCount("HeadCoach"), 0);
  EXPECT_EQ(p.store().RowCount("Player"), 0);
}

TEST(TeamChoice, StartTakesTheExpectationsOfTheSchoolsBand) {
  AtTeamChoice p;
  p.store().Exec("UPDATE Team SET InitialPrestige = 30 WHERE SchoolName = ?", "Drake");
  TeamChoice choice(p.session());
  ASSERT_TRUE(choice.Start("Drake", "Coach K'nown"));
  EXPECT_EQ(p.store().ScalarInt("SELECT Expectations FROM HeadCoach"), 6);  // "Low"
  EXPECT_EQ(p.store().ScalarText("SELECT Owner FROM Team WHERE SchoolName = 'Drake'"), "Human");
}

TEST(PrestigeBands, AreTakenFromTheTopDown) {
  const std::map<double, std::pair<std::string, int>> cases = {
      {100, {"Elite", 1}},        {74.5, {"Elite", 1}},       {74, {"High", 2}},
      {64.01, {"High", 2}},       {64, {"Above Average", 3}}, {59, {"Average", 4}},
      {49, {"Below Average", 5}}, {39, {"Low", 6}},           {29.5, {"Low", 6}},
      {29, {"Very Low", 7}},      {0, {"Very Low", 7}}};
  for (const auto& [prestige, band] : cases) {
    EXPECT_EQ(BandOf(prestige).Label, band.first) << prestige;
    EXPECT_EQ(BandOf(prestige).Expectations, band.second) << prestige;
  }
  EXPECT_STREQ(BandOf(60).Expectation, "Vie for Conf. Championship");
  EXPECT_STREQ(BandOf(50).Expectation, "Make the NCT");
  EXPECT_STREQ(BandOf(40).Expectation, "Keep the games close");
  EXPECT_STREQ(BandOf(30).Expectation, "Win a few games");
  EXPECT_STREQ(BandOf(75).Expectation, "We want Championships!");
}

}  // namespace
}  // namespace courtmere
