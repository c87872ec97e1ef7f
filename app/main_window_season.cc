// The main window's part in the season: the run of the season it holds for
// the dynasty, the Sim Games screen, the auto-sim and End Season. Kept apart
// from main_window.cc, whose screens' headers do not mix with the engine's.
#include "app/live_game_window.h"
#include "app/main_window.h"
#include "app/score_ticker.h"
#include "app/sim_games_screen.h"
#include "history/dynasty_history.h"
#include "recruiting/season_recruiting.h"
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
    if (liveWindow_ == nullptr) {
      liveWindow_ = new LiveGameWindow(session_, this);
      liveWindow_->openPlayerCard = [this](int id) { OpenPlayerCard(id); };
    }
    season_.reset(new SeasonRun(session_, liveWindow_));
    season_->observer = ticker_;
    recruiting_ = std::make_shared<SeasonRecruiting>();
    season_->recruiting = recruiting_.get();
    // The history steps hold no state of their own: one serves every run.
    static DynastyHistory history;
    season_->history = &history;
  }
  ticker_->SetUserSchool(session_.humanSchool);
  return *season_;
}

void MainWindow::EndSeasonRun() {
  CloseScreens();
  season_.reset();
  recruiting_.reset();
}

SeasonRecruiting& MainWindow::Recruiting() {
  Season();
  return *recruiting_;
}

std::string MainWindow::WindowTitle(const std::string& gateTitle) const {
  // Week 1 is the Dead period of every season: a caption left from the
  // last season's run does not stand for it.
  const Config& c = session_.config;
  if (!season_ || season_->caption.empty() || c.Stage != kStageSeason || c.CurrWeek <= 1) {
    return gateTitle;
  }
  return season_->caption;
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
