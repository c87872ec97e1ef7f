#include "app/screenshot_tour.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

#include "app/coach_roles_screen.h"
#include "app/conference_choice_screen.h"
#include "app/grid_model.h"
#include "app/inbox_dock.h"
#include "app/live_game_window.h"
#include "app/main_window.h"
#include "app/play_steps.h"
#include "app/recruit_board_screen.h"
#include "app/recruit_list_screen.h"
#include "app/recruit_rank_screen.h"
#include "app/sim_games_screen.h"
#include "app/staff_screen.h"
#include "app/suspensions_screen.h"
#include "app/team_choice_screen.h"
#include "platform/scripted_ui.h"
#include "store/session.h"
#include "store/store_files.h"

namespace courtmere::app {
namespace {

constexpr uint64_t kTourSeed = 2001;
// Weeks 1 to 3 of the season.
constexpr int kDaysPlayed = 8;
// Then on to the week after the first rounds of the NCT.
constexpr int kLastWeekPlayed = 18;
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
    {"mnuNationalTop25", "top25"},
    {"mnuHeadlinePlayer", "player_of_week"},
    {"mnuNewsTeamNotes", "team_notes"},
    {"mnuSeasonHawaii", "preseason_bracket"},
    {"mnuSeasonScout", "scout_opponents"},
};

// Halfway through the season: the race for the NCT's places.
constexpr int kBubbleWeek = 10;

// The history of the season, once it has ended.
constexpr const char* kHistoryScreens[][2] = {
    {"mnuNationalRecords", "national_records"},  {"mnuManageRecord", "team_records"},
    {"mnuHistorySchool", "school_history"},      {"mnuHistoryCoach", "coach_history"},
    {"mnuHeadlinesCoaches", "top_coaches"},      {"mnuHistoryNCT", "nct_history"},
    {"mnuOutputTeamStats", "team_stats_report"},
};

// The screens of the season's end, once the national tournaments have begun.
constexpr const char* kPostseasonScreens[][2] = {
    {"mnuNationalCRI", "cri"},
    {"mnuPostseasonConf", "conference_bracket"},
    {"mnuPostseasonNCT", "nct_bracket"},
    {"mnuPostseasonACT", "act_bracket"},
    {"mnuConferenceStandings", "final_standings"},
    {"mnuHeadlinesAllAmerica", "all_america"},
    {"mnuHeadlineConf", "conference_awards"},
    {"mnuHeadlineBubble", "nct_bubble_selected"},
    {"mnuNewsTestScores", "test_scores"},
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
    window_->resize(1280, 800);
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
    ReadFirstLetter();
    Snap("new_dynasty");
    window_->CloseScreens();
    Settle();
    Snap("home");
    Open("mnuNonConfPre", "nonconf_pre");
    Open("mnuNonConfOther", "nonconf_other");
    Open("mnuStaffHireCoaches", "staff_hire");
    Open("mnuStaffHireScout", "scout_hire");
    Open("mnuStaffHireTrainer", "trainer_hire");
    Open("mnuManagementPerformance", "coach_review");
    window_->CloseScreens();
    window_->RunCommand("mnuOffSeasonStart");
    Snap("season_start");
    ChooseRecruits();
    PlayDays();
    ShowRecruiting();
    for (const auto& [entry, name] : kSeasonScreens) Open(entry, name);
    ShowSuspensions();
    window_->CloseScreens();
    Settle();
    Snap("home_week4");
    PlayOn();
    for (const auto& [entry, name] : kPostseasonScreens) Open(entry, name);
    EndTheSeason();
    Open("mnuNewsRecruitSignings", "recruit_signings");
    for (const auto& [entry, name] : kHistoryScreens) Open(entry, name);
    ShowPlayerCareer();
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

  void Snap(const char* name, QWidget* widget = nullptr) {
    Settle();
    const QString file = QString("%1/%2_%3.png").arg(folder_).arg(++shots_, 2, 10, QChar('0'));
    (widget != nullptr ? widget : window_.get())->grab().save(file.arg(name));
  }

  // The user's first game of the tour coached live, with the computer's
  // substitutions so that it plays as the unattended game would: paused
  // ten minutes in, each of the four tabs, then Exit to the computer.
  void CoachOneGame(SimGamesScreen& games) {
    LiveGameWindow* live = window_->LiveWindow();
    if (live == nullptr) return;
    games.CoachGame()->setChecked(true);
    QTimer driver;
    bool shown = false;
    QObject::connect(&driver, &QTimer::timeout, [&] {
      Game* game = live->Running();
      if (game == nullptr || shown) return;
      live->Speed()->setValue(0);
      live->AutoSubBox()->setChecked(true);
      if (game->Half == 1 && game->Clock < 600 && game->Resume != 0) {
        shown = true;
        live->StartButton()->click();
        static constexpr const char* kTabs[] = {"live_game", "live_game_lineup",
                                                "live_game_box_score", "live_game_patterns"};
        for (int tab = 0; tab < 4; ++tab) {
          live->Tabs()->setCurrentIndex(tab);
          Snap(kTabs[tab], live);
        }
        live->ExitButton()->click();
        return;
      }
      if (game->Resume == 0) live->StartButton()->click();
    });
    driver.start(1);
    SimDayAsUser(*window_, ui_, games);
    games.CoachGame()->setChecked(false);
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

  void ReadFirstLetter() {
    GridView* letters = window_->Inbox()->Grid();
    if (letters->Model()->rowCount() > 0) emit letters->CellClicked(0, 1);
  }

  // The user sets the ticker's shortest pause, lets the computer set his
  // lineup and names his offence and defence coaches on the roles screen;
  // then Sim Day and Next Day through the first days of the season.
  void PlayDays() {
    ChooseQuickestTicker(*session_, *window_);
    LetComputerSetLineup(*window_, ui_);
    window_->CloseScreens();
    window_->RunCommand("mnuStaffViewCoaches");
    if (auto* staff = Find<StaffScreen>()) staff->RolesButton()->click();
    Settle();
    if (auto* roles = Find<CoachRolesScreen>()) {
      roles->Offence(0)->setCurrentIndex(1);
      roles->Defence(1)->setCurrentIndex(1);
      Snap("coach_roles");
      roles->Submit();
    }
    Snap("staff");
    window_->CloseScreens();
    window_->RunCommand("mnuSeasonSimGames");
    auto* games = Find<SimGamesScreen>();
    if (!games) return;
    bool coached = false;
    for (int day = 0; day < kDaysPlayed; ++day) {
      if (day > 0) games->NextDay();
      if (!coached && !games->CoachGame()->isHidden()) {
        coached = true;
        CoachOneGame(*games);
      } else {
        SimDayAsUser(*window_, ui_, *games);
      }
    }
    Snap("sim_games");
    emit games->Grid()->CellClicked(0, 0);
    Snap("box_score");
  }

  // Day after day to the second week of the national tournaments.
  void PlayOn() {
    window_->CloseScreens();
    window_->RunCommand("mnuSeasonSimGames");
    auto* games = Find<SimGamesScreen>();
    bool bubble = false;
    for (int step = 0; games && session_->config.CurrWeek < kLastWeekPlayed && step < 200; ++step) {
      if (games->SimButton()->isEnabled()) {
        SimDayAsUser(*window_, ui_, *games);
      } else {
        games->NextDay();
      }
      if (!bubble && session_->config.CurrWeek == kBubbleWeek) {
        bubble = true;
        Open("mnuHeadlineBubble", "nct_bubble");
        window_->CloseScreens();
        Settle();
        Snap("home_midseason");
        window_->RunCommand("mnuSeasonSimGames");
        games = Find<SimGamesScreen>();
      }
    }
    Snap("sim_games_postseason");
  }

  // On to the season's end, then End Season as the user runs it.
  void EndTheSeason() {
    window_->CloseScreens();
    window_->RunCommand("mnuSeasonSimGames");
    auto* games = Find<SimGamesScreen>();
    for (int step = 0; games && session_->config.Stage == kStageSeason && step < 100; ++step) {
      if (games->SimButton()->isEnabled()) {
        SimDayAsUser(*window_, ui_, *games);
      } else {
        games->NextDay();
      }
    }
    window_->CloseScreens();
    Settle();
    window_->RunCommand("mnuProgressEnd");
    Settle();
  }

  // The card of the user's best scorer, with his year's line and ratings.
  void ShowPlayerCareer() {
    window_->CloseScreens();
    Settle();
    const std::optional<int64_t> id = session_->Db().ScalarInt(
        "SELECT p.Id FROM Player AS p, PlayerStats AS s WHERE s.Id = p.Id AND p.Team = ? ORDER "
        "BY s.Points DESC LIMIT 1",
        session_->humanSchool);
    if (!id) return;
    window_->OpenPlayerCard(static_cast<int>(*id));
    for (Screen* screen : window_->Screens()) {
      if (auto* pages = screen->findChild<QTabWidget*>("tabPlayerCard")) pages->setCurrentIndex(1);
    }
    Snap("player_career");
  }

  // The suspensions of the first conference, the user's first, that has any.
  void ShowSuspensions() {
    window_->CloseScreens();
    Settle();
    window_->RunCommand("mnuNewsSuspensions");
    auto* list = Find<SuspensionsScreen>();
    if (!list) return;
    for (int i = 0; list->Grid()->Model()->rowCount() == 0 && i < list->Conferences()->count();
         ++i) {
      list->Conferences()->setCurrentIndex(i);
    }
    Snap("suspensions");
  }

  // Five recruits of the East taken from the regional list, one by one
  // after the list's question, with the first one's card shown.
  void ChooseRecruits() {
    window_->CloseScreens();
    Settle();
    window_->RunCommand("mnuRecruitViewRecruitsEast");
    auto* list = Find<RecruitListScreen>();
    if (!list) return;
    Snap("recruits_east");
    for (int row = 0; row < 5 && row < list->Grid()->Model()->rowCount(); ++row) {
      list->Grid()->selectRow(row);
      list->AddSelected();
    }
    emit list->Grid()->CellClicked(0, 1);
    Snap("recruits_east_card");
    window_->CloseScreens();
    Settle();
    window_->RunCommand("mnuRecruitMagazine50");
    Snap("recruits_top50");
    window_->CloseScreens();
  }

  // The team recruiting screen in the week the days reached: the best
  // ranked first, a call on him with the bid list's choice, and his card.
  void ShowRecruiting() {
    window_->CloseScreens();
    Settle();
    window_->RunCommand("mnuRecruitViewTeam");
    auto* board = Find<RecruitBoardScreen>();
    if (!board || board->Grid()->Model()->rowCount() == 0) return;
    board->findChild<QPushButton*>("cmdRank")->click();
    Settle();
    if (auto* rank = Find<RecruitRankScreen>()) {
      for (int n = 0; n < board->Grid()->Model()->rowCount(); ++n) {
        if (QComboBox* combo = rank->RankOf(board->Grid()->Model()->Key(n))) {
          combo->setCurrentIndex(n + 1);
        }
      }
      Snap("recruit_ranks");
      rank->Submit();
      rank->findChild<QPushButton*>("cmdClose")->click();
    }
    Settle();
    board->SelectRecruit(board->Grid()->Model()->Key(0));
    if (board->Actions()->count() > 0) {
      board->Actions()->setCurrentIndex(0);
      board->findChild<QPushButton*>("cmdBid")->click();
    }
    Settle();
    Snap("team_recruiting");
    window_->CloseScreens();
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
