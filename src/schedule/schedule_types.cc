#include "schedule/schedule_types.h"

#include <initializer_list>

namespace courtmere {
namespace {

constexpr std::array<std::string_view, 2> kOneDivision{};
constexpr std::array<std::string_view, 2> kEastWest{"East", "West"};
constexpr std::array<std::string_view, 2> kNationalAmerican{"National", "American"};
constexpr std::array<std::string_view, 2> kNorthSouth{"North", "South"};

using T = TemplateTable;
using O = SlotOrder;

constexpr ScheduleType kTypes[] = {
    {"8", 8, T::k8, false, T::k8, kOneDivision, O::kSchedGroup},
    {"9", 9, T::k9, false, T::k9, kOneDivision, O::kNameOrPrestige},
    {"10", 10, T::k10, false, T::k10, kOneDivision, O::kSchedGroup},
    {"11", 11, T::k11, false, T::k11, kOneDivision, O::kNameOrPrestige},
    {"12A", 12, T::k12A, false, T::k12A, kOneDivision, O::kSchedGroup},
    {"13", 13, T::k13, false, T::k13, kOneDivision, O::kNameOrPrestige},
    {"14A", 7, T::kDivision14, true, T::kCross14, kEastWest, O::kNameOrPrestige},
    {"14B", 7, T::kDivision14, true, T::kCross14, kNationalAmerican, O::kNameOrPrestige},
    {"12B", 6, T::kDivision12, true, T::kCross12, kEastWest, O::kSchedGroup},
    {"12C", 6, T::kDivision12, true, T::kCross12, kNorthSouth, O::kSchedGroup},
};

// A slot open to the schools the template leaves idle there, named by their
// slots.
struct IdleOpenDate {
  int slot;
  std::initializer_list<int> teams;
};

void OpenAll(SlotSet& open, std::initializer_list<int> slots) {
  for (int s : slots) open.set(s);
}

void OpenIdle(SlotSet& open, int teamSlot, std::initializer_list<IdleOpenDate> dates) {
  for (const IdleOpenDate& date : dates) {
    for (int t : date.teams) {
      if (t == teamSlot) open.set(date.slot);
    }
  }
}

}  // namespace

const ScheduleType* FindScheduleType(std::string_view code) {
  for (const ScheduleType& type : kTypes) {
    if (type.code == code) return &type;
  }
  return nullptr;
}

std::vector<TemplateGame> ConferenceTemplate(const ScheduleType& type) {
  if (!type.twoDivisions) return TemplateGames(type.table);
  std::vector<TemplateGame> games;
  for (int division : {0, 1}) {
    for (TemplateGame game : TemplateGames(type.table)) {
      game.home.division = division;
      game.away.division = division;
      games.push_back(game);
    }
  }
  for (const TemplateGame& game : TemplateGames(type.cross)) games.push_back(game);
  return games;
}

std::string_view SlotOrderClause(SlotOrder order, int r) {
  if (order == SlotOrder::kNameOrPrestige) {
    if (r > 75) return " ORDER BY SchoolName ASC";
    if (r > 50) return " ORDER BY SchoolName DESC";
    if (r > 25) return " ORDER BY Prestige DESC";
    return " ORDER BY Prestige ASC";
  }
  if (r > 75) return " ORDER BY SchedGroup ASC, SchoolName ASC";
  if (r > 50) return " ORDER BY SchedGroup DESC, SchoolName DESC";
  if (r > 25) return " ORDER BY SchedGroup ASC, SchoolName DESC";
  return " ORDER BY SchedGroup DESC, SchoolName ASC";
}

SlotSet TemplateOpenDates(const ScheduleType& type, std::string_view conference, int division,
                          int slot, const SlotSet& playing) {
  SlotSet open;
  const std::string_view code = type.code;
  if (code == "8") {
    OpenAll(open, {11, 12, 13, 14, 22, 28});
  } else if (code == "9") {
    OpenAll(open, {11, 20});
    OpenIdle(open, slot,
             {{21, {1}},
              {22, {2}},
              {23, {8}},
              {24, {6}},
              {25, {5}},
              {26, {4}},
              {27, {3}},
              {28, {7}},
              {29, {9}}});
  } else if (code == "10") {
    OpenIdle(open, slot, {{14, {7, 8}}, {22, {3, 4}}, {24, {1, 2}}, {26, {9, 10}}, {28, {5, 6}}});
  } else if (code == "11") {
    OpenAll(open, {11, 20});
    OpenIdle(open, slot,
             {{23, {10}},
              {24, {9}},
              {25, {8}},
              {26, {7}},
              {27, {4}},
              {28, {1, 2, 3}},
              {29, {5, 6, 11}}});
  } else if (code == "12A") {
    OpenAll(open, {11, 12, 24});
  } else if (code == "12B" || code == "12C") {
    open.set(11);
    // The Big 12 and the SEC have no open date on slot 12.
    if (conference != "Big 12" && conference != "SEC") open.set(12);
    open.set(division == 1 ? 21 : 22);
  } else if (code == "13") {
    OpenAll(open, {11, 12, 13, 14, 15, 24});
    for (int s = 16; s <= kSlotCount; ++s) {
      if (!playing.test(s)) open.set(s);
    }
  } else if (code == "14A" || code == "14B") {
    open.set(11);
    OpenIdle(open, slot, {{27, {1, 4, 7}}, {29, {2, 3, 5, 6}}});
  }
  return open;
}

}  // namespace courtmere
