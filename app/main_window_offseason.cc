// The main window's part in the offseason: Run Draft and Begin Offseason
// under Progress, the training screen, Train Players and the development
// report, the draft's lists under News.
#include "app/main_window.h"
#include "app/offseason_lists_screen.h"
#include "app/training_screen.h"
#include "offseason/begin_offseason.h"
#include "offseason/career_steps.h"
#include "offseason/nba_draft.h"
#include "offseason/train_players.h"
#include "store/season_stats.h"
#include "store/session.h"

namespace courtmere::app {

void MainWindow::RegisterOffseasonCommands() {
  using Kind = OffseasonListScreen::Kind;
  On("mnuProgressRunDraft", [this] {
    bool drafted = false;
    RunFlow([this, &drafted] { drafted = ProceedWithDraft(session_, CoachCareer()); });
    if (drafted) Show<OffseasonListScreen>(Kind::kDraft);
  });
  On("mnuProgressBeginOffseason", [this] {
    bool begun = false;
    RunFlow([this, &begun] {
      begun = BeginOffseason(session_) == OffseasonBegin::kBegun;
      if (begun) LoadSeasonStats(session_);
    });
    // The season's run, with its recruiting period and caption, is over;
    // the next season starts a fresh one.
    if (begun) EndSeasonRun();
  });
  On("mnuOffSeasonTrain", [this] { Show<TrainingScreen>(); });
  On("mnuOffSeasonTrainPlayers", [this] {
    bool trained = false;
    CloseScreens();
    RunFlow([this, &trained] { trained = TrainPlayers(session_, CoachCareer()); });
    if (trained) Show<OffseasonListScreen>(Kind::kDevelopment);
  });
  On("mnuManagementDev", [this] { Show<OffseasonListScreen>(Kind::kDevelopment); });
  On("mnuNewsPlayersLeaving", [this] { Show<OffseasonListScreen>(Kind::kLeavers); });
  On("mnuNewsNBADraft", [this] { Show<OffseasonListScreen>(Kind::kDraft); });
}

}  // namespace courtmere::app
