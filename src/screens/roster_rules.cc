#include "screens/roster_rules.h"

#include <map>
#include <optional>

#include "cpu/computer_roster.h"
#include "people/player.h"
#include "store/session.h"

namespace courtmere {

namespace {

// A team needs 11 active players: a release or redshirt needs 12 first.
constexpr int kActiveNeeded = 12;

struct RosterEntry {
  std::string name;
  std::string team;
  int redshirt = 0;
};

std::optional<RosterEntry> Find(Store& store, int id) {
  Rows rows = store.Query("SELECT Name, Team, Redshirt FROM Player WHERE Id = ?", id);
  if (!rows.Next()) return std::nullopt;
  return RosterEntry{rows.Text(0), rows.Text(1), rows.Int(2)};
}

int ActivePlayers(Store& store, const std::string& school) {
  return static_cast<int>(
      store.ScalarInt("SELECT count(Id) FROM Player WHERE Team = ? AND Redshirt <> 1", school)
          .value_or(0));
}

constexpr const char* kCorrect = " Please correct this and re-submit.";

}  // namespace

bool RosterChangesOpen(Session& session) {
  return session.Db().ScalarText("SELECT Stage FROM Config WHERE IdConfig = 0").value_or("") ==
         kStagePostTraining;
}

bool ReleasePlayer(Session& session, int playerId) {
  if (!RosterChangesOpen(session)) return false;
  Store& store = session.Db();
  const auto p = Find(store, playerId);
  if (!p) return false;
  if (!session.ui.Ask("Are you sure you wish to release " + p->name +
                      "? This decision cannot be reversed.")) {
    return false;
  }
  if (ActivePlayers(store, p->team) < kActiveNeeded) {
    session.ui.Message("You would drop below an 11-man active roster if you released this player.");
    return false;
  }
  store.Exec("DELETE FROM Player WHERE Id = ?", playerId);
  store.Exec("UPDATE Team SET Inactive = 0 WHERE SchoolName = ? AND Inactive = ?", p->team,
             playerId);
  session.ui.Message(p->name + " has been removed from your team.");
  return true;
}

bool RedshirtPlayer(Session& session, int playerId) {
  if (!RosterChangesOpen(session)) return false;
  Store& store = session.Db();
  const auto p = Find(store, playerId);
  if (!p) return false;
  if (!session.ui.Ask("Are you sure you wish to redshirt " + p->name + "?")) return false;
  if (ActivePlayers(store, p->team) < kActiveNeeded) {
    session.ui.Message(
        "You would drop below an 11-man active roster if you redshirted this player. So, the "
        "player cannot be redshirted this season.");
    return false;
  }
  if (p->redshirt == 1) {
    session.ui.Message(p->name + " is already currently redshirting the season");
    return false;
  }
  if (p->redshirt == 2) {
    session.ui.Message(p->name +
                       " has been redshirted in the past. A player can only have one redshirt "
                       "year in his college career.");
    return false;
  }
  store.Exec("UPDATE Player SET Redshirt = 1 WHERE Id = ?", playerId);
  session.ui.Message(p->name +
                     " has been redshirted and may not participate in any games this season.  If "
                     "you do need this player during the season, you will need to remove his "
                     "redshirt status.");
  return true;
}

bool ActivatePlayer(Session& session, int playerId) {
  Store& store = session.Db();
  const auto p = Find(store, playerId);
  // Only a man redshirting this season can be activated. Design decision:
  // anyone else (never redshirted, or his redshirt year already used) is
  // refused without a question or a message, as the roster screen offers
  // activation only to a redshirting man; activating a used redshirt would
  // give him back the year he may not have twice.
  if (!p || p->redshirt != 1) return false;
  if (!session.ui.Ask("Are you sure you wish to activate " + p->name +
                      " from his redshirt season? This decision cannot be reversed.")) {
    return false;
  }
  store.Exec("UPDATE Player SET Redshirt = 0 WHERE Id = ?", playerId);
  session.ui.Message(p->name + " has been activated and may now participate in games this season.");
  return true;
}

bool SwitchPosition(Session& session, int playerId, int position) {
  if (!RosterChangesOpen(session)) return false;
  Store& store = session.Db();
  const auto p = Find(store, playerId);
  if (!p) return false;
  store.Exec("UPDATE Player SET PlayerPosition = ? WHERE Id = ?", position, playerId);
  session.ui.Message(p->name + " has been switched to " + PositionName(position) + ".");
  return true;
}

std::string DepthChartProblem(const DepthChart& chart) {
  const auto& ids = chart.ids;
  for (int id : ids) {
    if (id == 0) return "Please complete the Depth Chart before exiting.";
  }
  if (chart.inactive == 0) return "Please complete the Depth Chart before exiting.";
  for (int i = 0; i < 5; ++i) {
    for (int j = i + 1; j < 5; ++j) {
      if (ids[i] == ids[j]) {
        return std::string("Your Depth Chart has the same player starting at two positions.") +
               kCorrect;
      }
    }
  }
  for (int position = 0; position < 5; ++position) {
    const int a = ids[position], b = ids[position + 5], c = ids[position + 10];
    if (a == b || a == c || b == c) {
      return std::string(
                 "Your Depth Chart has the same player listed twice for the same "
                 "position.") +
             kCorrect;
    }
  }
  std::map<int, int> spots;
  for (int id : ids) {
    if (++spots[id] > 2) {
      return std::string(
                 "Your Depth Chart has the same player on the depth chart in more than "
                 "two spots.") +
             kCorrect;
    }
  }
  if (spots.count(chart.inactive) != 0) {
    return std::string("Your Depth Chart has the inactive player listed in the depth chart.") +
           kCorrect;
  }
  return "";
}

bool SubmitDepthChart(Session& session, const std::string& school, const DepthChart& chart) {
  const std::string problem = DepthChartProblem(chart);
  if (!problem.empty()) {
    session.ui.Message(problem);
    return false;
  }
  Store& store = session.Db();
  const auto& i = chart.ids;
  store.Exec(
      "UPDATE Team SET PG1 = ?, SG1 = ?, SF1 = ?, PF1 = ?, C1 = ?, PG2 = ?, SG2 = ?, SF2 = ?, "
      "PF2 = ?, C2 = ?, PG3 = ?, SG3 = ?, SF3 = ?, PF3 = ?, C3 = ?, Inactive = ? "
      "WHERE SchoolName = ?",
      i[0], i[1], i[2], i[3], i[4], i[5], i[6], i[7], i[8], i[9], i[10], i[11], i[12], i[13], i[14],
      chart.inactive, school);
  store.Exec("UPDATE Player SET Inactive = 0 WHERE Team = ?", school);
  store.Exec("UPDATE Player SET Inactive = 1 WHERE Id = ?", chart.inactive);
  session.ui.Message("Your Depth Chart is now Updated.");
  return true;
}

void SaveTactics(Session& session, const std::string& school, const TeamTactics& t) {
  session.Db().Exec(
      "UPDATE Team SET Tempo = ?, OffenseType = ?, Defense = ?, Press = ? WHERE SchoolName = ?",
      t.Tempo, t.OffenseType, t.Defense, t.Press, school);
  session.ui.Message("Your Adjustments have been saved.");
}

bool AutoSetLineup(Session& session, const std::string& school) {
  if (!session.ui.Ask("Are you sure you want the computer to set your lineup?")) return false;
  SetTeamLineup(session, school, 0);
  return true;
}

}  // namespace courtmere
