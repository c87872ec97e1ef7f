// The three eight-team preseason tournaments of week 1: "Hawaii Classic",
// "Alaska Challenge" and "Preseason ACT". Each takes five of the fifteen
// strongest first-division teams (seeds 1 to 5) and three background teams
// (seeds 6 to 8; the four strongest background teams play in none), and plays
// single elimination on Thursday, Friday and Sunday of week 1 in
// NonConfSchedule, the higher seed at home.
//
// A game whose sides are not both known yet carries the tournament's name +
// "Temp" as its GameType, a pairing text such as "1-8" in place of each open
// side, and a placeholder code such as "MauiW1-8C" in place of its
// conference. The second character of a pairing text is always "-": that is
// how an open side is told from a school.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace courtmere {

class Store;
struct GameCounter;

struct PreseasonField {
  std::string_view name;
  std::array<int, 5> teamRanks;        // ranks by TeamRating of seeds 1 to 5
  std::array<int, 3> backgroundRanks;  // ranks by TeamRating of seeds 6 to 8
  // Placeholder codes of the open sides: Friday's first game (home, away),
  // Friday's second game, Sunday's final.
  std::array<std::string_view, 6> codes;
};

inline constexpr std::array<PreseasonField, 3> kPreseasonFields = {{
    {"Hawaii Classic",
     {1, 3, 5, 12, 13},
     {5, 10, 13},
     {"MauiW1-8C", "MauiW4-5C", "MauiW2-7C", "MauiW3-6C", "MauiWF1C", "MauiWF2C"}},
    {"Alaska Challenge",
     {2, 4, 7, 10, 15},
     {6, 9, 11},
     {"AlaskaW1-8C", "AlaskaW4-5C", "AlaskaW2-7C", "AlaskaW3-6C", "AlaskaW1C", "AlaskaW2C"}},
    {"Preseason ACT",
     {6, 8, 9, 11, 14},
     {7, 8, 12},
     {"ACTW1-8C", "ACTW4-5C", "ACTW2-7C", "ACTW3-6C", "ACTW1C", "ACTW2C"}},
}};

inline constexpr std::string_view kTempSuffix = "Temp";

// True for the GameType of a tournament game whose sides are both known.
bool IsPreseasonTournament(std::string_view gameType);

// Draws the three fields into PreSeasonTourney and adds their seven games
// each to NonConfSchedule. Design decision: with fewer than 15 first-division
// or 13 background teams no field can be filled, and no tournament is built.
void BuildPreseasonTournaments(Store& store, GameCounter& counter);

}  // namespace courtmere
