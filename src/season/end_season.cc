#include "season/end_season.h"

#include "league/season_marks.h"
#include "league/team_ratings.h"
#include "season/recruiting_week.h"
#include "season/season_history.h"
#include "season/season_run.h"
#include "store/saved_games.h"
#include "store/season_stats.h"
#include "store/session.h"

namespace courtmere {

namespace {

void SaveHistory(SeasonRun& run) {
  Session& session = run.session;
  SeasonHistory& history = *run.history;
  session.ui.ShowProgress("Saving Individual Player Stats");
  SaveSeasonStats(session);
  if (history.Active()) {
    session.ui.ShowProgress("Saving Career Player Stats");
    history.SaveCareerStats(session);
  }
  session.ui.ShowProgress("Saving Team Stats");
  TeamRatings(session);
  if (history.Active()) history.SaveTeamHistory(session);
  ClearSeasonMarks(session.Db());
  if (history.Active()) {
    session.ui.ShowProgress("Updating Records");
    history.UpdateRecords(session);
  }
}

void SignRecruits(SeasonRun& run) {
  Session& session = run.session;
  if (run.recruiting->SigningActive()) {
    session.ui.ShowProgress("Recruits Choosing Schools");
    run.recruiting->SignRecruits(session);
  }
  session.Db().Exec(
      "UPDATE Player SET PlayerYear = 'JCRecruit' WHERE PlayerYear = 'JC' AND Id IN (SELECT Id "
      "FROM Recruit WHERE InEligible = ?)",
      session.config.CurrYear);
}

}  // namespace

SeasonEnd EndSeason(SeasonRun& run) {
  Session& session = run.session;
  // The menu offers End Season only once the season is over; a caller
  // without the menu hears why nothing happens.
  if (session.config.Stage != kStageSeasonOver) {
    session.ui.Message(
        "The season can only be ended in the stage Season Over; the dynasty "
        "stands in " +
        session.config.Stage + ".");
    return SeasonEnd::kRefused;
  }
  if (!session.ui.Ask("Do you wish to end this season?")) return SeasonEnd::kDeclined;
  run.autoSim = false;
  {
    Store::Transaction tx(session.Db());
    SaveHistory(run);
    SignRecruits(run);
    session.config.Stage = kStageEndSeason;
    session.Db().Exec("UPDATE Config SET Stage = 'End Season' WHERE IdConfig = 0");
    tx.Commit();
  }
  session.ui.HideProgress();
  Autosave(session);
  return SeasonEnd::kEnded;
}

}  // namespace courtmere
