#include "league/scrub_teams.h"

#include <string>
#include <vector>

#include "league/league_constants.h"
#include "people/player_creation.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct LowSchool {
  std::string SchoolName;
  std::string Conference;
  std::string Region;
  int64_t Prestige;
};

// The low schools outside the dynasty's three chosen conferences.
std::vector<LowSchool> OtherLowSchools(Store& store, const char* order) {
  std::vector<LowSchool> schools;
  for (Rows rows = store.Query(
           std::string("SELECT SchoolName, Conference, Region, Prestige FROM LowLeagueSetup "
                       "WHERE Conference NOT IN (SELECT Conference FROM League WHERE Id > 6) "
                       "ORDER BY ") +
           order);
       rows.Next();) {
    schools.push_back({rows.Text(0), rows.Text(1), rows.Text(2), rows.Int64(3)});
  }
  return schools;
}

struct Staff {
  int OffCoach;
  int DefCoach;
  int Trainer;
};

void AddScrubTeam(Store& store, const LowSchool& s, const Staff& staff, bool winner) {
  // Design decision: tactics start as those of a new Team row.
  store.Append("ScrubTeam", {{"SchoolName", s.SchoolName},
                             {"Conference", s.Conference},
                             {"Region", s.Region},
                             {"InitialPrestige", s.Prestige},
                             {"OffCoach", int64_t{staff.OffCoach}},
                             {"DefCoach", int64_t{staff.DefCoach}},
                             {"Trainer", int64_t{staff.Trainer}},
                             {"Winner", int64_t{winner ? 1 : 0}},
                             {"Tempo", "Normal"},
                             {"OffenseType", "Normal"},
                             {"Defense", "Man"},
                             {"Press", "None"}});
}

// One team of each conference, row round(Rnd * (n - 1) + 1) of its n.
int AddQualifiers(Session& session) {
  Rng& rng = session.rng;
  const std::vector<LowSchool> schools = OtherLowSchools(session.Db(), "Conference ASC, rowid");
  int added = 0;
  for (size_t first = 0; first < schools.size();) {
    size_t end = first;
    while (end < schools.size() && schools[end].Conference == schools[first].Conference) ++end;
    const int n = static_cast<int>(end - first);
    const int i = rng.R(n - 1, 1);
    const Staff staff{Int(rng.Rnd() * 35 + 45), Int(rng.Rnd() * 35 + 45), Int(rng.Rnd() * 30 + 45)};
    AddScrubTeam(session.Db(), schools[first + i - 1], staff, true);
    ++added;
    first = end;
  }
  return added;
}

bool InField(Store& store, const std::string& school) {
  return store.ScalarInt("SELECT count(*) FROM ScrubTeam WHERE SchoolName = ?", school)
             .value_or(0) > 0;
}

void AddFillUps(Session& session, int counter) {
  Rng& rng = session.rng;
  Store& store = session.Db();
  // Design decision: schools of equal prestige are taken in the seed table's order.
  for (const LowSchool& s : OtherLowSchools(store, "Prestige DESC, rowid")) {
    if (counter >= kMostScrubTeams + 1) return;
    if (InField(store, s.SchoolName)) continue;
    const Staff staff{Int(rng.Rnd() * 50 + 50), Int(rng.Rnd() * 50 + 50), Int(rng.Rnd() * 30 + 60)};
    AddScrubTeam(store, s, staff, false);
    ++counter;
  }
}

struct FieldTeam {
  std::string SchoolName;
  int Prestige;
};

void RefreshRoster(Session& session, PlayerBatch& batch, const FieldTeam& team,
                   const DevelopScrubPlayer& develop) {
  Store& store = session.Db();
  std::vector<std::pair<int, int>> players;  // id, position
  for (Rows rows = store.Query("SELECT Id, PlayerPosition FROM ScrubPlayer WHERE Team = ?",
                               team.SchoolName);
       rows.Next();) {
    players.emplace_back(rows.Int(0), rows.Int(1));
  }
  if (players.empty()) {
    CreateScrubTeamRoster(session, batch, team.SchoolName, team.Prestige);
    return;
  }
  batch.positions.Clear();
  for (const auto& [id, position] : players) {
    if (develop) develop(session, id);
    if (position >= kPG && position <= kC) ++batch.positions[position];
  }
  const int missing = kRosterSize - static_cast<int>(players.size());
  if (missing > 0) {
    CreateScrubPlayers(session, batch, team.SchoolName, team.Prestige, missing, 1, 4);
  }
}

}  // namespace

void CreateScrubTeams(Session& session) {
  session.rng.Reseed();
  // The counter stands one above the teams added, so the fill-up ends when
  // it reaches 111, with 110 teams in the field.
  const int counter = 1 + AddQualifiers(session);
  AddFillUps(session, counter);
}

void RefreshScrubRosters(Session& session, PlayerBatch& batch, const DevelopScrubPlayer& develop) {
  Store& store = session.Db();
  store.Exec("DELETE FROM ScrubPlayer WHERE PlayerYear = 'Senior'");
  store.Exec("UPDATE ScrubPlayer SET PPG = 0 WHERE PPG > 0");
  std::vector<FieldTeam> field;
  for (Rows rows = store.Query("SELECT SchoolName, InitialPrestige FROM ScrubTeam ORDER BY rowid");
       rows.Next();) {
    field.push_back({rows.Text(0), rows.Int(1)});
  }
  for (size_t i = 0; i < field.size(); ++i) {
    RefreshRoster(session, batch, field[i], develop);
    session.ui.SetProgress(static_cast<int>(100 * (i + 1) / field.size()));
  }
  store.Exec("DELETE FROM ScrubPlayer WHERE Team NOT IN (SELECT SchoolName FROM ScrubTeam)");
}

}  // namespace courtmere
