#include "exhibition_setup.h"

#include <fmt/format.h>

#include "cpu/computer_roster.h"
#include "people/player_creation.h"
#include "people/staff_creation.h"
#include "refusal.h"

namespace courtmere::cli {

namespace {

bool HasDynasty(Store& store) {
  return store.RowCount("Team") > 0;
}

bool Exists(Store& store, const char* table, const std::string& school) {
  const std::string sql = std::string("SELECT COUNT(*) FROM ") + table + " WHERE SchoolName = ?";
  return store.ScalarInt(sql, school).value_or(0) > 0;
}

// Whether the school has an offensive and a defensive coach, as a game needs.
bool HasGameCoaches(Store& store, const std::string& school) {
  for (const char* role : {"OffPoints", "DefPoints"}) {
    const std::string sql =
        std::string("SELECT count(*) FROM Coach WHERE Team = ? AND ") + role + " = 1";
    if (store.ScalarInt(sql, school).value_or(0) == 0) return false;
  }
  return true;
}

// Two schools of the first fixed conference, from the dynasty or the seeds.
SchoolPair DefaultPair(Store& store) {
  const char* sql = HasDynasty(store)
                        ? "SELECT SchoolName FROM Team WHERE Conference = (SELECT Conference FROM "
                          "LeagueSetup WHERE Id = 1) ORDER BY SchoolName LIMIT 2"
                        : "SELECT SchoolName FROM TeamSetup WHERE Conference = (SELECT Conference "
                          "FROM LeagueSetup WHERE Id = 1) ORDER BY SchoolName LIMIT 2";
  SchoolPair pair;
  Rows rows = store.Query(sql);
  if (rows.Next()) pair.home = rows.Text(0);
  if (rows.Next()) pair.away = rows.Text(0);
  if (pair.away.empty()) Refuse("There are no two schools to play an exhibition.");
  return pair;
}

// Copies a seed school to a Team row with its TeamStats row; returns its
// region and prestige.
std::pair<std::string, int> AddSeedSchool(Store& store, const std::string& school) {
  for (const char* table : {"TeamSetup", "LowLeagueSetup"}) {
    Rows rows = store.Query(std::string("SELECT State, Location, Area, Population, Colors, "
                                        "ArenaCapacity, Conference, Region, Division, Prestige, "
                                        "SchedGroup FROM ") +
                                table + " WHERE SchoolName = ?",
                            school);
    if (!rows.Next()) continue;
    const int prestige = rows.Int(9);
    store.Append("Team", {{"SchoolName", school},
                          {"State", rows.Text(0)},
                          {"Location", rows.Text(1)},
                          {"Area", rows.Text(2)},
                          {"Population", rows.Int64(3)},
                          {"Colors", rows.Text(4)},
                          {"ArenaCapacity", rows.Int64(5)},
                          {"Conference", rows.Text(6)},
                          {"Region", rows.Text(7)},
                          {"Division", rows.Text(8)},
                          {"InitialPrestige", int64_t{prestige}},
                          {"Prestige", static_cast<double>(prestige)},
                          {"SchedGroup", rows.Text(10)},
                          {"Owner", "Computer"},
                          {"Tempo", "Normal"},
                          {"OffenseType", "Normal"},
                          {"Defense", "Man"},
                          {"Press", "None"}});
    store.Append("TeamStats", {{"SchoolName", school}});
    return {rows.Text(7), prestige};
  }
  Refuse(fmt::format("There is no school named {}.", school));
}

void SetUpFromSeeds(Session& session, const SchoolPair& pair) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  const auto home = AddSeedSchool(store, pair.home);
  const auto away = AddSeedSchool(store, pair.away);
  CreateCoaches(session, 0);
  CreateScouts(session, 0);
  CreateTrainers(session, 0);
  for (const auto& [school, seed] : {std::pair{pair.home, home}, std::pair{pair.away, away}}) {
    SetCoachRoles(session, school);
    CreateTeamRoster(session, school, seed.first, seed.second);
    SetTeamLineup(session, school, 0);
  }
  tx.Commit();
}

}  // namespace

SchoolPair PrepareExhibition(Session& session, std::string home, std::string away) {
  Store& store = session.Db();
  SchoolPair pair = home.empty() ? DefaultPair(store) : SchoolPair{home, away};
  if (pair.home == pair.away) Refuse(fmt::format("{} can't play itself.", pair.home));
  if (!HasDynasty(store)) {
    SetUpFromSeeds(session, pair);
    return pair;
  }
  for (const std::string& school : {pair.home, pair.away}) {
    if (!Exists(store, "Team", school) && !Exists(store, "ScrubTeam", school)) {
      Refuse(fmt::format("There is no school named {} in this dynasty.", school));
    }
    // Design decision: the exhibition plays in a copy of the dynasty, so a
    // school whose coaches hold no game roles yet (the user's, before his
    // first game) takes the computer's choice there instead of being refused.
    if (Exists(store, "Team", school) && !HasGameCoaches(store, school)) {
      SetCoachRoles(session, school);
    }
  }
  return pair;
}

}  // namespace courtmere::cli
