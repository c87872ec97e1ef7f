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

// The ratings the rules read: all but DefReb, OffReb and Jumping. Those are
// parts of the rebounding and shot-blocking ratings, which the rules read
// whole; three columns fewer for each of 24 players is a tenth of the load.
constexpr auto kGameSkillColumns = [] {
  std::array<SkillColumn, kSkillColumns.size() - 3> columns{};
  size_t n = 0;
  for (const SkillColumn& skill : kSkillColumns) {
    const std::string_view name = skill.name;
    if (name != "DefReb" && name != "OffReb" && name != "Jumping") columns[n++] = skill;
  }
  return columns;
}();

// The queries of the players who dress, their columns in the order
// ReadPlayer reads them; the background table has no substitution pattern.
// Team and TimeInjured are not read: the query fixes both. Of the texts only
// the short name: the others cost a fifth of the load, and most games show
// none of them (LoadFullTexts reads them).
std::string PlayerQuery(std::string_view pattern, std::string_view fromWhere) {
  std::string sql = "SELECT Id, AbbrName, PlayerPosition, AvoidInjury, Intelligence";
  for (const SkillColumn& skill : kGameSkillColumns) (sql += ", ") += skill.name;
  (((sql += ", ") += pattern) += " FROM ") += fromWhere;
  return sql;
}

const std::string kPlayers =
    PlayerQuery("SubPattern",
                "Player WHERE Team = ? AND Inactive = 0 AND Suspended = 0 AND TimeInjured = 0 AND "
                "Redshirt <> 1 ORDER BY Id");
const std::string kScrubPlayers = PlayerQuery(
    "''", "ScrubPlayer WHERE Team = ? AND Inactive = 0 AND TimeInjured = 0 ORDER BY Id");

// The full texts of every player of a school. Read without the roster's
// conditions: a man hurt during the game no longer meets them.
constexpr const char* kPlayerTexts =
    "SELECT Id, Name, PlayerYear, Health FROM Player WHERE Team = ?";
constexpr const char* kScrubPlayerTexts =
    "SELECT Id, Name, PlayerYear, Health FROM ScrubPlayer WHERE Team = ?";

// The side's offence and defence coach (by their roles) and its trainer;
// NULL where the school has none.
constexpr const char* kStaff =
    "SELECT (SELECT OffCoach FROM Coach WHERE Team = ?1 AND OffPoints = 1), "
    "(SELECT DefCoach FROM Coach WHERE Team = ?1 AND DefPoints = 1), "
    "(SELECT Ability FROM Trainer WHERE Team = ?1)";

void ReadChart(GameSide& side, Rows& rows) {
  for (int n = 1; n <= GameSide::kDepthEntries; ++n) side.Depth[n] = rows.Int(n - 1);
  side.tactics.SetTempo(rows.Text(15));
  side.tactics.SetOffenseType(rows.Text(16));
  side.tactics.SetDefense(rows.Text(17));
  side.tactics.SetPress(rows.Text(18));
  side.HasRow = true;
  side.TeamRating = rows.Int(19);
  side.Prestige = rows.Double(20);
}

void ReadPlayer(Rows& rows, const std::string& school, GamePlayer& p, PlayerTexts& texts) {
  p = GamePlayer{};
  int c = 0;
  p.Id = rows.Int(c++);
  rows.TextInto(c++, texts.AbbrName);
  texts.Name.clear();
  texts.PlayerYear.clear();
  texts.Health.clear();
  texts.Team = school;
  p.PlayerPosition = rows.Int(c++);
  p.AvoidInjury = rows.Int(c++);
  p.TimeInjured = 0;  // a player who dresses is not hurt
  p.Intelligence = rows.Int(c++);
  for (const SkillColumn& skill : kGameSkillColumns) p.*skill.field = rows.Int(c++);
  p.Pattern = ParseSubPattern(rows.TextView(c));
}

}  // namespace

void LoadDepthAndTactics(Game& game, Side side) {
  GameSide& team = game.SideOf(side);
  Store& store = game.session->Db();
  {
    Rows rows = store.Query(kTeamChart, team.School);
    if (rows.Next()) {
      ReadChart(team, rows);
      team.UserTeam = rows.Text(21) == "Human";
      return;
    }
  }
  Rows rows = store.Query(kScrubChart, team.School);
  if (rows.Next()) ReadChart(team, rows);
}

void LoadCoachValues(Game& game) {
  Store& store = game.session->Db();
  for (GameSide& team : game.sides) {
    Rows staff = store.Query(kStaff, team.School);
    staff.Next();
    if (!staff.IsNull(0)) {
      team.OffCoach = staff.Int(0);
    } else {
      // Without an offence coach the team is a background team.
      Rows rows = store.Query(
          "SELECT OffCoach, DefCoach, Trainer FROM ScrubTeam WHERE SchoolName = ?", team.School);
      if (!rows.Next()) throw EngineError("no coach for " + team.School, 3021);
      team.OffCoach = rows.Int(0);
      team.DefCoach = rows.Int(1);
      team.Trainer = rows.Int(2);
    }
    if (!staff.IsNull(1)) team.DefCoach = staff.Int(1);
    if (!staff.IsNull(2)) team.Trainer = staff.Int(2);
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
  team.FullTexts = false;
  for (const std::string* sql : {&kPlayers, &kScrubPlayers}) {
    team.BackgroundRoster = sql == &kScrubPlayers;
    Rows rows = store.Query(*sql, team.School);
    // Design decision: a team with more eligible players than the game has
    // places dresses the first 12 in table order; the others sit the game out.
    while (team.RosterCount < GameSide::kMaxRoster && rows.Next()) {
      const int index = ++team.RosterCount;
      GamePlayer& player = team.Roster[index];
      ReadPlayer(rows, team.School, player, team.Texts[index]);
      player.StatIndex = player.Id == 0 ? 0 : index;
      GameStat& line = team.Stats[index];
      line.ClearCounters();
      line.Id = player.Id;
      line.Energy = player.Endurance;
      line.TeamName = team.Texts[index].Team;
    }
    if (team.RosterCount > 0) return;
  }
}

void LoadFullTexts(Game& game, Side side) {
  GameSide& team = game.SideOf(side);
  if (team.FullTexts) return;
  Rows rows = game.session->Db().Query(team.BackgroundRoster ? kScrubPlayerTexts : kPlayerTexts,
                                       team.School);
  while (rows.Next()) {
    const int id = rows.Int(0);
    for (int i = 1; i <= team.RosterCount; ++i) {
      if (team.Roster[i].Id != id) continue;
      PlayerTexts& texts = team.Texts[i];
      rows.TextInto(1, texts.Name);
      rows.TextInto(2, texts.PlayerYear);
      rows.TextInto(3, texts.Health);
      break;
    }
  }
  team.FullTexts = true;
}

}  // namespace courtmere
