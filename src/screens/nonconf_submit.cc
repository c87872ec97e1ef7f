#include "screens/nonconf_submit.h"

#include <map>
#include <optional>
#include <set>

#include "screens/nonconf_schools.h"
#include "store/session.h"

namespace courtmere {
namespace {

// "A", "A, and B", "A, B, and C".
std::string JoinNames(const std::vector<std::string>& names) {
  std::string text;
  for (size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += ", ";
    if (i > 0 && i + 1 == names.size()) text += "and ";
    text += names[i];
  }
  return text;
}

struct Side {
  std::string school;
  std::string conference;
};

bool IsBackground(Store& store, const std::string& school) {
  return store.ScalarInt("SELECT 1 FROM ScrubTeam WHERE SchoolName = ?", school).has_value();
}

void WriteSide(Store& store, int gameNo, bool home, const Side& side) {
  store.Exec(home ? "UPDATE NonConfSchedule SET HomeTeam = ?, HomeConf = ? WHERE GameNo = ?"
                  : "UPDATE NonConfSchedule SET AwayTeam = ?, AwayConf = ? WHERE GameNo = ?",
             side.school, side.conference, gameNo);
}

struct UserGame {
  int gameNo;
  int week;
  std::string day;
  bool userAtHome;
  Side opponent;
};

// The chosen school's own game of that day hands its place to the displaced
// opponent, or goes when the two left in it must not meet.
void HandOver(Store& store, const UserGame& game, const std::string& chosen) {
  Rows rows = store.Query(
      "SELECT GameNo, HomeTeam, HomeConf, AwayTeam, AwayConf FROM NonConfSchedule WHERE Week = ? "
      "AND GameDay = ? AND (HomeTeam = ? OR AwayTeam = ?) AND GameNo <> ? ORDER BY GameNo",
      game.week, game.day, chosen, chosen, game.gameNo);
  if (!rows.Next()) return;
  const int gameNo = rows.Int(0);
  const bool chosenAtHome = rows.Text(1) == chosen;
  const Side other{rows.Text(chosenAtHome ? 3 : 1), rows.Text(chosenAtHome ? 4 : 2)};
  const Side& displaced = game.opponent;
  // Design decision: two background teams never meet, so that row goes too.
  if (other.conference == displaced.conference ||
      (IsBackground(store, other.school) && IsBackground(store, displaced.school))) {
    store.Exec("DELETE FROM NonConfSchedule WHERE GameNo = ?", gameNo);
  } else {
    WriteSide(store, gameNo, chosenAtHome, displaced);
  }
}

std::vector<UserGame> UserGames(Store& store, const std::string& team) {
  std::vector<UserGame> games;
  for (Rows rows =
           store.Query("SELECT GameNo, Week, GameDay, HomeTeam, HomeConf, AwayTeam, AwayConf FROM "
                       "NonConfSchedule WHERE HomeTeam = ? OR AwayTeam = ? ORDER BY GameNo ASC",
                       team, team);
       rows.Next();) {
    const bool home = rows.Text(3) == team;
    games.push_back({rows.Int(0),
                     rows.Int(1),
                     rows.Text(2),
                     home,
                     {rows.Text(home ? 5 : 3), rows.Text(home ? 6 : 4)}});
  }
  return games;
}

// The school chosen for each game offered, by game number.
std::map<int, std::string> ChosenByGame(const NonConfScreen& screen,
                                        const std::vector<std::string>& choices) {
  std::map<int, std::string> chosen;
  for (size_t i = 0; i < screen.Rows.size(); ++i) {
    if (screen.Rows[i].Offered())
      chosen[screen.Rows[i].GameNo] = i < choices.size() ? choices[i] : "";
  }
  return chosen;
}

// The refusal the choices meet, if any.
std::optional<std::string_view> Refusal(const std::map<int, std::string>& chosen) {
  std::set<std::string> seen;
  for (const auto& [gameNo, school] : chosen) {
    if (!school.empty() && !seen.insert(school).second) return kSameTeamTwice;
  }
  for (const auto& [gameNo, school] : chosen) {
    if (school.empty()) return kSelectEveryGame;
  }
  return std::nullopt;
}

}  // namespace

bool SubmitGames(Session& session, const NonConfScreen& screen,
                 const std::vector<std::string>& choices) {
  const std::map<int, std::string> chosen = ChosenByGame(screen, choices);
  std::vector<std::string> names;
  for (const NonConfRow& row : screen.Rows) {
    const auto it = chosen.find(row.GameNo);
    if (it != chosen.end() && !it->second.empty()) names.push_back(it->second);
  }
  if (!session.ui.Ask("Do you wish to schedule " + JoinNames(names) +
                      " for your nonconference opponent?")) {
    return false;
  }
  if (const auto refusal = Refusal(chosen)) {
    session.ui.Message(*refusal);
    return false;
  }
  Store& store = session.Db();
  const std::string_view column = ReadUserPrestige(store, screen.Team).column;
  Store::Transaction tx(store);
  for (const UserGame& game : UserGames(store, screen.Team)) {
    const auto it = chosen.find(game.gameNo);
    if (it == chosen.end() || it->second == game.opponent.school) continue;
    const std::optional<NonConfChoice> school = LookUpSchool(store, it->second, column);
    WriteSide(store, game.gameNo, !game.userAtHome,
              {it->second, school ? school->Conference : std::string()});
    HandOver(store, game, it->second);
  }
  tx.Commit();
  session.ui.Message(kChangesSaved);
  return true;
}

}  // namespace courtmere
