#include "season/awards.h"

#include <array>
#include <string>
#include <vector>

#include "platform/numeric.h"
#include "season/leader_board.h"
#include "store/session.h"

namespace courtmere {

namespace {

// Player slots that the picks look at in each team.
constexpr int kAwardSlots = 13;
// The week figures are cleared in teams below this index.
constexpr int kWeekClearTeams = 150;
constexpr int kPositions = 5;

int FirstDivisionTeams(Store& store) {
  return static_cast<int>(store.ScalarInt("SELECT count(SchoolName) FROM Team").value_or(0));
}

// Writes one honour with the figures rounded to one decimal.
void AddWinner(Store& store, const std::string& type, int weekNo, int playerId, double ppg,
               double apg, double rpg, double spg, double topg, double bpg) {
  store.Exec(
      "INSERT INTO AwardWinners (Type, WeekNo, PlayerId, PPG, APG, RPG, SPG, TOPG, BPG) "
      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
      type, weekNo, playerId, Round(ppg, 1), Round(apg, 1), Round(rpg, 1), Round(spg, 1),
      Round(topg, 1), Round(bpg, 1));
}

void AddSeasonWinner(Store& store, const std::string& type, int weekNo, const LeaderRow& row) {
  AddWinner(store, type, weekNo, row.Id, row.PPG, row.APG, row.RPG, row.SPG, row.TOPG, row.BPG);
}

void ClearWeekFigures(PlayerStatsStore& stats) {
  for (int t = 1; t < kWeekClearTeams; ++t) {
    for (int s = 1; s <= kAwardSlots; ++s) {
      PlayerSeasonLine& p = stats.Team(t).Players[s];
      p.WeekPoints = p.WeekRebounds = p.WeekAssists = 0;
      p.WeekSteals = p.WeekBlocks = p.WeekTurnovers = 0;
      p.AwardScore = 0;
    }
  }
}

// Which men a season pick weighs.
struct Candidates {
  std::string scope;  // a conference, or "National" for every team
  bool freshmenOnly = false;
};

bool IsFreshman(Store& store, int id) {
  return store.ScalarText("SELECT PlayerYear FROM Player WHERE Id = ?", id).value_or("") ==
         "Freshman";
}

// The sorted list of the candidates' season award scores. The score lives
// only in this list, worked out anew for each pick. Design decision:
// a man who has not played a game this season is no candidate, so a
// conference with fewer players than places names fewer.
std::vector<LeaderRow> AwardList(Session& session, const Candidates& c) {
  std::vector<LeaderRow> rows;
  const int n = FirstDivisionTeams(session.Db());
  for (int t = 1; t <= n && t <= PlayerStatsStore::kMaxTeams; ++t) {
    const TeamSeasonLines& team = session.seasonStats.Team(t);
    if (c.scope != "National" && team.Conference != c.scope) continue;
    for (int s = 1; s <= kAwardSlots; ++s) {
      const PlayerSeasonLine& p = team.Players[s];
      if (p.Id == 0 || p.Games == 0) continue;
      if (c.freshmenOnly && !IsFreshman(session.Db(), p.Id)) continue;
      rows.push_back(MakeLeaderRow(p, SeasonAwardScore(p)));
    }
  }
  SortLeaderBoard(rows);
  return rows;
}

bool HasPosition(const LeaderRow& row) {
  return row.PlayerPosition >= 1 && row.PlayerPosition <= kPositions;
}

// The slots a man of each position may take, in order of preference:
// neighbouring positions share them.
constexpr std::array<std::array<int, 3>, kPositions + 1> kSlotChoices{{
    {0, 0, 0},
    {1, 2, 3},
    {2, 1, 3},
    {3, 2, 4},
    {4, 5, 3},
    {5, 4, 3},
}};

}  // namespace

double SeasonAwardScore(const PlayerSeasonLine& p) {
  const double rebounds = p.OffRebounds + p.DefRebounds;
  switch (p.PlayerPosition) {
    case 1:
      return p.Assists * 1.5 + p.Points * 1.25 + p.Steals * 1.75 + rebounds + p.ShotBlocks -
             p.Turnovers * 1.5;
    case 2:
      return p.Points * 1.5 + p.Assists + p.Steals * 1.5 + rebounds + p.ShotBlocks - p.Turnovers;
    case 3:
      return p.Points * 1.25 + p.Assists + p.Steals + p.OffRebounds * 1.25 + p.DefRebounds +
             p.ShotBlocks - p.Turnovers;
    case 4:
      return p.Points * 1.5 + p.Assists + p.Steals + p.OffRebounds * 1.25 + p.DefRebounds * 1.25 +
             p.ShotBlocks - p.Turnovers;
    case 5:
      return p.Points * 1.25 + p.Assists + p.Steals + p.OffRebounds * 1.25 + p.DefRebounds * 1.5 +
             p.ShotBlocks * 2 - p.Turnovers;
    default:
      return 0;
  }
}

void PickPlayerOfWeek(Session& session) {
  Store& store = session.Db();
  const int n = FirstDivisionTeams(store);
  const PlayerSeasonLine* best = nullptr;
  for (int t = 1; t <= n && t <= PlayerStatsStore::kMaxTeams; ++t) {
    for (int s = 1; s <= kAwardSlots; ++s) {
      const PlayerSeasonLine& p = session.seasonStats.Team(t).Players[s];
      if (p.AwardScore > 0 && (best == nullptr || p.AwardScore > best->AwardScore)) best = &p;
    }
  }
  Store::Transaction tx(store);
  if (best != nullptr) {
    AddWinner(store, "week", session.config.CurrWeek, best->Id, best->WeekPoints, best->WeekAssists,
              best->WeekRebounds, best->WeekSteals, best->WeekTurnovers, best->WeekBlocks);
  }
  tx.Commit();
  ClearWeekFigures(session.seasonStats);
}

void PickConferenceTeam(Session& session, const std::string& scope, const std::string& kind) {
  const bool freshmen = kind == "Freshman";
  const std::vector<LeaderRow> list = AwardList(session, {scope, freshmen});
  const std::string type = freshmen ? scope + "F" : scope;
  Store& store = session.Db();
  Store::Transaction tx(store);
  std::array<bool, kPositions + 1> taken{};
  int filled = 0;
  for (const LeaderRow& row : list) {
    if (filled == kPositions || !HasPosition(row)) break;
    for (int slot : kSlotChoices[row.PlayerPosition]) {
      if (taken[slot]) continue;
      taken[slot] = true;
      ++filled;
      AddSeasonWinner(store, type, slot, row);
      break;
    }
  }
  if (!freshmen && !list.empty()) {
    AddSeasonWinner(store, scope + "POY", list.front().PlayerPosition, list.front());
  }
  tx.Commit();
}

void PickNationalTeams(Session& session) {
  const std::vector<LeaderRow> list = AwardList(session, {"National", false});
  if (list.empty()) return;
  Store& store = session.Db();
  Store::Transaction tx(store);
  AddSeasonWinner(store, "NationalPOY", list.front().PlayerPosition, list.front());
  static const std::array<const char*, 3> kTeams{"FirstAA", "SecondAA", "ThirdAA"};
  // How many of the three teams already hold a man of each position.
  std::array<size_t, kPositions + 1> named{};
  int thirdTeamFull = 0;
  for (const LeaderRow& row : list) {
    if (thirdTeamFull == kPositions || !HasPosition(row)) break;
    size_t& count = named[row.PlayerPosition];
    if (count == kTeams.size()) continue;
    AddSeasonWinner(store, kTeams[count], row.PlayerPosition, row);
    if (++count == kTeams.size()) ++thirdTeamFull;
  }
  tx.Commit();
}

}  // namespace courtmere
