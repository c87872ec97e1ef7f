#include "schedule/schedule_templates.h"

#include <span>
#include <string_view>

namespace courtmere {
namespace {

// A week of a table as it is printed: the Thursday and Saturday cells, each a
// list of "h-a" entries ("A5-B5" in a cross table); empty for no games.
struct TemplateWeek {
  int week;
  std::string_view thursday;
  std::string_view saturday;
};

constexpr TemplateWeek kTable8[] = {
    {8, "1-3 2-4 5-7 6-8", "1-4 2-3 5-8 6-7"},
    {9, "5-1 6-2 7-3 8-4", "5-2 6-1 8-3 7-4"},
    {10, "1-7 2-8 3-5 4-6", "1-8 2-7 3-6 4-5"},
    {11, "1-2 3-4 5-6 7-8", ""},
    {12, "8-1 7-2 6-3 5-4", "7-1 8-2 5-3 6-4"},
    {13, "3-1 4-2 7-5 8-6", "4-1 3-2 8-5 7-6"},
    {14, "2-1 4-3 6-5 8-7", ""},
    {15, "1-5 2-6 3-7 4-8", "2-5 1-6 3-8 4-7"},
};

constexpr TemplateWeek kTable9[] = {
    {6, "", "6-1 2-3 4-7 9-8"},
    {7, "4-1 8-5 2-6 3-9", "8-1 5-2 4-6 7-9"},
    {8, "1-2 3-4 6-5 8-7", "1-5 7-2 8-3 9-4"},
    {9, "1-9 4-8 5-7 3-6", "5-9 2-4 6-8 3-7"},
    {10, "1-3 5-4 7-6 9-2", ""},
    {11, "9-5 4-2 8-6 7-3", "9-1 8-4 7-5 6-3"},
    {12, "3-1 4-5 6-7 2-9", "5-1 2-7 3-8 4-9"},
    {13, "1-6 3-2 7-4 8-9", "1-7 3-5 8-2 6-9"},
    {14, "1-8 2-5 6-4 9-7", "1-4 5-8 6-2 9-3"},
    {15, "2-1 4-3 5-6 7-8", "7-1 5-3 2-8 9-6"},
};

constexpr TemplateWeek kTable10[] = {
    {6, "1-3 2-4 5-7 6-8 9-10", "1-4 2-3 5-8 6-7"},
    {7, "5-1 6-2 3-9 4-10 7-8", "5-2 6-1 3-10 4-9"},
    {8, "1-7 2-8 9-5 10-6 3-4", "1-8 2-7 9-6 10-5"},
    {9, "9-1 10-2 7-3 8-4 5-6", "9-2 10-1 7-4 8-3"},
    {10, "7-9 8-10 3-5 4-6 1-2", "7-10 8-9 3-6 4-5"},
    {11, "7-1 8-2 5-9 6-10 4-3", "8-1 7-2 6-9 5-10"},
    {12, "9-7 10-8 5-3 6-4 2-1", "10-7 9-8 6-3 5-4"},
    {13, "3-1 4-2 7-5 8-6 10-9", "4-1 3-2 8-5 7-6"},
    {14, "1-9 2-10 3-7 4-8 6-5", "2-9 1-10 4-7 3-8"},
    {15, "1-5 2-6 9-3 10-4 8-7", "2-5 1-6 10-3 9-4"},
};

constexpr TemplateWeek kTable11[] = {
    {6, "", "1-4 2-3 5-8 6-7 10-11"},
    {7, "5-1 6-2 3-9 4-10 11-7", "5-2 6-1 3-10 4-9 11-8"},
    {8, "1-7 2-8 9-5 10-6 3-11", "1-8 2-7 9-6 10-5 4-11"},
    {9, "9-1 10-2 7-3 8-4 11-5", "9-2 10-1 7-4 3-8 6-11"},
    {10, "7-9 8-10 5-3 4-6 11-1", ""},
    {11, "10-7 8-9 6-3 4-5 2-11", "1-2 3-4 5-6 7-8 9-10"},
    {12, "3-1 4-2 7-5 8-6 11-9", "4-1 3-2 8-5 7-6 11-10"},
    {13, "1-5 2-6 9-3 10-4 7-11", "2-5 1-6 10-3 9-4 8-11"},
    {14, "7-1 8-2 5-9 6-10 11-3", "8-7 6-9 5-10 11-4"},
    {15, "1-9 2-10 3-7 4-8", "1-3 2-4 5-7 6-8 9-11"},
};

constexpr TemplateWeek kTable12A[] = {
    {7, "7-9 8-10 3-5 4-6 1-11 2-12", "7-10 8-9 3-6 4-5 1-12 2-11"},
    {8, "1-3 2-4 5-7 6-8 9-11 10-12", "1-4 2-3 5-8 6-7 9-12 10-11"},
    {9, "5-1 6-2 3-9 4-10 11-7 12-8", "5-2 6-1 3-10 4-9 11-8 12-7"},
    {10, "1-7 2-8 9-5 10-6 3-11 4-12", "1-8 2-7 9-6 10-5 3-12 4-11"},
    {11, "9-1 10-2 7-3 8-4 11-5 12-6", "9-2 10-1 7-4 8-3 11-6 12-5"},
    {13, "1-5 2-6 9-3 10-4 7-11 8-12", "2-5 1-6 10-3 9-4 8-11 7-12"},
    {14, "1-9 2-10 3-7 4-8 5-11 6-12", "2-9 1-10 4-7 3-8 6-11 5-12"},
    {15, "3-1 4-2 7-5 8-6 11-9 12-10", "4-1 3-2 8-5 7-6 12-9 11-10"},
};

constexpr TemplateWeek kTable13[] = {
    {8, "", "11-6 3-2 4-7 8-13 10-9 5-12"},
    {9, "3-1 4-5 6-7 10-8 11-12 2-9", "7-1 2-4 10-12 9-11"},
    {10, "4-10 2-5 7-3 11-13 1-8", "1-4 5-7 2-6 8-11 9-13 3-10"},
    {11, "9-1 7-2 6-3 12-8 13-10", "6-4 5-2 3-7 13-11 12-9 8-1"},
    {12, "4-1 7-5 6-12 11-8 13-9 10-3", ""},
    {13, "4-3 6-5 9-8 11-10 13-12", "6-1 2-3 7-4 13-8 9-10 12-5"},
    {14, "1-13 5-4 7-6 12-11 9-2", "1-7 5-3 8-2 12-10 11-9 13-6"},
    {15, "1-5 2-7 3-6 8-12 10-13 4-11", "1-2 3-4 5-6 8-9 10-11 12-13"},
};

constexpr TemplateWeek kDivision14[] = {
    {6, "", "1-6 3-2 4-7"},
    {7, "3-1 4-5 6-7", "7-1 3-5 2-4"},
    {8, "4-6 2-5 7-3", "1-4 5-7 2-6"},
    {9, "5-1 7-2 6-3", ""},
    {10, "6-4 5-2 3-7", "4-1 7-5 6-2"},
    {11, "2-1 4-3 6-5", "6-1 2-3 7-4"},
    {12, "1-3 5-4 7-6", "1-7 5-3 4-2"},
    {13, "1-5 2-7 3-6", "1-2 3-4 5-6"},
};

constexpr TemplateWeek kCross14[] = {
    {6, "", "A5-B5"},
    {7, "A2-B2", "A6-B6"},
    {8, "A1-B1", "A3-B3"},
    {9, "A4-B4", "B1-A6 B2-A1 B3-A2 B4-A3 B5-A4 B6-A5"},
    {11, "B7-A7", ""},
    {13, "", "A7-B7"},
    {14, "B2-A5 B3-A6 B5-A2 B6-A3", "A5-B1 A2-B4 A3-B5 A4-B6"},
    {15, "B7-A4 B1-A7 B4-A1", "A7-B2 A6-B7 A1-B3"},
};

constexpr TemplateWeek kDivision12[] = {
    {7, "1-3 2-4 5-6", "1-4 2-3"},  {8, "5-1 6-2 3-4", "6-1 5-2"},  {9, "3-5 4-6 1-2", "3-6 4-5"},
    {10, "1-5 2-6 4-3", "1-6 2-5"}, {12, "5-3 6-4 2-1", "6-3 5-4"}, {13, "3-1 4-2 6-5", "4-1 3-2"},
};

constexpr TemplateWeek kCross12[] = {
    {7, "", "A5-B5 A6-B6"},
    {8, "", "A3-B3 A4-B4"},
    {9, "", "A1-B1 A2-B2"},
    {10, "", "B3-A4 B4-A3"},
    {12, "", "B1-A2 B2-A1"},
    {13, "", "B5-A6 B6-A5"},
    {14, "B1-A3 B2-A4 B3-A5 B4-A6 B5-A1 B6-A2", "B1-A4 B2-A3 B3-A6 B4-A5 B5-A2 B6-A1"},
    {15, "A1-B3 A2-B4 A3-B5 A4-B6 A5-B1 A6-B2", "A1-B4 A2-B3 A3-B6 A4-B5 A5-B2 A6-B1"},
};

std::span<const TemplateWeek> Weeks(TemplateTable table) {
  switch (table) {
    case TemplateTable::k8:
      return kTable8;
    case TemplateTable::k9:
      return kTable9;
    case TemplateTable::k10:
      return kTable10;
    case TemplateTable::k11:
      return kTable11;
    case TemplateTable::k12A:
      return kTable12A;
    case TemplateTable::k13:
      return kTable13;
    case TemplateTable::kDivision14:
      return kDivision14;
    case TemplateTable::kCross14:
      return kCross14;
    case TemplateTable::kDivision12:
      return kDivision12;
    case TemplateTable::kCross12:
      return kCross12;
  }
  return {};
}

// "7", "A7" or "B7".
TemplateSide ParseSide(std::string_view text) {
  TemplateSide side;
  if (text.front() == 'A' || text.front() == 'B') {
    side.division = text.front() == 'A' ? 0 : 1;
    text.remove_prefix(1);
  }
  for (char c : text) side.slot = side.slot * 10 + (c - '0');
  return side;
}

void AddCell(std::vector<TemplateGame>& games, int week, bool saturday, std::string_view cell) {
  while (!cell.empty()) {
    const size_t end = cell.find(' ');
    const std::string_view entry = cell.substr(0, end);
    const size_t dash = entry.find('-');
    games.push_back(
        {week, saturday, ParseSide(entry.substr(0, dash)), ParseSide(entry.substr(dash + 1))});
    cell = end == std::string_view::npos ? std::string_view{} : cell.substr(end + 1);
  }
}

}  // namespace

std::vector<TemplateGame> TemplateGames(TemplateTable table) {
  std::vector<TemplateGame> games;
  for (const TemplateWeek& week : Weeks(table)) {
    AddCell(games, week.week, false, week.thursday);
    AddCell(games, week.week, true, week.saturday);
  }
  return games;
}

}  // namespace courtmere
