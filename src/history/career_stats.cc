#include "history/career_stats.h"

#include <array>
#include <string>

#include "store/store.h"

namespace courtmere {

namespace {

// The counting columns a career adds up, in the order of PlayerStats.
constexpr std::array<const char*, 17> kCounting = {
    "DefRebounds", "ShotBlocks", "Steals",     "Fouls",      "Assists",   "OffRebounds",
    "Shots",       "ShotsMade",  "Threes",     "ThreesMade", "Turnovers", "Points",
    "PlusMinus",   "FTMade",     "FreeThrows", "Games",      "Minutes"};

// A new career row for every player without one, then each career plus the
// season.
void AddSeasonToCareers(Store& store) {
  store.Exec(
      "INSERT INTO CareerPlayerStats (Id) SELECT Id FROM PlayerStats WHERE Id NOT IN "
      "(SELECT Id FROM CareerPlayerStats)");
  std::string sets;
  for (const char* column : kCounting) {
    if (!sets.empty()) sets += ", ";
    sets += std::string(column) + " = CareerPlayerStats." + column + " + s." + column;
  }
  store.Exec("UPDATE CareerPlayerStats SET " + sets +
             " FROM PlayerStats AS s WHERE s.Id = CareerPlayerStats.Id");
}

// The averages of a career, on its totals. A career without a game keeps
// its per-game figures as they stand (0 for a new row); a percentage
// without an attempt is 0.
void AverageCareers(Store& store) {
  store.Exec(
      "UPDATE CareerPlayerStats SET APG = Assists * 1.0 / Games, PPG = Points * 1.0 / Games, "
      "RPG = (OffRebounds + DefRebounds) * 1.0 / Games, SPG = Steals * 1.0 / Games, "
      "TOPG = Turnovers * 1.0 / Games, MPG = Minutes * 1.0 / Games, "
      "BPG = ShotBlocks * 1.0 / Games WHERE Games <> 0 AND Id IN (SELECT Id FROM PlayerStats)");
  store.Exec(
      "UPDATE CareerPlayerStats SET "
      "FGPercent = CASE WHEN Shots > 0 THEN ShotsMade * 1.0 / Shots ELSE 0 END, "
      "ThreePercent = CASE WHEN Threes > 0 THEN ThreesMade * 1.0 / Threes ELSE 0 END, "
      "FTPercent = CASE WHEN FreeThrows > 0 THEN FTMade * 1.0 / FreeThrows ELSE 0 END "
      "WHERE Id IN (SELECT Id FROM PlayerStats)");
}

// The season's averages with the ratings the player ended it with.
void AddYearLines(Store& store, int year) {
  store.Exec(
      "INSERT INTO PlayerYearStats (PlayerId, Year, PPG, RPG, APG, SPG, BPG, TOPG, MPG, "
      "PlusMinus, FGPercent, ThreePercent, FTPercent, Overall, Jumpshot, InScoring, Handling, "
      "Passing, PerrDefense) SELECT s.Id, ?, s.PPG, s.RPG, s.APG, s.SPG, s.BPG, s.TOPG, s.MPG, "
      "s.PlusMinus, s.FGPercent, s.ThreePercent, s.FTPercent, coalesce(p.Overall, 0), "
      "coalesce(p.Jumpshot, 0), coalesce(p.InScoring, 0), coalesce(p.Handling, 0), "
      "coalesce(p.Passing, 0), coalesce(p.PerrDefense, 0) FROM PlayerStats AS s LEFT JOIN "
      "Player AS p ON p.Id = s.Id",
      year);
}

}  // namespace

void SaveCareerStats(Store& store, int year) {
  AddSeasonToCareers(store);
  AverageCareers(store);
  AddYearLines(store, year);
}

}  // namespace courtmere
