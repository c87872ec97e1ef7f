#include "people/player_creation.h"

#include <array>

#include "people/creation_tables.h"
#include "people/position_builders.h"
#include "people/rating.h"
#include "people/recruit_report.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kRosterSize = 13;
constexpr std::array<const char*, 5> kYearNames = {"Recruit", "Freshman", "Sophomore", "Junior",
                                                   "Senior"};

// The roll that a full position hands on to: the first position with room,
// looking at C, PF, SF, SG and PG in this order; 0 when none has room.
int HandOnRoll(Rng& rng, const PositionCounters& counters, int cap) {
  for (int position : {kC, kPF, kSF, kSG, kPG}) {
    if (counters[position] >= cap) continue;
    switch (position) {
      case kC:
        return Int(rng.Rnd() * 19 + 1);
      case kPF:
        return 30;
      case kSF:
        return 50;
      case kSG:
        return 70;
      default:
        return Int(rng.Rnd() * 18 + 81);
    }
  }
  return 0;
}

// Rolls the position and height and runs the builder. A roll whose position
// already holds `cap` players is handed on; when no position has room left
// (walk-ons, whose counters are not cleared) the roll is taken as it came.
void BuildFromRoll(Rng& rng, PositionCounters& counters, int cap, HeightBand (*bandOf)(int y),
                   Player& p, Quality q) {
  int y = Int(rng.Rnd() * 100 + 1);
  for (;;) {
    const HeightBand row = bandOf(y);
    if (counters[row.position] == cap) {
      const int handed = HandOnRoll(rng, counters, cap);
      if (handed != 0) {
        y = handed;
        continue;
      }
    }
    const int height = row.m == 0 ? static_cast<int>(row.a) : rng.R(row.m, row.a);
    BuildPosition(row.position, rng, counters, height, p, q);
    return;
  }
}

void DrawName(Store& store, Rng& rng, PlayerBatch& batch, Player& p) {
  if (batch.firstNameRows < 0) {
    batch.firstNameRows = static_cast<int>(store.RowCount("FName"));
    batch.lastNameRows = static_cast<int>(store.RowCount("LName"));
  }
  const std::string first = store.FirstName(Int(rng.Rnd() * (batch.firstNameRows - 1) + 1));
  const std::string last = store.LastName(Int(rng.Rnd() * (batch.lastNameRows - 1) + 1));
  p.Name = first + " " + last;
  p.AbbrName = first.substr(0, 1) + ". " + last;
}

const std::vector<PlayerBatch::HighSchoolRow>& HighSchoolsOf(Store& store, PlayerBatch& batch,
                                                             const std::string& region) {
  auto found = batch.highSchools.find(region);
  if (found != batch.highSchools.end()) return found->second;
  auto& list = batch.highSchools[region];
  Rows rows = store.Query(
      "SELECT HighSchool, HomeTown, State, Area FROM HighSchool WHERE Region = ? ORDER BY rowid",
      region);
  while (rows.Next()) {
    list.push_back({rows.Text(0), rows.Text(1) + "," + rows.Text(2), rows.Text(3)});
  }
  return list;
}

// His school and hometown: a row of the region's high schools other than the
// first. Returns the area for his recruit row.
std::string DrawHighSchool(Store& store, Rng& rng, PlayerBatch& batch, const std::string& region,
                           Player& p) {
  const auto& list = HighSchoolsOf(store, batch, region);
  const int n = static_cast<int>(list.size());
  int index = Int(rng.Rnd() * (n - 1) + 1);
  if (n == 0) return "";
  if (index >= n) index = n - 1;
  p.HighSchool = list[index].highSchool;
  p.HomeTown = list[index].homeTown;
  return list[index].area;
}

int DrawWish(Rng& rng, Quality q) {
  switch (q) {
    case Quality::kPoor:
      return rng.R(90, 10);
    case Quality::kAverage:
      return rng.R(80, 20);
    case Quality::kGood:
      return rng.R(75, 25);
    default:
      return rng.R(70, 30);
  }
}

// Intelligence, development of an upperclassman, then the ratings.
void Finish(Session& session, Player& p, int year) {
  Rng& rng = session.rng;
  p.Intelligence = p.OffAware + p.DefAware <= 140 ? rng.R(50, 30) : rng.R(40, 40);
  if (year >= 2) {
    for (int i = 1; i < year; ++i) DevelopOneYear(rng, p);
    CapRatings(p);
  }
  RatePlayer(session, p);
}

void StartRecord(PlayerBatch& batch, Player& p, const std::string& team, int year) {
  p.PlayerYear = kYearNames[year];
  if (year == 4) p.NBAFlag = 1;
  p.Team = team;
  p.Health = kGood;
  p.Id = batch.ids.NextId;
}

void MakeRecruit(Session& session, PlayerBatch& batch, const Player& p, const std::string& region,
                 const std::string& area, Quality q) {
  Recruit r;
  r.Id = p.Id;
  r.ScoutingReport = RecruitReport(session.rng, p, 1);
  r.Region = region;
  r.Area = area;
  r.RecruitType = QualityName(q);
  if (batch.recruitInterest) batch.recruitInterest(session, r, p);
  RecruitStats(session.rng, p, r);
  SaveRecruit(session.Db(), r);
  ++batch.ids.NumRecruits;
}

void CreateOnePlayer(Session& session, PlayerBatch& batch, const std::string& team,
                     const std::string& region, int prestige, int year, int cap) {
  Rng& rng = session.rng;
  Store& store = session.Db();
  Player p;
  DrawName(store, rng, batch, p);
  const std::string area = DrawHighSchool(store, rng, batch, region, p);
  p.Homesick = rng.R(100, 1);
  StartRecord(batch, p, team, year);
  p.AvoidInjury = rng.R(55, 45);
  const Quality q = PlayerClass(prestige, Int(rng.Rnd() * 100 + 1));
  p.PlayWinner = DrawWish(rng, q);
  BuildFromRoll(rng, batch.positions, cap, PlayerHeightBand, p, q);
  Finish(session, p, year);
  SetPlayerGPA(rng, p);
  AddPlayer(store, p);
  AddPlayerStats(store, p.Id);
  if (year == 0) MakeRecruit(session, batch, p, region, area, q);
  ++batch.ids.NextId;
}

void CreateOneScrubPlayer(Session& session, PlayerBatch& batch, const std::string& team,
                          int prestige, int year, int cap) {
  Rng& rng = session.rng;
  Player p;
  DrawName(session.Db(), rng, batch, p);
  StartRecord(batch, p, team, year);
  p.NBAFlag = 0;
  p.AvoidInjury = rng.R(55, 45);
  const Quality q = ScrubClass(prestige, Int(rng.Rnd() * 100 + 1));
  BuildFromRoll(rng, batch.positions, cap, ScrubHeightBand, p, q);
  Finish(session, p, year);
  AddScrubPlayer(session.Db(), p);
  ++batch.ids.NextId;
}

// A junior-college man back in the pool keeps his Recruit row, and with it
// the year he may sign in (InEligible), his test score, his choice and his
// ranks, which later rules read. He gets a new first report, interest list
// and statistics, and his school now reads as the junior college of his
// area.
void RenewReturningRecruit(Session& session, PlayerBatch& batch, int id) {
  Store& store = session.Db();
  Player p;
  if (!LoadPlayer(store, id, p)) return;
  Recruit r;
  {
    Rows rows = store.Query("SELECT Region, Area, RecruitType FROM Recruit WHERE Id = ?", id);
    if (!rows.Next()) return;
    r.Region = rows.Text(0);
    r.Area = rows.Text(1);
    r.RecruitType = rows.Text(2);
  }
  p.HighSchool = r.Area + " JC(" + p.HighSchool + ")";
  store.Exec("UPDATE Player SET HighSchool = ? WHERE Id = ?", p.HighSchool, id);
  r.Id = id;
  r.ScoutingReport = RecruitReport(session.rng, p, 1);
  if (batch.recruitInterest) batch.recruitInterest(session, r, p);
  RecruitStats(session.rng, p, r);
  SaveRecruit(store, r);
}

}  // namespace

const char* QualityName(Quality quality) {
  switch (quality) {
    case Quality::kExc:
      return "Exc";
    case Quality::kGood:
      return "Good";
    case Quality::kAverage:
      return "Average";
    default:
      return "Poor";
  }
}

PlayerBatch PlayerBatch::Begin(Session& session) {
  PlayerBatch batch;
  batch.ids = LoadIdCounters(session.Db());
  return batch;
}

void PlayerBatch::Save(Session& session) const {
  session.Db().Exec("UPDATE Config SET NextId = ?, NumRecruits = ? WHERE IdConfig = 0", ids.NextId,
                    ids.NumRecruits);
  session.config.NextId = ids.NextId;
  session.config.NumRecruits = ids.NumRecruits;
}

void CreatePlayers(Session& session, PlayerBatch& batch, const std::string& team,
                   const std::string& region, int prestige, int count, int year, int cap) {
  for (int i = 0; i < count; ++i) {
    CreateOnePlayer(session, batch, team, region, prestige, year, cap);
  }
}

void CreateScrubPlayers(Session& session, PlayerBatch& batch, const std::string& team, int prestige,
                        int count, int year, int cap) {
  for (int i = 0; i < count; ++i) CreateOneScrubPlayer(session, batch, team, prestige, year, cap);
}

void CreateTeamRoster(Session& session, PlayerBatch& batch, const std::string& team,
                      const std::string& region, int prestige) {
  batch.positions.Clear();
  for (int year = 1; year <= 4; ++year) {
    CreatePlayers(session, batch, team, region, prestige, 3, year, 3);
  }
  CreatePlayers(session, batch, team, region, prestige, 1, Int(session.rng.Rnd() * 4 + 1), 4);
}

void CreateTeamRoster(Session& session, const std::string& team, const std::string& region,
                      int prestige) {
  PlayerBatch batch = PlayerBatch::Begin(session);
  CreateTeamRoster(session, batch, team, region, prestige);
  batch.Save(session);
}

void CreateScrubTeamRoster(Session& session, PlayerBatch& batch, const std::string& team,
                           int prestige) {
  batch.positions.Clear();
  for (int year = 1; year <= 4; ++year) {
    CreateScrubPlayers(session, batch, team, prestige, 3, year, 3);
  }
  CreateScrubPlayers(session, batch, team, prestige, 1, Int(session.rng.Rnd() * 4 + 1), 4);
}

void CreateScrubTeamRoster(Session& session, const std::string& team, int prestige) {
  PlayerBatch batch = PlayerBatch::Begin(session);
  CreateScrubTeamRoster(session, batch, team, prestige);
  batch.Save(session);
}

void AddWalkOns(Session& session, PlayerBatch& batch) {
  Store& store = session.Db();
  struct Short {
    std::string school;
    std::string region;
    int missing;
  };
  std::vector<Short> shortTeams;
  {
    Rows rows = store.Query(
        "SELECT SchoolName, Region, (SELECT count(*) FROM Player WHERE Player.Team = "
        "Team.SchoolName) FROM Team");
    while (rows.Next()) {
      const int players = rows.Int(2);
      if (players < kRosterSize) {
        shortTeams.push_back({rows.Text(0), rows.Text(1), kRosterSize - players});
      }
    }
  }
  for (const Short& team : shortTeams) {
    for (int i = 0; i < team.missing; ++i) {
      CreatePlayers(session, batch, team.school, team.region, 20, 1, 4, 1);
    }
  }
}

int RegionRecruitCount(Session& session, const std::string& region) {
  Store& store = session.Db();
  const int seniors = static_cast<int>(
      store
          .ScalarInt("SELECT count(*) FROM Player JOIN Team ON Player.Team = Team.SchoolName "
                     "WHERE Team.Region = ? AND Player.PlayerYear = 'Senior'",
                     region)
          .value_or(0));
  std::vector<int> leavers;
  {
    // Design decision: the players are taken best first, so that when the
    // region holds its most leavers the ones kept are the likeliest to go.
    Rows rows = store.Query(
        "SELECT Player.Id, Player.Overall, Player.Potential, Player.GPA FROM Player JOIN Team ON "
        "Player.Team = Team.SchoolName WHERE Team.Region = ? AND Player.Overall > 75 AND "
        "Player.PlayerYear <> 'Senior' ORDER BY Player.Overall DESC",
        region);
    while (rows.Next() && static_cast<int>(leavers.size()) < kMostEarlyLeavers) {
      const int r = session.rng.R(100, 1);
      if (LeavesEarly(rows.Double(1), rows.Int(2), rows.Double(3), r)) {
        leavers.push_back(rows.Int(0));
      }
    }
  }
  for (int id : leavers) store.Exec("UPDATE Player SET NBAFlag = 1 WHERE Id = ?", id);
  return seniors + static_cast<int>(leavers.size()) + 5;
}

void CreateRegionRecruits(Session& session, PlayerBatch& batch, const std::string& region) {
  Store& store = session.Db();
  const int64_t currentYear =
      store.ScalarInt("SELECT CurrYear FROM Config WHERE IdConfig = 0").value_or(0);
  std::vector<int> returning;
  {
    Rows rows = store.Query(
        "SELECT Player.Id FROM Player JOIN Recruit ON Player.Id = Recruit.Id "
        "WHERE Player.Team = ? AND Recruit.InEligible = ? ORDER BY Player.Id",
        region, currentYear);
    while (rows.Next()) returning.push_back(rows.Int(0));
  }
  for (int id : returning) RenewReturningRecruit(session, batch, id);

  const int size = RegionRecruitCount(session, region) - static_cast<int>(returning.size());
  if (size <= 0) return;
  batch.positions.Clear();
  const int cap = (size + 4) / 5;
  CreatePlayers(session, batch, region, region, 60, size, 0, cap);
}

void CreateRecruitClasses(Session& session, PlayerBatch& batch) {
  for (const char* region : {"West", "Midwest", "East", "South"}) {
    CreateRegionRecruits(session, batch, region);
  }
}

void SetPlayerGPA(Rng& rng, Player& p) {
  const int i = p.Intelligence - 40;
  double gpa = i <= 20 ? rng.Rnd() * 0.85 + 1.65 : i / 9.5;
  if (gpa > 4.0) gpa = rng.Rnd() * 0.8 + 3.2;
  p.GPA = gpa;
}

}  // namespace courtmere
