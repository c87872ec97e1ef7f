#include "schedule/nonconf_fill.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "platform/rng.h"
#include "schedule/game_counter.h"
#include "schedule/league_rows.h"
#include "schedule/open_dates.h"
#include "schedule/schedule_rows.h"
#include "store/store.h"

namespace courtmere {
namespace {

// A slot's schools sorted by conference: group g holds the schools of the
// g-th conference of the slot's league order (index 0 unused).
constexpr int kGroups = 9;
using Groups = std::array<std::vector<OpenDate>, kGroups + 1>;

constexpr int kBackgroundLooks = 200;

struct FillDay {
  int slot;
  int week;
  std::string_view day;
  bool odd() const { return slot % 2 == 1; }
};

// The league order of a slot: 1 by Id, 2 by name, 3 by Id descending, 4 by
// name descending; never the same as the previous slot's.
LeagueOrder DrawLeagueOrder(Rng& rng, int& previous) {
  int v = rng.Roll(4);
  if (v == previous) v = v == 4 ? 1 : v + 1;
  previous = v;
  return static_cast<LeagueOrder>(v - 1);
}

Groups SortIntoGroups(const std::vector<OpenDate>& schools, const std::vector<LeagueRow>& leagues,
                      bool reverse) {
  Groups groups;
  for (const OpenDate& school : schools) {
    for (size_t i = 0; i < leagues.size() && i < kGroups; ++i) {
      if (leagues[i].Conference == school.conference) groups[i + 1].push_back(school);
    }
  }
  if (reverse) {
    for (auto& group : groups) std::reverse(group.begin(), group.end());
  }
  return groups;
}

int GroupsHoldingSchools(const Groups& groups) {
  return static_cast<int>(
      std::count_if(groups.begin() + 1, groups.end(), [](const auto& g) { return !g.empty(); }));
}

// Pairs the last schools of two groups drawn at random until fewer than two
// groups hold schools. On odd slots the second group's school is at home.
void PairConferences(Store& store, Rng& rng, GameCounter& counter, const FillDay& day,
                     Groups& groups) {
  while (GroupsHoldingSchools(groups) >= 2) {
    int g1 = 0;
    int g2 = 0;
    do {
      g1 = rng.Roll(kGroups);
      g2 = rng.Roll(kGroups);
    } while (g1 == g2 || groups[g1].empty() || groups[g2].empty());
    const OpenDate first = groups[g1].back();
    const OpenDate second = groups[g2].back();
    groups[g1].pop_back();
    groups[g2].pop_back();
    const OpenDate& home = day.odd() ? second : first;
    const OpenDate& away = day.odd() ? first : second;
    AddNonConfGame(store, counter,
                   {home.school, away.school, home.conference, away.conference, day.week, day.day});
  }
}

bool PlaysOn(Store& store, const std::string& school, const FillDay& day) {
  return store
      .ScalarInt(
          "SELECT 1 FROM NonConfSchedule WHERE (HomeTeam = ? OR AwayTeam = ?) AND Week = ? "
          "AND GameDay = ? LIMIT 1",
          school, school, day.week, day.day)
      .has_value();
}

std::vector<OpenDate> BackgroundTeams(Store& store) {
  std::vector<OpenDate> teams;
  for (Rows rows = store.Query("SELECT SchoolName, Conference FROM ScrubTeam ORDER BY rowid");
       rows.Next();) {
    teams.push_back({rows.Text(0), rows.Text(1)});
  }
  return teams;
}

// Every school left in the groups plays a background team free on that day,
// found by walking the background teams from a random row, wrapping at the
// end. The walk goes on from where the last one stopped.
void PlayBackgroundTeams(Store& store, Rng& rng, GameCounter& counter, const FillDay& day,
                         const Groups& groups) {
  const std::vector<OpenDate> background = BackgroundTeams(store);
  const int n = static_cast<int>(background.size());
  if (n == 0) return;
  int row = rng.Roll(n) - 1;
  for (int g = 1; g <= kGroups; ++g) {
    for (const OpenDate& school : groups[g]) {
      for (int look = 0; look < kBackgroundLooks; ++look) {
        const OpenDate& opponent = background[row];
        if (!PlaysOn(store, opponent.school, day)) {
          const bool backgroundHosts = day.slot == 2;
          const OpenDate& home = backgroundHosts ? opponent : school;
          const OpenDate& away = backgroundHosts ? school : opponent;
          AddNonConfGame(
              store, counter,
              {home.school, away.school, home.conference, away.conference, day.week, day.day});
          break;
        }
        row = (row + 1) % n;
      }
    }
  }
}

bool OnlyBackgroundGames(int slot) {
  return slot == 1 || slot == 2 || slot == 5 || slot == 6;
}

}  // namespace

void FillNonConference(Store& store, Rng& rng, GameCounter& counter, const OpenDates& openDates) {
  rng.Reseed();
  int previousOrder = 0;
  for (int slot = 1; slot <= kSlotCount; ++slot) {
    const std::vector<LeagueRow> leagues = ReadLeagues(store, DrawLeagueOrder(rng, previousOrder));
    const std::vector<OpenDate>& schools = openDates.slots[slot];
    if (schools.size() <= 1) continue;
    const FillDay day{slot, SlotWeek(slot), SlotDay(slot)};
    Groups groups = SortIntoGroups(schools, leagues, slot % 2 == 0);
    if (!OnlyBackgroundGames(slot)) PairConferences(store, rng, counter, day, groups);
    PlayBackgroundTeams(store, rng, counter, day, groups);
  }
}

}  // namespace courtmere
