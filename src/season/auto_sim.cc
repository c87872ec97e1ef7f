#include "season/auto_sim.h"

#include "season/day_step.h"
#include "season/season_run.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kAutoSimEndWeek = 15;

const char* StartQuestion(int week) {
  if (week == 1) {
    return "If you choose this option, the CPU will handle your team's recruiting and lineups "
           "from this point on until stopped or Week 15. Are you sure you want to start the auto "
           "sim?";
  }
  return "If you choose this option, the CPU will handle your team's lineups and recruiting from "
         "this point on until stopped or you reach Week 15. Also, make sure you have chosen your "
         "recruits because the CPU will not recruit after week 1 unless you have recruits "
         "listed. So, are you sure you want to start the auto sim?";
}

}  // namespace

int StartAutoSim(SeasonRun& run) {
  Session& session = run.session;
  if (!session.ui.Ask(StartQuestion(session.config.CurrWeek))) return 0;
  run.autoSim = true;
  int days = 0;
  while (session.config.CurrWeek < kAutoSimEndWeek && run.autoSim) {
    // Design decision: a day that could not be played ends the auto-sim,
    // which would otherwise press it again and again.
    if (AutoSimDay(run) != DayOutcome::kPlayed) break;
    ++days;
    SettleWeekFive(session);
    session.ui.Pump();
  }
  run.autoSim = false;
  return days;
}

void StopAutoSim(SeasonRun& run) {
  Session& session = run.session;
  if (!session.ui.Ask("Do you wish to stop the auto sim of the season?")) return;
  run.autoSim = false;
  session.ui.Message("The AutoSim will stop after the current day is completed.");
}

}  // namespace courtmere
