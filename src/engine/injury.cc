#include "engine/injury.h"

#include <algorithm>

#include "engine/play_log.h"
#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

int InjuryWeeks(int weeksOut, int r) {
  int weeks = weeksOut;
  if (r <= 25) {
    weeks += 2;
  } else if (r <= 50) {
    weeks += 1;
  } else if (r <= 70) {
    weeks -= 1;
  } else {
    weeks -= 2;
  }
  return std::max(weeks, 1);
}

bool InjurePlayer(Game& game, Side side, int slot, bool background) {
  GameSide& team = game.SideOf(side);
  GamePlayer& man = team.Court[slot];
  const int injuryId = game.rng->Roll(60);
  auto rows = game.session->Db().Query(
      "SELECT InjuryName, WeeksOut FROM InjuryList WHERE InjuryID = ?", injuryId);
  if (!rows.Next()) return false;
  const std::string injury = rows.Text(0);
  const int weeksOut = rows.Int(1);

  const int index = team.RosterIndexOf(man);
  if (index != 0) team.Texts[index].Health = injury;
  // A row of one week or less is a day-to-day knock: no weeks out, only the
  // injury's name in Health, which keeps him off the depth charts until the
  // week's healing.
  int weeks = 0;
  if (weeksOut > 1) weeks = InjuryWeeks(weeksOut, Int(team.Trainer * game.rng->Rnd() + 1));
  man.TimeInjured = weeks;
  for (int i = 1; i <= team.RosterCount; ++i) {
    if (team.Roster[i].Id == man.Id) team.Roster[i].TimeInjured = weeks;
  }
  game.session->Db().Exec(background
                              ? "UPDATE ScrubPlayer SET Health = ?, TimeInjured = ? WHERE Id = ?"
                              : "UPDATE Player SET Health = ?, TimeInjured = ? WHERE Id = ?",
                          injury, weeks, man.Id);
  return true;
}

void InjuryCheck(Game& game) {
  GameSide& team = game.Offense();
  const GamePlayer& man = team.Court[game.BallPos];
  const double x = (100.0 - man.AvoidInjury + 100.0 - team.Trainer) / 10.0;
  const int v = Int(game.rng->Rnd() * 10000 + x);
  if (v < 10001) return;

  Store& store = game.session->Db();
  // A school without a Team row is a background team.
  const bool background =
      store.ScalarInt("SELECT COUNT(*) FROM Team WHERE SchoolName = ?", team.School).value_or(0) ==
      0;
  if (!InjurePlayer(game, game.Possession, game.BallPos, background)) return;
  PostPlayWith(game, PlayKind::Foul, [&] {
    return team.TextsOf(team.Court[game.BallPos]).Name + " left the game with an injury!";
  });
  if (background) {
    store.Exec("UPDATE ScrubTeam SET PG1 = 0 WHERE SchoolName = ?", team.School);
  } else if (!team.UserTeam) {
    store.Exec("UPDATE Team SET PG1 = 0 WHERE SchoolName = ?", team.School);
  }
}

}  // namespace courtmere
