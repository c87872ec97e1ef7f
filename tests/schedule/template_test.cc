// The templates as tables: their sizes, that no slot plays twice on a day,
// that open dates never fall on a conference game, and the shapes the
// types promise (round robins, travel partners, games a season).
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <utility>

#include "schedule/schedule_templates.h"
#include "schedule/schedule_types.h"

namespace courtmere {
namespace {

const char* const kAllTypes[] = {"8", "9", "10", "11", "12A", "12B", "12C", "13", "14A", "14B"};

// (division, slot) of a school in its conference.
using Team = std::pair<int, int>;

Team Home(const TemplateGame& g) {
  return {g.home.division, g.home.slot};
}
Team Away(const TemplateGame& g) {
  return {g.away.division, g.away.slot};
}

std::map<Team, SlotSet> Playing(const std::vector<TemplateGame>& games) {
  std::map<Team, SlotSet> playing;
  for (const TemplateGame& g : games) {
    const int slot = SlotOf(g.week, g.saturday);
    for (const Team& t : {Home(g), Away(g)}) {
      EXPECT_FALSE(playing[t].test(slot))
          << "slot " << t.second << " plays twice in week " << g.week;
      playing[t].set(slot);
    }
  }
  return playing;
}

TEST(TemplateTest, TablesHoldTheirNumberOfGames) {
  const std::pair<TemplateTable, size_t> sizes[] = {
      {TemplateTable::k8, 56},          {TemplateTable::k9, 72},
      {TemplateTable::k10, 90},         {TemplateTable::k11, 88},
      {TemplateTable::k12A, 96},        {TemplateTable::k13, 78},
      {TemplateTable::kDivision14, 42}, {TemplateTable::kCross14, 28},
      {TemplateTable::kDivision12, 30}, {TemplateTable::kCross12, 36},
  };
  for (const auto& [table, size] : sizes) {
    EXPECT_EQ(TemplateGames(table).size(), size) << static_cast<int>(table);
  }
}

TEST(TemplateTest, GamesAreAddedLeftToRightThursdayFirst) {
  const std::vector<TemplateGame> games = TemplateGames(TemplateTable::k9);
  // Week 6 has no Thursday games: "6-1 2-3 4-7 9-8" on Saturday comes first.
  ASSERT_GE(games.size(), 5u);
  EXPECT_EQ(games[0].week, 6);
  EXPECT_TRUE(games[0].saturday);
  EXPECT_EQ(games[0].home.slot, 6);
  EXPECT_EQ(games[0].away.slot, 1);
  EXPECT_EQ(games[3].home.slot, 9);
  EXPECT_EQ(games[3].away.slot, 8);
  EXPECT_EQ(games[4].week, 7);
  EXPECT_FALSE(games[4].saturday);
  const std::vector<TemplateGame> cross = TemplateGames(TemplateTable::kCross14);
  EXPECT_EQ(cross[6].home.division, 1);  // "B1-A6" in week 9
  EXPECT_EQ(cross[6].home.slot, 1);
  EXPECT_EQ(cross[6].away.division, 0);
  EXPECT_EQ(cross[6].away.slot, 6);
}

TEST(TemplateTest, EverySlotOfEveryTypeIsUsedAndNeverTwiceADay) {
  for (const char* code : kAllTypes) {
    SCOPED_TRACE(code);
    const ScheduleType& type = *FindScheduleType(code);
    const std::map<Team, SlotSet> playing = Playing(ConferenceTemplate(type));
    EXPECT_EQ(playing.size(), static_cast<size_t>(type.teams * (type.twoDivisions ? 2 : 1)));
  }
}

// Conference games plus open dates: the games a school plays before the
// conference tournament, when it is not in a preseason tournament.
int SeasonGames(const ScheduleType& type, const char* conference, Team team,
                const SlotSet& playing) {
  SlotSet open = TemplateOpenDates(type, conference, team.first, team.second, playing);
  EXPECT_FALSE((open & playing).any()) << "an open date falls on a conference game of slot "
                                       << team.second << " division " << team.first;
  for (int s = 1; s <= 8; ++s) open.set(s);
  return static_cast<int>(open.count() + playing.count());
}

TEST(TemplateTest, OpenDatesFallOnFreeDaysAndFillTheSeason) {
  const std::pair<const char*, int> expected[] = {
      {"8", 28},   {"9", 27},   {"10", 27}, {"11", 27},  {"12A", 27},
      {"12B", 27}, {"12C", 27}, {"13", 28}, {"14A", 26}, {"14B", 26},
  };
  for (const auto& [code, games] : expected) {
    SCOPED_TRACE(code);
    const ScheduleType& type = *FindScheduleType(code);
    for (const auto& [team, slots] : Playing(ConferenceTemplate(type))) {
      EXPECT_EQ(SeasonGames(type, "Atlantic 10", team, slots), games);
      // The Big 12 and the SEC have no open date on slot 12.
      if (type.twoDivisions && type.teams == 6) {
        EXPECT_EQ(SeasonGames(type, "SEC", team, slots), games - 1);
      }
    }
  }
}

std::map<std::pair<int, int>, int> Meetings(const std::vector<TemplateGame>& games) {
  std::map<std::pair<int, int>, int> meetings;
  for (const TemplateGame& g : games) {
    ++meetings[{std::min(g.home.slot, g.away.slot), std::max(g.home.slot, g.away.slot)}];
  }
  return meetings;
}

TEST(TemplateTest, RoundRobinsAndPartialSchedules) {
  // "13" gives each school 12 games; its table meets some pairs twice and
  // others not at all.
  for (const auto& [team, slots] : Playing(TemplateGames(TemplateTable::k13))) {
    EXPECT_EQ(slots.count(), 12u);
  }

  const std::vector<TemplateGame> ten = TemplateGames(TemplateTable::k10);
  const auto twice = Meetings(ten);
  EXPECT_EQ(twice.size(), 45u);  // every pair of 10
  for (const auto& [pair, n] : twice) EXPECT_EQ(n, 2);
  std::set<std::pair<int, int>> homeAway;
  for (const TemplateGame& g : ten) homeAway.insert({g.home.slot, g.away.slot});
  EXPECT_EQ(homeAway.size(), 90u);  // each pair once at each home

  const std::map<Team, SlotSet> twelve = Playing(TemplateGames(TemplateTable::k12A));
  for (const auto& [team, slots] : twelve) EXPECT_EQ(slots.count(), 16u);
}

TEST(TemplateTest, TenTeamTravelPartnersArePlayedOnOneTrip) {
  const std::vector<TemplateGame> games = TemplateGames(TemplateTable::k10);
  auto partner = [](int slot) { return slot % 2 == 1 ? slot + 1 : slot - 1; };
  std::map<std::pair<int, int>, int> saturdayOpponent;  // (week, slot) -> opponent
  for (const TemplateGame& g : games) {
    if (!g.saturday) continue;
    saturdayOpponent[{g.week, g.home.slot}] = g.away.slot;
    saturdayOpponent[{g.week, g.away.slot}] = g.home.slot;
  }
  int trips = 0;
  for (const TemplateGame& g : games) {
    if (g.saturday || partner(g.home.slot) == g.away.slot) continue;
    EXPECT_EQ(saturdayOpponent[std::pair(g.week, g.home.slot)], partner(g.away.slot)) << g.week;
    EXPECT_EQ(saturdayOpponent[std::pair(g.week, g.away.slot)], partner(g.home.slot)) << g.week;
    ++trips;
  }
  EXPECT_EQ(trips, 40);
}

TEST(TemplateTest, OddConferencesLeaveTheNamedSlotIdle) {
  const ScheduleType& nine = *FindScheduleType("9");
  const std::map<Team, SlotSet> playing = Playing(ConferenceTemplate(nine));
  for (const auto& [team, slots] : playing) {
    EXPECT_FALSE(slots.test(11));  // Thursday of week 6: nobody plays
    EXPECT_EQ(slots.test(12), team.second != 5);
  }
}

}  // namespace
}  // namespace courtmere
