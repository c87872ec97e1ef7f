#include "screens/nonconf_screen.h"

#include <algorithm>

#include "schedule/schedule_rows.h"
#include "screens/nonconf_pre_candidates.h"
#include "screens/nonconf_schools.h"
#include "store/session.h"

namespace courtmere {
namespace {

// The user's games of a view, in its order, with their present opponents.
std::vector<NonConfRow> ReadGames(Store& store, const std::string& team, NonConfView view) {
  const std::string sql =
      "SELECT GameNo, Week, GameDay, GameType, HomeTeam, HomeConf, AwayTeam, AwayConf "
      "FROM NonConfSchedule WHERE (HomeTeam = ? OR AwayTeam = ?) AND " +
      std::string(view == NonConfView::kPreConference ? "Week < 5 ORDER BY Week ASC, GameDay DESC"
                                                      : "Week > 5 ORDER BY GameNo ASC");
  std::vector<NonConfRow> games;
  for (Rows rows = store.Query(sql, team, team); rows.Next();) {
    NonConfRow row;
    row.Position = static_cast<int>(games.size()) + 1;
    row.GameNo = rows.Int(0);
    row.Week = rows.Int(1);
    row.GameDay = rows.Text(2);
    row.GameType = rows.Text(3);
    row.UserAtHome = rows.Text(4) == team;
    row.Opponent = rows.Text(row.UserAtHome ? 6 : 4);
    row.OpponentConf = rows.Text(row.UserAtHome ? 7 : 5);
    if (view == NonConfView::kOther) row.Heading = " Week " + std::to_string(row.Week);
    games.push_back(std::move(row));
  }
  return games;
}

NonConfChoice PresentOpponent(Store& store, const NonConfRow& row, std::string_view column) {
  return LookUpSchool(store, row.Opponent, column)
      .value_or(NonConfChoice{row.Opponent, row.OpponentConf, ""});
}

PreConferenceContext ContextOf(Store& store, const std::string& team,
                               const std::vector<NonConfRow>& rows) {
  PreConferenceContext context{team, ReadUserPrestige(store, team), {}};
  for (const NonConfRow& row : rows) context.presentOpponents.push_back(row.Opponent);
  return context;
}

// The schools with a non-conference game on the row's day, other than the
// user, his present opponent and his conference mates.
std::vector<NonConfChoice> SameDaySchools(Store& store, const NonConfScreen& screen,
                                          const NonConfRow& row, std::string_view column) {
  std::vector<NonConfChoice> schools;
  for (Rows rows = store.Query(
           "SELECT HomeTeam, AwayTeam FROM NonConfSchedule WHERE Week = ? AND GameDay = ? AND "
           "GameType = ? ORDER BY GameNo ASC",
           row.Week, row.GameDay, kNonConferenceGame);
       rows.Next();) {
    for (const std::string& school : {rows.Text(0), rows.Text(1)}) {
      if (school == screen.Team || school == row.Opponent) continue;
      const std::optional<NonConfChoice> choice = LookUpSchool(store, school, column);
      // Design decision: a conference mate is not offered, as in the
      // pre-conference view, so conference mates never meet out of
      // conference.
      if (!choice || choice->Conference == screen.Conference) continue;
      schools.push_back(*choice);
    }
  }
  return schools;
}

NonConfScreen NewScreen(Store& store, NonConfView view, std::string title,
                        const std::string& team) {
  NonConfScreen screen;
  screen.View = view;
  screen.Title = std::move(title);
  screen.Team = team;
  screen.Conference = ReadUserPrestige(store, team).conference;
  screen.Rows = ReadGames(store, team, view);
  return screen;
}

}  // namespace

NonConfScreen ShowPreConferenceGames(Session& session, const std::string& team) {
  Store& store = session.Db();
  NonConfScreen screen = NewScreen(store, NonConfView::kPreConference,
                                   "Setup Pre-Conference Schedule for " + team, team);
  const PreConferenceContext context = ContextOf(store, team, screen.Rows);
  for (NonConfRow& row : screen.Rows) {
    if (row.GameType != kNonConferenceGame) continue;
    row.Choices.push_back(PresentOpponent(store, row, context.user.column));
    for (NonConfChoice& c :
         PreConferenceCandidates(store, session.rng, context, row.Position, row.Choices)) {
      row.Choices.push_back(std::move(c));
    }
  }
  return screen;
}

NonConfScreen ShowOtherGames(Session& session, const std::string& team) {
  Store& store = session.Db();
  NonConfScreen screen =
      NewScreen(store, NonConfView::kOther, "Setup Other NonConference Games for " + team, team);
  const std::string_view column = ReadUserPrestige(store, team).column;
  for (NonConfRow& row : screen.Rows) {
    if (row.GameType != kNonConferenceGame) continue;
    row.Choices.push_back(PresentOpponent(store, row, column));
    for (NonConfChoice& c : SameDaySchools(store, screen, row, column)) {
      row.Choices.push_back(std::move(c));
    }
  }
  return screen;
}

bool ChoiceOffered(Session& session, const NonConfScreen& screen, size_t row,
                   const std::string& school) {
  if (row >= screen.Rows.size()) return false;
  const NonConfRow& game = screen.Rows[row];
  if (!game.Offered()) return false;
  const auto& choices = game.Choices;
  if (std::any_of(choices.begin(), choices.end(),
                  [&](const NonConfChoice& c) { return c.School == school; })) {
    return true;
  }
  if (screen.View != NonConfView::kPreConference) return false;
  Store& store = session.Db();
  return FitsPreConferenceGame(store, ContextOf(store, screen.Team, screen.Rows), game.Position,
                               school);
}

}  // namespace courtmere
