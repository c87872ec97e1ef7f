// The main window's part in the season: the run of the season it holds for
// the dynasty, the Sim Games screen, the auto-sim and End Season. Kept apart
// from main_window.cc, whose screens' headers do not mix with the engine's.
#include "app/main_window.h"
#include "app/score_ticker.h"
#include "app/sim_games_screen.h"
#include "season/auto_sim.h"
#include "season/end_season.h"
#include "season/season_run.h"
#include "store/session.h"

namespace courtmere::app {

void MainWindow::SeasonRunDeleter::operator()(SeasonRun* run) const {
  delete run;
}

SeasonRun& MainWindow::Season() {
  if (!season_) {
    season_.reset(new SeasonRun(session_));
    season_->observer = ticker_;
  }
  ticker_->SetUserSchool(session_.humanSchool);
  return *season_;
}

void MainWindow::EndSeasonRun() {
  CloseScreens();
  season_.reset();
}

void MainWindow::RegisterSeasonCommands() {
  On("mnuSeasonSimGames", [this] { Show<SimGamesScreen>(Season()); });
  On("mnuStartAutoSim", [this] { RunAutoSim(); });
  On("mnuStopAutoSim", [this] { StopAutoSim(Season()); });
  On("mnuProgressEnd", [this] { RunFlow([this] { EndSeason(Season()); }); });
}

void MainWindow::RunAutoSim() {
  autoSimRunning_ = true;
  ticker_->SetAutoSim(true);
  RunFlow([this] { StartAutoSim(Season()); });
  ticker_->SetAutoSim(false);
  autoSimRunning_ = false;
  UpdateEntries();
}

}  // namespace courtmere::app
