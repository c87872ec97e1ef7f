#include "schedule/preseason_tournaments.h"

#include <vector>

#include "schedule/calendar_slots.h"
#include "schedule/game_counter.h"
#include "schedule/schedule_rows.h"
#include "store/store.h"

namespace courtmere {
namespace {

struct Entrant {
  std::string school;
  std::string conference;
};

// Seeds 1 to 8 of a field (index 0 unused).
using Field = std::array<Entrant, 9>;

std::vector<Entrant> Strongest(Store& store, const char* sql, size_t count) {
  std::vector<Entrant> teams;
  for (Rows rows = store.Query(sql); teams.size() < count && rows.Next();) {
    teams.push_back({rows.Text(0), rows.Text(1)});
  }
  return teams;
}

Field DrawField(const PreseasonField& field, const std::vector<Entrant>& teams,
                const std::vector<Entrant>& background) {
  Field seeds;
  for (size_t i = 0; i < field.teamRanks.size(); ++i) {
    seeds[i + 1] = teams[field.teamRanks[i] - 1];
  }
  for (size_t i = 0; i < field.backgroundRanks.size(); ++i) {
    seeds[i + 6] = background[field.backgroundRanks[i] - 1];
  }
  return seeds;
}

void AddGames(Store& store, GameCounter& counter, const PreseasonField& field, const Field& seeds) {
  constexpr int kWeek = 1;
  for (int high = 1; high <= 4; ++high) {
    const Entrant& home = seeds[high];
    const Entrant& away = seeds[9 - high];
    AddNonConfGame(
        store, counter,
        {home.school, away.school, home.conference, away.conference, kWeek, kThursday, field.name});
  }
  const std::string temp = std::string(field.name) + std::string(kTempSuffix);
  const auto& c = field.codes;
  const std::array<NonConfGame, 3> open = {{
      {"1-8", "4-5", std::string(c[0]), std::string(c[1]), kWeek, kFriday, temp},
      {"2-7", "3-6", std::string(c[2]), std::string(c[3]), kWeek, kFriday, temp},
      {"1-4", "2-3", std::string(c[4]), std::string(c[5]), kWeek, kSunday, temp},
  }};
  for (const NonConfGame& game : open) AddNonConfGame(store, counter, game);
}

}  // namespace

bool IsPreseasonTournament(std::string_view gameType) {
  for (const PreseasonField& field : kPreseasonFields) {
    if (field.name == gameType) return true;
  }
  return false;
}

void BuildPreseasonTournaments(Store& store, GameCounter& counter) {
  // Design decision: equal ratings are broken by the school's name, so the
  // same league always gives the same fields.
  const std::vector<Entrant> teams = Strongest(
      store, "SELECT SchoolName, Conference FROM Team ORDER BY TeamRating DESC, SchoolName", 15);
  const std::vector<Entrant> background = Strongest(
      store, "SELECT SchoolName, Conference FROM ScrubTeam ORDER BY TeamRating DESC, SchoolName",
      13);
  if (teams.size() < 15 || background.size() < 13) return;
  std::array<Field, kPreseasonFields.size()> fields;
  for (size_t t = 0; t < kPreseasonFields.size(); ++t) {
    fields[t] = DrawField(kPreseasonFields[t], teams, background);
    for (int seed = 1; seed <= 8; ++seed) {
      store.Exec(
          "INSERT INTO PreSeasonTourney (Seed, SchoolName, Conference, HostCity) "
          "VALUES (?, ?, ?, ?)",
          seed, fields[t][seed].school, fields[t][seed].conference, kPreseasonFields[t].name);
    }
  }
  for (size_t t = 0; t < kPreseasonFields.size(); ++t) {
    AddGames(store, counter, kPreseasonFields[t], fields[t]);
  }
}

}  // namespace courtmere
