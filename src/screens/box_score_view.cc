#include "screens/box_score_view.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <utility>

#include "engine/box_score.h"
#include "screens/display_format.h"
#include "store/session.h"

namespace courtmere {
namespace {

constexpr std::string_view kScoreMark = " Score: ";

void ReadHeadLine(std::istream& in, std::string& team, std::string& score) {
  std::string line;
  if (!std::getline(in, line)) return;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  const size_t mark = line.rfind(kScoreMark);
  if (mark == std::string::npos) return;
  team = line.substr(0, mark);
  score = line.substr(mark + kScoreMark.size());
}

std::optional<std::string> BoxOf(Store& store, const std::string& table, int gameNo) {
  Rows r = store.Query("SELECT BoxScore FROM " + table + " WHERE GameNo = ?", gameNo);
  if (!r.Next()) return std::nullopt;
  return r.Text(0);
}

// The box file's rows: 1 to 12 the men, 13 the dashes, 14 the team.
constexpr int kLastPlayerRow = 12;
constexpr int kTeamRow = 14;

int Number(const std::string& field) {
  int value = 0;
  const char* first = field.data();
  if (!field.empty() && field.front() == '+') ++first;
  std::from_chars(first, field.data() + field.size(), value);
  return value;
}

BoxLine LineOf(const std::array<std::string, BoxGrid::kFields>& f) {
  BoxLine l;
  l.Name = f[0];
  l.Position = f[1];
  int* counts[] = {&l.Minutes,   &l.ShotsMade,   &l.Shots,       &l.ThreesMade,
                   &l.Threes,    &l.FTMade,      &l.FreeThrows,  &l.Assists,
                   &l.Turnovers, &l.OffRebounds, &l.DefRebounds, &l.Blocks,
                   &l.Steals,    &l.Fouls,       &l.PlusMinus,   &l.Points};
  for (size_t i = 0; i < std::size(counts); ++i) *counts[i] = Number(f[i + 2]);
  return l;
}

// The AbbrNames of the first five of the school's depth chart, point guard
// to center.
std::vector<std::string> Starters(Store& store, const std::string& school) {
  static constexpr std::array<const char*, 5> kPlaces = {"PG1", "SG1", "SF1", "PF1", "C1"};
  std::vector<std::string> names;
  for (const auto& [teams, players] : {std::pair{"Team", "Player"}, {"ScrubTeam", "ScrubPlayer"}}) {
    for (const char* place : kPlaces) {
      const auto name =
          store.ScalarText(std::string("SELECT AbbrName FROM ") + players + " WHERE Id = (SELECT " +
                               place + " FROM " + teams + " WHERE SchoolName = ?)",
                           school);
      if (name) names.push_back(*name);
    }
    if (!names.empty()) break;
  }
  return names;
}

// A man's place among the starters; the five for a man who did not start.
int StarterPlace(const std::vector<std::string>& starters, const std::string& name) {
  return static_cast<int>(std::find(starters.begin(), starters.end(), name) - starters.begin());
}

BoxTable TableOf(Store& store, const BoxGrid& grid, const std::string& school,
                 const std::string& score) {
  BoxTable table{school, score, {}, LineOf(grid.Rows[kTeamRow])};
  // The team's row spreads the school's name over the first two fields.
  table.Totals.Name = school;
  table.Totals.Position.clear();
  const std::vector<std::string> starters = Starters(store, school);
  for (int row = 1; row <= kLastPlayerRow; ++row) {
    if (grid.Rows[row][0].empty()) continue;
    BoxLine line = LineOf(grid.Rows[row]);
    line.Starter = StarterPlace(starters, line.Name) < static_cast<int>(starters.size());
    table.Players.push_back(std::move(line));
  }
  // Starters in the order of their places, the others by minutes.
  std::stable_sort(table.Players.begin(), table.Players.end(),
                   [&starters](const BoxLine& a, const BoxLine& b) {
                     if (a.Starter != b.Starter) return a.Starter;
                     if (a.Starter) {
                       return StarterPlace(starters, a.Name) < StarterPlace(starters, b.Name);
                     }
                     return a.Minutes > b.Minutes;
                   });
  return table;
}

}  // namespace

std::string ShootingPercent(int made, int attempts) {
  return attempts == 0 ? std::string() : FormatPercent(static_cast<double>(made) / attempts);
}

std::array<BoxTable, 2> ReadBoxTables(Store& store, const std::filesystem::path& file) {
  const BoxScoreHeader header = ReadBoxScoreHeader(file);
  std::array<BoxGrid, 2> grids{};
  try {
    grids = LoadBoxGrids(file);
  } catch (const std::exception&) {
    return {};
  }
  return {TableOf(store, grids[0], header.HomeTeam, header.HomeScore),
          TableOf(store, grids[1], header.AwayTeam, header.AwayScore)};
}

std::optional<std::filesystem::path> BoxScoreFile(Store& store, int gameNo,
                                                  const std::string& conferenceTable) {
  std::optional<std::string> box = BoxOf(store, "NonConfSchedule", gameNo);
  if (!box && !conferenceTable.empty()) box = BoxOf(store, conferenceTable, gameNo);
  if (!box || box->empty()) return std::nullopt;
  std::error_code ec;
  if (!std::filesystem::is_regular_file(*box, ec)) return std::nullopt;
  return std::filesystem::path(*box);
}

BoxScoreHeader ReadBoxScoreHeader(const std::filesystem::path& file) {
  BoxScoreHeader header;
  std::ifstream in(file, std::ios::binary);
  ReadHeadLine(in, header.HomeTeam, header.HomeScore);
  ReadHeadLine(in, header.AwayTeam, header.AwayScore);
  return header;
}

std::optional<int> BoxScorePlayer(Session& session, const std::string& school,
                                  const std::string& abbrName) {
  if (abbrName.empty()) return std::nullopt;
  const auto id = session.Db().ScalarInt(
      "SELECT Id FROM Player WHERE Team = ? AND AbbrName = ? ORDER BY Id", school, abbrName);
  if (!id) {
    session.ui.Message("Error displaying the player. The code is " +
                       std::to_string(kNoSuchPlayerCode));
    return std::nullopt;
  }
  return static_cast<int>(*id);
}

}  // namespace courtmere
