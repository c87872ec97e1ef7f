// The rounds of the two national tournaments, the NCT and the ACT, once
// their fields stand: each day's games in the user's conference table, the
// results going into NCTTourney or ACTTourney, the next rounds written on the
// days fixed for them, the Final Four marked on the schools, and the close:
// the champion's mark and the year's history row.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "league/bracket_games.h"
#include "league/bracket_slots.h"

namespace courtmere {

class Store;
struct Session;

struct NationalTourney {
  const NationalFormat& format;
  const BracketTable& table;
  std::string_view history;          // NCTHistory or ACTHistory
  std::string_view finalFourColumn;  // the mark of a Final Four team in Team and ScrubTeam
  // Marks the champion in Team or ScrubTeam.
  void (*markChampion)(Store& store, const std::string& school);
};

const NationalTourney& Nct();
const NationalTourney& Act();

// The schedule table of the user's conference, where every game of both
// tournaments stands.
std::string PostseasonScheduleTable(Store& store);

// The bracket group of a region: the region's name after the tournament's
// prefix ("East", "ACTEast").
std::string RegionGroup(const NationalFormat& format, std::string_view region);

// The tournament's games on a day, in the order they are written; none on a
// day it does not play.
std::vector<BracketGame> NationalGamesOn(Store& store, const NationalTourney& tourney, int week,
                                         std::string_view day);

// Writes the games of a day whose sides are known, as the selection does for
// the first round. Takes its game numbers from Config and stores the last.
void AddNationalDay(Session& session, const NationalTourney& tourney, DayRef day);

// After the tournament's games of a day: the results, then what the day
// sets up (the next rounds, the Final Four's marks) or, after the final, the
// close. Safe to run again for the same day.
void RecordNationalDay(Session& session, const NationalTourney& tourney, int week,
                       std::string_view day);

// The champion's school, once the final has been played.
std::optional<std::string> NationalChampion(Store& store, const NationalTourney& tourney);

}  // namespace courtmere
