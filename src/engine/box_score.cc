#include "engine/box_score.h"

#include <fstream>

#include "engine/engine_error.h"
#include "people/player.h"
#include "platform/numeric.h"
#include "platform/whole_file.h"

namespace courtmere {

namespace {

constexpr const char* kHeader =
    "Name            Pos Min ShtsM Shots 3sM 3s FTM FT Ast TO OffReb DefReb ShotB Stl Fls +/- "
    "Pts";
constexpr const char* kDashes =
    "----            --- --- ----- ----- --- -- --- -- --- -- ------ ------ ----- --- --- --- "
    "---";
constexpr const char* kTeamDashes =
    "----            --- --- ----- ----- --- -- --- -- --- -- ------ ------ ----- --- --- ---";

// Widths of the fields after Name and Pos; the points close the row unpadded.
constexpr int kWidths[] = {5, 6, 6, 3, 3, 4, 4, 3, 5, 7, 7, 5, 4, 3, 4};

// Start (1-based) and length of each field when a row is read back; each
// span starts one character before the field as written.
constexpr int kSpans[BoxGrid::kFields][2] = {{1, 16}, {16, 4}, {20, 5}, {25, 6}, {31, 6}, {37, 3},
                                             {40, 3}, {43, 4}, {47, 4}, {51, 3}, {54, 5}, {59, 7},
                                             {66, 7}, {73, 5}, {78, 4}, {82, 3}, {85, 4}, {89, 4}};

void Pad(std::string& row, const std::string& field, size_t width) {
  row += field;
  if (field.size() < width) row.append(width - field.size(), ' ');
}

std::string Row(const std::string& lead, const GameStat& s, int minutes, int plusMinus) {
  std::string row = lead;
  const int values[] = {
      minutes,          s.ShotsMade,         s.ShotAttempts, s.ThreesMade, s.ThreeAttempts,
      s.FreeThrowsMade, s.FreeThrowAttempts, s.Assists,      s.Turnovers,  s.OffRebounds,
      s.DefRebounds,    s.ShotBlocks,        s.Steals,       s.Fouls,      plusMinus};
  for (size_t i = 0; i < std::size(kWidths); ++i) {
    Pad(row, std::to_string(values[i]), static_cast<size_t>(kWidths[i]));
  }
  row += std::to_string(s.Points);
  return row;
}

void AppendTable(std::vector<std::string>& out, const GameSide& side, const GameSide& other) {
  out.emplace_back(kHeader);
  out.emplace_back(kDashes);
  for (int i = 1; i < GameSide::kTeamLine; ++i) {
    if (i > side.RosterCount) {
      out.emplace_back();
      continue;
    }
    const GamePlayer& player = side.Roster[i];
    const GameStat& line = side.Stats[i];
    std::string lead;
    Pad(lead, side.Texts[i].AbbrName, 16);
    Pad(lead, PositionName(player.PlayerPosition), 4);
    out.push_back(Row(lead, line, CInt(line.SecondsPlayed / 60.0), line.PlusMinus));
  }
  out.emplace_back(kTeamDashes);
  const GameStat& team = side.Team();
  std::string lead;
  Pad(lead, team.TeamName, 20);
  // Design decision: the team's Min field shows minutes, like the players'.
  out.push_back(
      Row(lead, team, CInt(team.SecondsPlayed / 60.0), team.Points - other.Team().Points));
}

std::string Trim(const std::string& text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  const size_t last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

std::string Span(const std::string& line, int start, int length) {
  const size_t from = static_cast<size_t>(start - 1);
  if (from >= line.size()) return {};
  return Trim(line.substr(from, static_cast<size_t>(length)));
}

}  // namespace

std::vector<std::string> FormatBoxScore(const Game& game) {
  std::vector<std::string> out;
  out.reserve(36);
  const GameStat& home = game.Home().Team();
  const GameStat& away = game.Away().Team();
  out.push_back(home.TeamName + " Score: " + std::to_string(game.Home().Score));
  out.push_back(away.TeamName + " Score: " + std::to_string(game.Away().Score));
  out.emplace_back();
  AppendTable(out, game.Home(), game.Away());
  out.emplace_back();
  AppendTable(out, game.Away(), game.Home());
  out.emplace_back();
  return out;
}

void WriteBoxScore(const Game& game) {
  std::string text;
  for (const std::string& line : FormatBoxScore(game)) {
    text += line;
    text += '\n';
  }
  WriteWholeFile(game.BoxFileName, text);
}

std::array<BoxGrid, 2> LoadBoxGrids(const std::filesystem::path& file) {
  std::array<BoxGrid, 2> grids{};
  std::ifstream in(file, std::ios::binary);
  if (!in) throw EngineError("cannot read the box score " + file.string());
  std::string line;
  auto next = [&]() {
    if (!std::getline(in, line)) line.clear();
    if (!line.empty() && line.back() == '\r') line.pop_back();
  };
  for (BoxGrid& grid : grids) {
    do {
      next();
    } while (in && line.rfind("----", 0) != 0);
    next();
    for (int row = 1; row <= BoxGrid::kRows; ++row) {
      for (int f = 0; f < BoxGrid::kFields; ++f) {
        grid.Rows[row][f] = Span(line, kSpans[f][0], kSpans[f][1]);
      }
      next();
    }
  }
  return grids;
}

}  // namespace courtmere
