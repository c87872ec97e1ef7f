#include "schedule/conference_schedule.h"

#include <fmt/format.h>

#include <array>
#include <string>
#include <vector>

#include "platform/rng.h"
#include "schedule/game_counter.h"
#include "schedule/open_dates.h"
#include "schedule/schedule_error.h"
#include "schedule/schedule_rows.h"
#include "schedule/schedule_types.h"
#include "store/store.h"

namespace courtmere {
namespace {

// The schools of a conference or division on slots 1, 2, 3, ... (index 0 is
// slot 1).
using SlotSchools = std::vector<std::string>;

SlotSchools FillSlots(Store& store, Rng& rng, const ScheduleType& type,
                      const std::string& conference, std::string_view division) {
  rng.Reseed();
  const int r = rng.Roll(100);
  std::string sql = type.order == SlotOrder::kNameOrPrestige
                        ? "SELECT SchoolName, Prestige FROM Team WHERE Conference = ?"
                        : "SELECT SchoolName, SchedGroup FROM Team WHERE Conference = ?";
  if (!division.empty()) sql += " AND Division = ?";
  sql += SlotOrderClause(type.order, r);
  SlotSchools schools;
  Rows rows =
      division.empty() ? store.Query(sql, conference) : store.Query(sql, conference, division);
  while (rows.Next()) schools.push_back(rows.Text(0));
  if (static_cast<int>(schools.size()) != type.teams) {
    throw ScheduleError(fmt::format("The {}{}{} has {} schools, but its schedule type {} needs {}",
                                    conference, division.empty() ? "" : " ", division,
                                    schools.size(), type.code, type.teams));
  }
  return schools;
}

bool InNonConfSchedule(Store& store, const std::string& school) {
  return store
      .ScalarInt("SELECT 1 FROM NonConfSchedule WHERE HomeTeam = ? OR AwayTeam = ? LIMIT 1", school,
                 school)
      .has_value();
}

// Slots with a conference game, for each school: [division][slot].
using Playing = std::array<std::array<SlotSet, 15>, 2>;

Playing PlayingSlots(const std::vector<TemplateGame>& games) {
  Playing playing{};
  for (const TemplateGame& g : games) {
    const int slot = SlotOf(g.week, g.saturday);
    playing[g.home.division][g.home.slot].set(slot);
    playing[g.away.division][g.away.slot].set(slot);
  }
  return playing;
}

// Every school, in slot order, takes its open dates: slots 1 and 2 unless it
// plays in a preseason tournament, 3 to 8 always (week 5 never has games),
// then the template's own.
void AddOpenDates(Store& store, const ScheduleType& type, const std::string& conference,
                  const std::array<SlotSchools, 2>& slots, const Playing& playing,
                  OpenDates& openDates) {
  for (int division = 0; division < 2; ++division) {
    for (size_t i = 0; i < slots[division].size(); ++i) {
      const std::string& school = slots[division][i];
      const int slot = static_cast<int>(i) + 1;
      SlotSet open = TemplateOpenDates(type, conference, division, slot, playing[division][slot]);
      for (int s = 3; s <= 8; ++s) open.set(s);
      if (!InNonConfSchedule(store, school)) open.set(1).set(2);
      for (int s = 1; s <= kSlotCount; ++s) {
        if (open.test(s)) openDates.Add(s, school, conference);
      }
    }
  }
}

}  // namespace

void BuildConferenceSchedule(Store& store, Rng& rng, const LeagueRow& league, GameCounter& counter,
                             OpenDates& openDates) {
  if (league.SchedType.empty()) return;
  const ScheduleType* type = FindScheduleType(league.SchedType);
  if (type == nullptr) {
    throw ScheduleError(fmt::format("The {} has the unknown schedule type \"{}\"",
                                    league.Conference, league.SchedType));
  }
  std::array<SlotSchools, 2> slots;
  if (type->twoDivisions) {
    slots[0] = FillSlots(store, rng, *type, league.Conference, type->divisions[0]);
    slots[1] = FillSlots(store, rng, *type, league.Conference, type->divisions[1]);
  } else {
    slots[0] = FillSlots(store, rng, *type, league.Conference, "");
  }
  const std::vector<TemplateGame> games = ConferenceTemplate(*type);
  AddOpenDates(store, *type, league.Conference, slots, PlayingSlots(games), openDates);
  for (const TemplateGame& g : games) {
    AddConferenceGame(store, counter, league.Id, slots[g.home.division][g.home.slot - 1],
                      slots[g.away.division][g.away.slot - 1], g.week,
                      g.saturday ? kSaturday : kThursday);
  }
}

}  // namespace courtmere
