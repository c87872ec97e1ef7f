#include "app/screenshot_tour.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <memory>

#include "app/conference_choice_screen.h"
#include "app/main_window.h"
#include "app/team_choice_screen.h"
#include "platform/scripted_ui.h"
#include "store/session.h"
#include "store/store_files.h"

namespace courtmere::app {
namespace {

constexpr uint64_t kTourSeed = 2001;
// The coach's name shows that the screens keep an apostrophe and an accent.
constexpr const char* kCoach = "Seán O'Neil";

// The screens of the season, by their menu entries, in the tour's order.
constexpr const char* kSeasonScreens[][2] = {
    {"mnuManagementInfo", "team_info"},
    {"mnuManagementRoster", "roster"},
    {"mnuManageRoster", "manage_roster"},
    {"mnuManagementTeamStats", "team_stats"},
    {"mnuConferenceStandings", "conference_standings"},
    {"mnuNationalStandings", "national_standings"},
    {"mnuConferenceSchedule", "schedule"},
    {"mnuNationalLeaders", "leaders"},
    {"mnuNationalInjuries", "injuries"},
    {"mnuSeasonViewGameLogs", "game_logs"},
};

class Tour {
 public:
  Tour(const std::filesystem::path& folder, const QString& programFolder)
      : folder_(QString::fromStdString(folder.string())),
        session_(std::make_unique<Session>(ProgramFolder(programFolder.toStdString()),
                                           Rng(kTourSeed), ui_)) {
    QDir().mkpath(folder_);
    StartUp(*session_);
    window_ = std::make_unique<MainWindow>(*session_);
    window_->resize(1280, 900);
    window_->show();
    window_->RunGate();
  }
  ~Tour() {
    session_->quitting = true;
    window_.reset();
  }

  int Run() {
    Snap("intro");
    NewDynasty();
    Snap("new_dynasty");
    Open("mnuNonConfPre", "nonconf_pre");
    Open("mnuNonConfOther", "nonconf_other");
    window_->RunCommand("mnuOffSeasonStart");
    Settle();
    Snap("season_start");
    for (const auto& [entry, name] : kSeasonScreens) Open(entry, name);
    return shots_;
  }

 private:
  template <class T>
  T* Find() {
    for (Screen* screen : window_->Screens()) {
      if (auto* found = qobject_cast<T*>(screen)) return found;
    }
    return nullptr;
  }

  static void Settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  void Snap(const char* name) {
    Settle();
    const QString file = QString("%1/%2_%3.png").arg(folder_).arg(++shots_, 2, 10, QChar('0'));
    window_->grab().save(file.arg(name));
  }

  // The first three conferences, then the second conference's third school.
  void NewDynasty() {
    window_->RunCommand("mnuFileNew");
    Settle();
    auto* leagues = Find<ConferenceChoiceScreen>();
    if (!leagues) return;
    for (int row = 0; row < 3; ++row) {
      leagues->ConferenceList()->setCurrentRow(row);
      leagues->AddConference();
    }
    leagues->SchoolList()->setCurrentRow(1);
    Snap("conference_choice");
    leagues->Continue();
    Settle();
    auto* teams = Find<TeamChoiceScreen>();
    if (!teams) return;
    teams->ConferenceList()->setCurrentRow(1);
    teams->SchoolList()->setCurrentRow(2);
    teams->CoachName()->setText(QString::fromUtf8(kCoach));
    Snap("team_choice");
    teams->Start();
  }

  // One screen at a time, over the main window with its inbox.
  void Open(const char* entry, const char* name) {
    QAction* action = window_->Entry(entry);
    if (!action || !action->isEnabled()) return;
    window_->CloseScreens();
    Settle();
    window_->RunCommand(entry);
    Snap(name);
  }

  QString folder_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<MainWindow> window_;
  int shots_ = 0;
};

}  // namespace

int RunScreenshotTour(const std::filesystem::path& folder) {
  QTemporaryDir program;
  if (!program.isValid()) return 0;
  Tour tour(folder, program.path());
  return tour.Run();
}

}  // namespace courtmere::app
