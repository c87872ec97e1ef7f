// The substitution patterns of the user's players: how soon the computer
// rests each man (Less, Normal, More), with his season's figures per 40
// minutes to judge by. The live screen's fourth tab and the separate
// patterns screen show and save the same rows.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

struct Session;

inline constexpr std::array<const char*, 3> kSubPatternChoices = {"Less", "Normal", "More"};
inline constexpr std::array<const char*, 9> kSubPatternColumns = {
    "Name", "Pos", "P/40M", "A/40M", "R/40M", "B/40M", "S/40M", "TO/40M", "Pattern"};

struct SubPatternRow {
  int id = 0;
  std::vector<std::string> cells;  // the columns before the pattern
  std::string pattern;             // "Less", "Normal" or "More"
};

// The school's players, in the order of the roster table.
std::vector<SubPatternRow> SubPatternRows(Session& session, const std::string& school);

// A season figure per game as one per 40 minutes, "0.0" without minutes.
std::string Per40(double perGame, double minutesPerGame);

// Writes each row's pattern. Taken by the players at their next game.
void SaveSubPatterns(Session& session, const std::vector<SubPatternRow>& rows);

// The patterns screen's submit: asks first, then saves and says so.
bool SubmitSubPatterns(Session& session, const std::vector<SubPatternRow>& rows);

}  // namespace courtmere
