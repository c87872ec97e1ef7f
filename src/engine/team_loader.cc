#include "engine/team_loader.h"

#include <algorithm>

#include "engine/engine_error.h"
#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kTeamChart =
    "SELECT PG1, SG1, SF1, PF1, C1, PG2, SG2, SF2, PF2, C2, PG3, SG3, SF3, PF3, C3, Tempo, "
    "OffenseType, Defense, Press, TeamRating, Prestige, Owner FROM Team WHERE SchoolName = ?";
constexpr const char* kScrubChart =
    "SELECT PG1, SG1, SF1, PF1, C1, PG2, SG2, SF2, PF2, C2, PG3, SG3, SF3, PF3, C3, Tempo, "
    "OffenseType, Defense, Press, TeamRating, Prestige FROM ScrubTeam WHERE SchoolName = ?";

// The player columns in the order ReadPlayer reads them; the background
// table has no substitution pattern.
#define COURTMERE_PLAYER_COLUMNS                                                                \
  "Id, Name, AbbrName, PlayerYear, Team, PlayerPosition, AvoidInjury, Health, TimeInjured, "    \
  "Intelligence, Jumpshot, InScoring, Range, ThreePoint, FreeThrow, PerrDefense, PostDefense, " \
  "DefReb, OffReb, ShotBlock, Steal, OffRebounding, DefRebounding, Handling, OffAware, "        \
  "DefAware, Passing, Jumping, Quickness, Endurance, Strength, Reach"

constexpr const char* kPlayers =
    "SELECT " COURTMERE_PLAYER_COLUMNS
    ", SubPattern FROM Player WHERE Team = ? AND Inactive = 0 AND Suspended = 0 AND "
    "TimeInjured = 0 AND Redshirt <> 1 ORDER BY Id";
constexpr const char* kScrubPlayers = "SELECT " COURTMERE_PLAYER_COLUMNS
                                      ", '' FROM ScrubPlayer WHERE Team = ? AND Inactive = 0 "
                                      "AND TimeInjured = 0 ORDER BY Id";
#undef COURTMERE_PLAYER_COLUMNS

// The side's offence and defence coach (by their roles) and its trainer;
// NULL where the school has none.
constexpr const char* kStaff =
    "SELECT (SELECT OffCoach FROM Coach WHERE Team = ?1 AND OffPoints = 1), "
    "(SELECT DefCoach FROM Coach WHERE Team = ?1 AND DefPoints = 1), "
    "(SELECT Ability FROM Trainer WHERE Team = ?1)";

void ReadChart(GameSide& side, const CachedRows& rows) {
  for (int n = 1; n <= GameSide::kDepthEntries; ++n) side.Depth[n] = rows.Int(0, n - 1);
  side.tactics.SetTempo(rows.Text(0, 15));
  side.tactics.SetOffenseType(rows.Text(0, 16));
  side.tactics.SetDefense(rows.Text(0, 17));
  side.tactics.SetPress(rows.Text(0, 18));
  side.HasRow = true;
  side.TeamRating = rows.Int(0, 19);
  side.Prestige = rows.Double(0, 20);
}

// Fills the record `p` from row `r`, reusing its texts' storage.
void ReadPlayer(GamePlayer& p, const CachedRows& rows, int r) {
  int c = 0;
  p.Id = rows.Int(r, c++);
  p.Name = rows.Text(r, c++);
  p.AbbrName = rows.Text(r, c++);
  p.PlayerYear = rows.Text(r, c++);
  p.Team = rows.Text(r, c++);
  p.PlayerPosition = rows.Int(r, c++);
  p.AvoidInjury = rows.Int(r, c++);
  p.Health = rows.Text(r, c++);
  p.TimeInjured = 0;  // a player who dresses is not hurt
  ++c;
  for (int* field :
       {&p.Intelligence,  &p.Jumpshot,      &p.InScoring, &p.Range,    &p.ThreePoint, &p.FreeThrow,
        &p.PerrDefense,   &p.PostDefense,   &p.DefReb,    &p.OffReb,   &p.ShotBlock,  &p.Steal,
        &p.OffRebounding, &p.DefRebounding, &p.Handling,  &p.OffAware, &p.DefAware,   &p.Passing,
        &p.Jumping,       &p.Quickness,     &p.Endurance, &p.Strength, &p.Reach}) {
    *field = rows.Int(r, c++);
  }
  p.Pattern = ParseSubPattern(rows.Text(r, c));
  p.StatIndex = 0;
}

}  // namespace

// The reads below go through the store's kept rows: the same two teams are
// read for every game, and the rows are read again once anything changed.
void LoadDepthAndTactics(Game& game, Side side) {
  GameSide& team = game.SideOf(side);
  Store& store = game.session->Db();
  const CachedRows& chart = store.QueryCached(kTeamChart, team.School);
  if (chart.Count() > 0) {
    ReadChart(team, chart);
    team.UserTeam = chart.Text(0, 21) == "Human";
    return;
  }
  const CachedRows& scrub = store.QueryCached(kScrubChart, team.School);
  if (scrub.Count() > 0) ReadChart(team, scrub);
}

void LoadCoachValues(Game& game) {
  Store& store = game.session->Db();
  for (GameSide& team : game.sides) {
    const CachedRows& staff = store.QueryCached(kStaff, team.School);
    if (!staff.IsNull(0, 0)) {
      team.OffCoach = staff.Int(0, 0);
    } else {
      // Without an offence coach the team is a background team.
      const CachedRows& rows = store.QueryCached(
          "SELECT OffCoach, DefCoach, Trainer FROM ScrubTeam WHERE SchoolName = ?", team.School);
      if (rows.Count() == 0) throw EngineError("no coach for " + team.School, 3021);
      team.OffCoach = rows.Int(0, 0);
      team.DefCoach = rows.Int(0, 1);
      team.Trainer = rows.Int(0, 2);
    }
    if (!staff.IsNull(0, 1)) team.DefCoach = staff.Int(0, 1);
    if (!staff.IsNull(0, 2)) team.Trainer = staff.Int(0, 2);
  }
}

int CrowdStrength(const Game& game) {
  const GameSide& home = game.Home();
  if (!home.HasRow) return 10;
  const int rating = std::max(home.TeamRating, 430);
  return CInt(home.Prestige * 0.6 + (rating - 430) * 0.4);
}

void LoadRoster(Game& game, Side side) {
  GameSide& team = game.SideOf(side);
  Store& store = game.session->Db();
  team.RosterCount = 0;
  for (const char* sql : {kPlayers, kScrubPlayers}) {
    const CachedRows& rows = store.QueryCached(sql, team.School);
    // Design decision: a team with more eligible players than the game has
    // places dresses the first 12 in table order; the others sit the game out.
    for (int r = 0; team.RosterCount < GameSide::kMaxRoster && r < rows.Count(); ++r) {
      const int index = ++team.RosterCount;
      GamePlayer& player = team.Roster[index];
      ReadPlayer(player, rows, r);
      player.StatIndex = index;
      GameStat& line = team.Stats[index];
      line = GameStat{};
      line.Id = player.Id;
      line.Energy = player.Endurance;
      line.TeamName = player.Team;
    }
    if (team.RosterCount > 0) return;
  }
}

}  // namespace courtmere
