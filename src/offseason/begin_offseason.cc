#include "offseason/begin_offseason.h"

#include <string>
#include <vector>

#include "store/menu_gate.h"
#include "store/session.h"

namespace courtmere {

namespace {

// Season lines are kept for the last four years.
constexpr int kYearsOfSeasonLines = 4;

void RemoveLeavers(Store& store) {
  std::vector<int> ids;
  for (Rows rows = store.Query("SELECT Id FROM Player WHERE NBAFlag = 1"); rows.Next();) {
    ids.push_back(rows.Int(0));
  }
  store.Exec("DELETE FROM Player WHERE NBAFlag = 1");
  for (int id : ids) {
    store.Exec("DELETE FROM CareerPlayerStats WHERE Id = ?", id);
    store.Exec("DELETE FROM PlayerStats WHERE Id = ?", id);
    store.Exec("DELETE FROM PlayerYearStats WHERE PlayerId = ?", id);
    store.Exec("DELETE FROM TrainPlayer WHERE PlayerId = ?", id);
  }
  // Design decision: a development report row goes with its player (a
  // leaver, or a man cut from a roster), so that the store doesn't grow
  // year after year with rows nobody can see.
  store.Exec("DELETE FROM Development WHERE PlayerId NOT IN (SELECT Id FROM Player)");
}

void ClearSeasonFigures(Store& store) {
  // The 27 counting and average columns after Id; AwardScore stays.
  store.Exec(
      "UPDATE PlayerStats SET Games = 0, Minutes = 0, Points = 0, Shots = 0, ShotsMade = 0, Threes "
      "= 0, ThreesMade = 0, FreeThrows = 0, FTMade = 0, OffRebounds = 0, DefRebounds = 0, Assists "
      "= 0, Steals = 0, ShotBlocks = 0, Turnovers = 0, Fouls = 0, PlusMinus = 0, PPG = 0, APG = 0, "
      "RPG = 0, SPG = 0, BPG = 0, TOPG = 0, MPG = 0, FGPercent = 0, ThreePercent = 0, FTPercent = "
      "0 WHERE Id > 0 AND Games > 0");
}

}  // namespace

void RemoveLeaversAndResetSeason(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  session.ui.ShowProgress("Removing Ineligible Players");
  RemoveLeavers(store);
  int year = session.config.CurrYear;
  if (year == 0)
    year = static_cast<int>(
        store.ScalarInt("SELECT CurrYear FROM Config WHERE IdConfig = 0").value_or(0));
  store.Exec("DELETE FROM PlayerYearStats WHERE Year = ?", year - kYearsOfSeasonLines);
  ClearSeasonFigures(store);
  store.Exec("UPDATE Player SET Suspended = 0 WHERE Suspended > 0");
  store.Exec("UPDATE Config SET Stage = ? WHERE IdConfig = 0", kStageBeginOffSeason);
  session.config.Stage = kStageBeginOffSeason;
  tx.Commit();
  session.ui.HideProgress();
}

OffseasonBegin BeginOffseason(Session& session) {
  const std::string team =
      session.Db().ScalarText("SELECT Team FROM HeadCoach LIMIT 1").value_or("");
  if (team.substr(0, 5) == "Fired") {
    session.ui.Message("Since you were just fired, you need to choose a team before continuing.");
    return OffseasonBegin::kRefused;
  }
  if (!session.ui.Ask("After beginning the offseason, you will be unable to export or print this "
                      "season's draft pool or choose a new coaching position. Do you wish to "
                      "proceed?")) {
    return OffseasonBegin::kDeclined;
  }
  if (team.empty()) {
    session.ui.Message("Please choose a job from the list of teams before proceeding");
    return OffseasonBegin::kRefused;
  }
  RemoveLeaversAndResetSeason(session);
  // The gate opens the offseason's menus, sets the title "Courtmere
  // (OffSeason Period)" and reloads the season's statistics, now cleared.
  MenuGate(session);
  return OffseasonBegin::kBegun;
}

}  // namespace courtmere
