#include "season/season_run.h"

#include "engine/run_engine.h"
#include "season/recruiting_week.h"
#include "season/season_history.h"

namespace courtmere {

RecruitingWeek& NoRecruiting() {
  static RecruitingWeek none;
  return none;
}

SeasonHistory& NoSeasonHistory() {
  static SeasonHistory none;
  return none;
}

SeasonRun::SeasonRun(Session& session, LiveScreen* liveScreen)
    : session(session),
      recruiting(&NoRecruiting()),
      history(&NoSeasonHistory()),
      runGame(RunEngine),
      game(session, liveScreen) {}

}  // namespace courtmere
