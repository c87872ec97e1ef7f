#include "offseason/nba_draft.h"

#include <fmt/format.h>

#include <algorithm>

#include "league/head_coach.h"
#include "offseason/career_steps.h"
#include "people/player.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/menu_gate.h"
#include "store/session.h"

namespace courtmere {

namespace {

bool IsRegion(const std::string& team) {
  return team == "West" || team == "Midwest" || team == "East" || team == "South";
}

// "High School(" and the state, the last two letters of the hometown.
std::string HighSchoolOf(const std::string& homeTown) {
  return "High School(" + (homeTown.size() >= 2 ? homeTown.substr(homeTown.size() - 2) : homeTown) +
         ")";
}

void ReadStatistics(Store& store, Prospect& p) {
  Rows rows = p.FromHighSchool == 1
                  ? store.Query("SELECT PPG, RPG, APG FROM Recruit WHERE Id = ?", p.Id)
                  : store.Query("SELECT PPG, RPG, APG FROM CareerPlayerStats WHERE Id = ?", p.Id);
  if (!rows.Next()) return;
  p.PPG = rows.Double(0);
  p.RPG = rows.Double(1);
  p.APG = rows.Double(2);
}

void WritePick(Store& store, int pick, const Prospect& p, const std::string& team) {
  store.Exec(
      "INSERT INTO NBADraft (Pick, Height, Name, School, Team, Position, PPG, RPG, APG) VALUES (?, "
      "?, ?, ?, ?, ?, ?, ?, ?)",
      pick, p.Height, p.Name, p.School, team, p.Position, p.PPG, p.RPG, p.APG);
}

void AddAlumnus(Session& session, int pick, const Prospect& p, const std::string& team) {
  Store& store = session.Db();
  store.Exec(
      "INSERT INTO Alumni (Id, YearLeft, Name, Team, Position, PPG, RPG, APG, NBADraft) VALUES (?, "
      "?, ?, ?, ?, ?, ?, ?, ?)",
      p.Id, session.config.CurrYear, p.Name, p.School, p.Position, p.PPG, p.RPG, p.APG,
      fmt::format("Taken with the No. {} pick overall by {}.", pick, team));
  if (p.School == HumanSchool(store)) {
    store.Exec("UPDATE HeadCoach SET FirstRound = coalesce(FirstRound, 0) + 1");
  }
}

}  // namespace

double ProspectScore(bool fromHighSchool, double overall, int potential, int reach) {
  double score =
      fromHighSchool ? overall * 0.2 + potential * 0.8 : overall * 0.65 + potential * 0.35;
  if (reach < 72) {
    score -= 5;
  } else if (reach < 75) {
    score -= 2;
  }
  return score;
}

std::vector<Prospect> RankProspects(Session& session) {
  Store& store = session.Db();
  std::vector<Prospect> list;
  for (Rows rows = store.Query(
           "SELECT Height, Name, Id, Team, HomeTown, Overall, Potential, Reach, PlayerPosition "
           "FROM Player WHERE NBAFlag = 1 ORDER BY Overall DESC, rowid LIMIT ?",
           kMostProspects);
       rows.Next();) {
    Prospect p;
    p.Height = rows.Text(0);
    p.Name = rows.Text(1);
    p.Id = rows.Int(2);
    const std::string team = rows.Text(3);
    p.FromHighSchool = IsRegion(team) ? 1 : 0;
    p.School = p.FromHighSchool == 1 ? HighSchoolOf(rows.Text(4)) : team;
    p.Score = ProspectScore(p.FromHighSchool == 1, rows.Double(5), rows.Int(6), rows.Int(7));
    p.Position = PositionName(rows.Int(8));
    list.push_back(std::move(p));
  }
  // A stable sort, highest score first, is the selection sort's order:
  // equal scores keep the earlier player in front.
  std::stable_sort(list.begin(), list.end(),
                   [](const Prospect& a, const Prospect& b) { return a.Score > b.Score; });
  const size_t withStatistics = std::min<size_t>(list.size(), 60);
  for (size_t i = 0; i < withStatistics; ++i) ReadStatistics(store, list[i]);
  return list;
}

std::vector<std::string> DraftOrder(Session& session) {
  Store& store = session.Db();
  std::vector<std::string> teams(kProTeams + 1);
  for (Rows rows = store.Query("SELECT id, Team FROM NBASetup WHERE id BETWEEN 1 AND ?", kProTeams);
       rows.Next();) {
    teams[rows.Int(0)] = rows.Text(1);
  }
  Rng& rng = session.rng;
  int k = Int(rng.Rnd() * 28 + 1);
  std::vector<std::string> order;
  for (int i = 1; i <= kProTeams; ++i) {
    order.push_back(teams[k]);
    k = k == kProTeams ? 1 : k + 1;
  }
  for (int b = 0; b + 1 < kProTeams; ++b) {
    if (Int(rng.Rnd() * 10 + 1) > 5) std::swap(order[b], order[b + 1]);
  }
  return order;
}

const std::string& PickTeam(const std::vector<std::string>& order, int pick) {
  return order[pick <= kProTeams ? pick - 1 : pick - kProTeams - 1];
}

void RunDraft(Session& session, CareerSteps& career) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  session.ui.ShowProgress("Ranking NBA Prospects");
  const std::vector<Prospect> prospects = RankProspects(session);
  session.ui.ShowProgress("Running NBA Draft");
  store.Exec("DELETE FROM NBADraft WHERE Pick > 0");
  const std::vector<std::string> order = DraftOrder(session);
  const Prospect none;
  for (int pick = 1; pick <= kDraftPicks; ++pick) {
    // Fewer prospects than picks leave the later rows without a name.
    const size_t i = static_cast<size_t>(pick - 1);
    const Prospect& p = i < prospects.size() ? prospects[i] : none;
    const std::string& team = PickTeam(order, pick);
    WritePick(store, pick, p, team);
    if (p.Id != 0 && p.FromHighSchool == 0 && pick <= kFirstRound)
      AddAlumnus(session, pick, p, team);
  }
  career.ReviewHeadCoach(session);
  store.Exec("UPDATE Config SET Stage = ? WHERE IdConfig = 0", kStageNbaDraft);
  session.config.Stage = kStageNbaDraft;
  tx.Commit();
  session.ui.HideProgress();
  MenuGate(session);
}

bool ProceedWithDraft(Session& session, CareerSteps& career) {
  if (!session.ui.Ask("Running the draft allows you to see which players have the potential to be "
                      "stars at the next level. Any player taken in the first round will appear "
                      "on that team's alumni page for each following season. Would you like to "
                      "proceed with the draft?")) {
    return false;
  }
  RunDraft(session, career);
  return true;
}

}  // namespace courtmere
