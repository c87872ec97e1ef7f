#include "league/final_offseason_tasks.h"

#include <string>

#include "league/head_coach.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kTasks =
    "Before starting the season, there are some coaching actions you can take.\n\n"
    "1. You need to schedule your eight preseason and additional inseason non-conference "
    "opponents by using the Set NonConference Schedule option under the OffSeason menu "
    "option.\n\n"
    "2. You can make changes in your coaching staff by clicking on the hire/fire option under "
    "the Staff menu option.\n\n"
    "3. You may assign redshirt players, or even cut players from your team. You can do this by "
    "selecting the Manage Roster option from the Management menu. Bare in mind, though, that you "
    "must have atleast 11 active players on your roster before the season starts.\n\n"
    "4. You can decide to switch a player's position if you feel that player can be a better "
    "asset at a different spot. This can also be done in the manage roster screen.\n\n"
    "Once you have completed these four tasks you can Start the season and continue on with your "
    "dynasty.";

// A game of the schedule by its number, with the two sides.
struct Game {
  int64_t GameNo = 0;
  std::string HomeTeam, AwayTeam, HomeConf, AwayConf, GameType;
};

template <class... Args>
bool FirstGame(Store& store, std::string_view where, Game& game, const Args&... args) {
  Rows rows = store.Query(
      "SELECT GameNo, HomeTeam, AwayTeam, HomeConf, AwayConf, GameType FROM NonConfSchedule "
      "WHERE " +
          std::string(where) + " ORDER BY GameNo, rowid",
      args...);
  if (!rows.Next()) return false;
  game = {rows.Int64(0), rows.Text(1), rows.Text(2), rows.Text(3), rows.Text(4), rows.Text(5)};
  return true;
}

// Puts `school` of `conference` on the side of the game where `taken` stands.
void TakeSide(Store& store, const Game& game, const std::string& taken, const std::string& school,
              const std::string& conference) {
  if (game.HomeTeam == taken) {
    store.Exec("UPDATE NonConfSchedule SET HomeTeam = ?, HomeConf = ? WHERE GameNo = ?", school,
               conference, game.GameNo);
  } else {
    store.Exec("UPDATE NonConfSchedule SET AwayTeam = ?, AwayConf = ? WHERE GameNo = ?", school,
               conference, game.GameNo);
  }
}

void DeclineInvitation(Store& store, const Game& tournament, const std::string& school,
                       const std::string& conference) {
  Game open;
  if (!FirstGame(store,
                 "GameType = 'NonConference' AND HomeConf <> ? AND AwayConf <> ? AND Week = 1 "
                 "AND GameDay = 'Thursday'",
                 open, conference, conference)) {
    return;
  }
  const bool userAtHome = tournament.HomeTeam == school;
  const std::string sub = userAtHome ? open.HomeTeam : open.AwayTeam;
  const std::string subConf = userAtHome ? open.HomeConf : open.AwayConf;
  TakeSide(store, tournament, school, sub, subConf);
  TakeSide(store, open, sub, school, conference);
  Game saturday;
  if (FirstGame(store,
                "GameType = 'NonConference' AND (HomeTeam = ? OR AwayTeam = ?) AND Week = 1 AND "
                "GameDay = 'Saturday'",
                saturday, sub, sub)) {
    TakeSide(store, saturday, sub, school, conference);
  }
  store.Exec("UPDATE PreSeasonTourney SET SchoolName = ?, Conference = ? WHERE SchoolName = ?", sub,
             subConf, school);
}

}  // namespace

void AnswerTournamentInvitation(Session& session) {
  Store& store = session.Db();
  const std::string school = HumanSchool(store);
  Game tournament;
  if (!FirstGame(store, "GameType <> 'NonConference' AND (HomeTeam = ? OR AwayTeam = ?)",
                 tournament, school, school)) {
    return;
  }
  if (session.ui.Ask("You have been invited to attend the " + tournament.GameType +
                     " Tournament. Do you wish to accept?")) {
    return;
  }
  DeclineInvitation(store, tournament, school, HumanConference(store));
}

void FinalOffseasonTasks(Session& session) {
  AddInboxMessage(session, "Assistant", "Final Offseason Tasks", kTasks);
  AnswerTournamentInvitation(session);
  session.ui.HideProgress();
}

}  // namespace courtmere
