// BuildLeagueSchedules over leagues whose conferences cover every schedule
// type: each conference table is its template game for game, nobody plays
// twice on a day, game numbers are unique and end in Config.MaxGameNo, and
// every school gets its season.
#include "schedule/league_schedule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "schedule/calendar_slots.h"
#include "schedule/schedule_error.h"
#include "schedule/schedule_league.h"
#include "schedule/schedule_types.h"
#include "store/config.h"

namespace courtmere {
namespace {

using testing::kCoveringChoices;
using testing::ScheduleLeague;
using testing::ScheduleRow;

struct School {
  std::string name;
  std::string division;
  std::string group;
  double prestige = 0;
};

std::vector<School> Schools(Store& store, const std::string& conference) {
  std::vector<School> schools;
  for (Rows rows = store.Query(
           "SELECT SchoolName, Division, SchedGroup, Prestige FROM Team WHERE Conference = ?",
           conference);
       rows.Next();) {
    schools.push_back({rows.Text(0), rows.Text(1), rows.Text(2), rows.Double(3)});
  }
  return schools;
}

// Recovers which school stands on which slot from the table's games, taken
// in game-number order against the template's order, and fails on any game
// that does not fit.
std::map<std::pair<int, int>, std::string> SlotsFromGames(const std::vector<ScheduleRow>& rows,
                                                          const ScheduleType& type) {
  const std::vector<TemplateGame> games = ConferenceTemplate(type);
  EXPECT_EQ(rows.size(), games.size());
  std::map<std::pair<int, int>, std::string> slots;
  for (size_t i = 0; i < rows.size() && i < games.size(); ++i) {
    const TemplateGame& g = games[i];
    EXPECT_EQ(rows[i].Week, g.week);
    EXPECT_EQ(rows[i].GameDay, g.saturday ? "Saturday" : "Thursday");
    EXPECT_EQ(rows[i].GameType, "Conference");
    for (const auto& [side, school] :
         {std::pair(g.home, rows[i].HomeTeam), std::pair(g.away, rows[i].AwayTeam)}) {
      auto [it, added] = slots.try_emplace({side.division, side.slot}, school);
      EXPECT_EQ(it->second, school) << "slot " << side.slot << " in game " << i;
    }
  }
  return slots;
}

// The schools of one division in slot order.
std::vector<School> InSlotOrder(const std::map<std::pair<int, int>, std::string>& slots,
                                const std::vector<School>& schools, int division) {
  std::vector<School> ordered;
  for (const auto& [slot, name] : slots) {
    if (slot.first != division) continue;
    auto it = std::find_if(schools.begin(), schools.end(),
                           [&](const School& s) { return s.name == name; });
    EXPECT_NE(it, schools.end()) << name << " is not in the conference";
    if (it != schools.end()) ordered.push_back(*it);
  }
  return ordered;
}

// The slot order is one of the four a draw can give.
void ExpectDrawnOrder(const ScheduleType& type, const std::vector<School>& s) {
  auto sortedBy = [&](auto less) { return std::is_sorted(s.begin(), s.end(), less); };
  if (type.order == SlotOrder::kSchedGroup) {
    for (size_t i = 0; i + 1 < s.size(); i += 2) {
      EXPECT_EQ(s[i].group, s[i + 1].group) << s[i].name << " and " << s[i + 1].name;
    }
    return;
  }
  const bool nameAsc = sortedBy([](auto& a, auto& b) { return a.name < b.name; });
  const bool nameDesc = sortedBy([](auto& a, auto& b) { return a.name > b.name; });
  const bool prestigeAsc = sortedBy([](auto& a, auto& b) { return a.prestige < b.prestige; });
  const bool prestigeDesc = sortedBy([](auto& a, auto& b) { return a.prestige > b.prestige; });
  EXPECT_TRUE(nameAsc || nameDesc || prestigeAsc || prestigeDesc);
}

// Each conference table is its template game for game, in a drawn slot
// order, and nobody plays twice on a day.
TEST(LeagueScheduleTest, EachConferenceTableIsItsTemplateGameForGame) {
  std::set<std::string> typesSeen;
  for (const auto& chosen : kCoveringChoices) {
    for (uint64_t seed : {1, 2}) {
      ScheduleLeague league(chosen, seed);
      BuildLeagueSchedules(league.session());
      const std::vector<ScheduleRow> all = league.AllRows();
      std::set<std::tuple<std::string, int, std::string>> busy;
      for (const ScheduleRow& row : all) {
        for (const std::string& school : {row.HomeTeam, row.AwayTeam}) {
          if (school.size() > 1 && school[1] == '-') continue;  // an open tournament side
          EXPECT_TRUE(busy.insert({school, row.Week, row.GameDay}).second)
              << school << " plays twice on " << row.GameDay << " of week " << row.Week;
        }
      }
      for (Rows rows = league.store().Query("SELECT Id, Conference, SchedType FROM League");
           rows.Next();) {
        const std::string table = ConferenceTable(rows.Int(0));
        const std::string conference = rows.Text(1);
        const ScheduleType& type = *FindScheduleType(rows.Text(2));
        SCOPED_TRACE(conference);
        typesSeen.insert(std::string(type.code));
        std::vector<ScheduleRow> games;
        std::copy_if(all.begin(), all.end(), std::back_inserter(games),
                     [&](const ScheduleRow& r) { return r.table == table; });
        const auto slots = SlotsFromGames(games, type);
        const std::vector<School> schools = Schools(league.store(), conference);
        EXPECT_EQ(slots.size(), schools.size());
        for (int division = 0; division < (type.twoDivisions ? 2 : 1); ++division) {
          const std::vector<School> ordered = InSlotOrder(slots, schools, division);
          ExpectDrawnOrder(type, ordered);
          for (const School& s : ordered) {
            if (type.twoDivisions) {
              EXPECT_EQ(s.division, type.divisions[division]);
            }
          }
        }
      }
    }
  }
  EXPECT_EQ(typesSeen.size(), 10u);
}

// Game numbers run on from Config.MaxGameNo without a gap, restart past
// 20000, and end in MaxGameNo.
TEST(LeagueScheduleTest, CounterGoesOnAfterMaxGameNoAndRestartsPast20000) {
  for (const auto& [start, first] :
       {std::pair(500, 501), std::pair(20000, 20001), std::pair(20001, 1), std::pair(0, 1)}) {
    ScheduleLeague league(kCoveringChoices[0], 4);
    league.store().Exec("UPDATE Config SET MaxGameNo = ? WHERE IdConfig = 0", start);
    BuildLeagueSchedules(league.session());
    const std::vector<ScheduleRow> all = league.AllRows();
    ASSERT_FALSE(all.empty());
    for (size_t i = 0; i < all.size(); ++i) {
      EXPECT_EQ(all[i].GameNo, first + static_cast<int>(i)) << start;
    }
    EXPECT_EQ(LoadConfig(league.store()).MaxGameNo, all.back().GameNo);
    EXPECT_EQ(league.session().config.MaxGameNo, all.back().GameNo);
  }
}

// The open dates each school should have: slots 3 to 8, slots 1 and 2 when
// it plays in no preseason tournament, and its template's own.
std::map<std::string, SlotSet> OpenDatesOf(ScheduleLeague& league,
                                           const std::vector<ScheduleRow>& all) {
  std::map<std::string, SlotSet> open;
  for (Rows rows = league.store().Query("SELECT Id, Conference, SchedType FROM League");
       rows.Next();) {
    const std::string table = ConferenceTable(rows.Int(0));
    const ScheduleType& type = *FindScheduleType(rows.Text(2));
    std::vector<ScheduleRow> games;
    std::copy_if(all.begin(), all.end(), std::back_inserter(games),
                 [&](const ScheduleRow& r) { return r.table == table; });
    std::map<std::pair<int, int>, SlotSet> playing;
    for (const TemplateGame& g : ConferenceTemplate(type)) {
      playing[{g.home.division, g.home.slot}].set(SlotOf(g.week, g.saturday));
      playing[{g.away.division, g.away.slot}].set(SlotOf(g.week, g.saturday));
    }
    for (const auto& [slot, school] : SlotsFromGames(games, type)) {
      SlotSet& dates = open[school];
      dates = TemplateOpenDates(type, rows.Text(1), slot.first, slot.second, playing[slot]);
      for (int k = 3; k <= 8; ++k) dates.set(k);
      if (!league.store().ScalarInt("SELECT 1 FROM PreSeasonTourney WHERE SchoolName = ?",
                                    school)) {
        dates.set(1).set(2);
      }
    }
  }
  return open;
}

TEST(LeagueScheduleTest, NonConferenceGamesStandOnTheOpenDates) {
  for (const auto& chosen : kCoveringChoices) {
    ScheduleLeague league(chosen, 11);
    BuildLeagueSchedules(league.session());
    const std::vector<ScheduleRow> all = league.AllRows();
    const std::map<std::string, SlotSet> open = OpenDatesOf(league, all);
    std::map<std::string, SlotSet> played;
    for (const ScheduleRow& row : all) {
      if (row.GameType != "NonConference") continue;
      const int slot = SlotOf(row.Week, row.GameDay == "Saturday");
      played[row.HomeTeam].set(slot);
      played[row.AwayTeam].set(slot);
    }
    // A school alone on its open date has nobody to play.
    std::array<int, kSlotCount + 1> openSchools{};
    for (const auto& [school, dates] : open) {
      for (int k = 1; k <= kSlotCount; ++k) openSchools[k] += dates.test(k);
    }
    for (const auto& [school, dates] : open) {
      SCOPED_TRACE(school);
      const SlotSet games = played[school];
      EXPECT_EQ((games & ~dates).count(), 0u) << "a game off the open dates";
      for (int k = 1; k <= kSlotCount; ++k) {
        if (dates.test(k) && openSchools[k] > 1) {
          EXPECT_TRUE(games.test(k)) << "slot " << k;
        }
      }
    }
  }
}

TEST(LeagueScheduleTest, TheSameSeedBuildsTheSameSchedule) {
  ScheduleLeague a(kCoveringChoices[2], 99);
  ScheduleLeague b(kCoveringChoices[2], 99);
  BuildLeagueSchedules(a.session());
  BuildLeagueSchedules(b.session());
  const auto rowsA = a.AllRows();
  const auto rowsB = b.AllRows();
  ASSERT_EQ(rowsA.size(), rowsB.size());
  for (size_t i = 0; i < rowsA.size(); ++i) {
    EXPECT_EQ(rowsA[i].HomeTeam, rowsB[i].HomeTeam);
    EXPECT_EQ(rowsA[i].AwayTeam, rowsB[i].AwayTeam);
  }
}

TEST(LeagueScheduleTest, AConferenceThatDoesNotFitItsTemplateWritesNothing) {
  ScheduleLeague league(kCoveringChoices[0], 5);
  league.store().Exec("DELETE FROM Team WHERE SchoolName = 'Duke'");
  EXPECT_THROW(BuildLeagueSchedules(league.session()), ScheduleError);
  EXPECT_TRUE(league.AllRows().empty());
  EXPECT_EQ(league.store().RowCount("PreSeasonTourney"), 0);
  EXPECT_EQ(LoadConfig(league.store()).MaxGameNo, 0);

  ScheduleLeague unknown(kCoveringChoices[0], 5);
  unknown.store().Exec("UPDATE League SET SchedType = '15' WHERE Id = 9");
  EXPECT_THROW(BuildLeagueSchedules(unknown.session()), ScheduleError);
  EXPECT_TRUE(unknown.AllRows().empty());
}

}  // namespace
}  // namespace courtmere
