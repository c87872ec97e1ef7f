#include "app/main_window.h"

#include <QCloseEvent>
#include <QLinearGradient>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>

#include "app/about_dialog.h"
#include "app/awards_screen.h"
#include "app/box_score_screen.h"
#include "app/bracket_screen.h"
#include "app/conference_choice_screen.h"
#include "app/cri_screen.h"
#include "app/game_log_screen.h"
#include "app/help_screen.h"
#include "app/home_screen.h"
#include "app/inbox_dock.h"
#include "app/injuries_screen.h"
#include "app/intro_screen.h"
#include "app/leaders_screen.h"
#include "app/manage_roster_screen.h"
#include "app/menu_tree.h"
#include "app/nct_bubble_screen.h"
#include "app/nonconf_games_screen.h"
#include "app/options_dialog.h"
#include "app/player_card_screen.h"
#include "app/recruit_signings_screen.h"
#include "app/roster_screen.h"
#include "app/schedule_screen.h"
#include "app/score_ticker.h"
#include "app/scout_screen.h"
#include "app/staff_screen.h"
#include "app/standings_screen.h"
#include "app/suspensions_screen.h"
#include "app/team_info_screen.h"
#include "app/team_notes_screen.h"
#include "app/team_stats_screen.h"
#include "app/test_scores_screen.h"
#include "app/text_viewer.h"
#include "app/top25_screen.h"
#include "league/clear_dynasty.h"
#include "league/new_dynasty.h"
#include "league/start_season.h"
#include "people/grade_all_players.h"
#include "recruiting/season_recruiting.h"
#include "season/season_session.h"
#include "store/saved_games.h"
#include "store/season_stats.h"
#include "store/session.h"
#include "store/store_files.h"

namespace courtmere::app {
namespace {

// Beyond the quit question of the game: a dynasty changed since its last save
// is offered a save before it is gone.
constexpr std::string_view kSaveBeforeQuit =
    "Your dynasty has changed since it was last saved. Do you want to save it before you quit?";

// A basketball, for the windows' icon.
QIcon Basketball() {
  QPixmap ball(64, 64);
  ball.fill(Qt::transparent);
  QPainter paint(&ball);
  paint.setRenderHint(QPainter::Antialiasing);
  paint.setBrush(QColor(226, 110, 30));
  paint.setPen(QPen(QColor(40, 20, 10), 3));
  paint.drawEllipse(4, 4, 56, 56);
  paint.setBrush(Qt::NoBrush);
  paint.drawLine(32, 4, 32, 60);
  paint.drawLine(4, 32, 60, 32);
  paint.drawArc(-14, 12, 40, 40, -60 * 16, 120 * 16);
  paint.drawArc(38, 12, 40, 40, 120 * 16, 120 * 16);
  return QIcon(ball);
}

QBrush Chalkboard() {
  QLinearGradient gradient(0, 0, 0, 900);
  gradient.setColorAt(0, QColor(28, 72, 48));
  gradient.setColorAt(1, QColor(12, 38, 26));
  return QBrush(gradient);
}

}  // namespace

MainWindow::MainWindow(Session& session, QWidget* parent)
    : QMainWindow(parent),
      session_(session),
      area_(new QMdiArea(this)),
      inbox_(new InboxDock(session, this)),
      ticker_(new ScoreTicker(
          [this](const std::string& kind, const std::string& name) { OpenBracket(kind, name); },
          [this] { Show<TestScoresScreen>(); }, this)) {
  setObjectName("frmMDI");
  setWindowIcon(Basketball());
  area_->setBackground(Chalkboard());
  area_->viewport()->installEventFilter(this);
  setCentralWidget(area_);
  addDockWidget(Qt::BottomDockWidgetArea, inbox_);
  inbox_->hide();
  BuildMenus();
  RegisterCommands();
  resize(1180, 860);
  ApplyGate(StartUpMenus());
}

// From here on the screens go down with the window: the intro stays away.
MainWindow::~MainWindow() {
  tearingDown_ = true;
}

// ---------------------------------------------------------------------------
// Menus

void MainWindow::BuildMenus() {
  std::map<std::string, QMenu*, std::less<>> menus;
  for (const MenuEntry& e : MenuTree()) {
    if (e.parent) menus_.insert(e.parent);
  }
  for (const MenuEntry& e : MenuTree()) {
    const QString caption = QString::fromUtf8(e.caption);
    QAction* action = nullptr;
    if (menus_.count(e.name) != 0) {
      QMenu* menu = e.parent ? menus.at(e.parent)->addMenu(caption) : menuBar()->addMenu(caption);
      menu->setObjectName(e.name);
      menus[e.name] = menu;
      action = menu->menuAction();
    } else {
      action = menus.at(e.parent)->addAction(caption);
      if (*e.shortcut) action->setShortcut(QKeySequence(QString::fromUtf8(e.shortcut)));
      const std::string name = e.name;
      connect(action, &QAction::triggered, this, [this, name] { RunCommand(name); });
    }
    action->setObjectName(e.name);
    entries_[e.name] = action;
  }
  menus.at("mnuFile")->insertSeparator(entries_.at("mnuFileQuit"));
}

// Every screen and flow behind a menu entry. An entry without a line here
// stays closed whatever the gate says.
void MainWindow::RegisterCommands() {
  On("mnuFileNew", [this] { NewDynasty(); });
  On("mnuFileLoad", [this] { LoadGame(); });
  On("mnuFileSave", [this] { SaveGame(); });
  On("mnuFileSetup", [this] { ShowOptions(); });
  On("mnuFileQuit", [this] { close(); });
  On("mnuManagementInfo", [this] { Show<TeamInfoScreen>(); });
  On("mnuManagementRoster", [this] { Show<RosterScreen>(); });
  On("mnuManagementTeamStats", [this] { Show<TeamStatsScreen>(); });
  On("mnuManageRoster", [this] { Show<ManageRosterScreen>(); });
  On("mnuNonConfPre", [this] { Show<NonConfGamesScreen>(NonConfView::kPreConference); });
  On("mnuNonConfOther", [this] { Show<NonConfGamesScreen>(NonConfView::kOther); });
  On("mnuOffSeasonStart", [this] { RunFlow([this] { StartNewSeason(); }); });
  On("mnuNationalStandings", [this] { Show<StandingsScreen>(Scope::kNational); });
  On("mnuConferenceStandings", [this] { Show<StandingsScreen>(Scope::kConference); });
  On("mnuNationalResults", [this] { Show<ScheduleScreen>(Scope::kNational); });
  On("mnuConferenceSchedule", [this] { Show<ScheduleScreen>(Scope::kConference); });
  On("mnuNationalLeaders", [this] { Show<LeadersScreen>(Scope::kNational); });
  On("mnuConferenceLeaders", [this] { Show<LeadersScreen>(Scope::kConference); });
  On("mnuNationalInjuries", [this] { Show<InjuriesScreen>(Scope::kNational); });
  On("mnuConferenceInjuries", [this] { Show<InjuriesScreen>(Scope::kConference); });
  On("mnuNationalTop25", [this] { Show<Top25Screen>(); });
  On("mnuHeadlinePlayer", [this] { Show<AwardsScreen>(AwardsScreen::Kind::kPlayerOfWeek); });
  On("mnuHeadlinesAllAmerica", [this] { Show<AwardsScreen>(AwardsScreen::Kind::kNational); });
  On("mnuHeadlineConf", [this] { Show<AwardsScreen>(AwardsScreen::Kind::kConference); });
  On("mnuNewsTeamNotes", [this] { Show<TeamNotesScreen>(); });
  On("mnuNationalCRI", [this] { Show<CriScreen>(); });
  On("mnuPostseasonConf", [this] { Show<BracketScreen>(BracketScreen::Kind::kConference); });
  On("mnuPostseasonNCT", [this] { Show<BracketScreen>(BracketScreen::Kind::kNct); });
  On("mnuPostseasonACT", [this] { Show<BracketScreen>(BracketScreen::Kind::kAct); });
  On("mnuSeasonHawaii", [this] { OpenBracket("Preseason", "Hawaii Classic"); });
  On("mnuSeasonAlaska", [this] { OpenBracket("Preseason", "Alaska Challenge"); });
  On("mnuSeasonPreACT", [this] { OpenBracket("Preseason", "Preseason ACT"); });
  On("mnuSeasonViewGameLogs", [this] { Show<GameLogScreen>(); });
  On("mnuStaffViewCoaches", [this] { Show<StaffScreen>(); });
  On("mnuNewsSuspensions", [this] { Show<SuspensionsScreen>(); });
  On("mnuNewsTestScores", [this] { Show<TestScoresScreen>(); });
  On("mnuNewsRecruitSignings", [this] { Show<RecruitSigningsScreen>(); });
  On("mnuHeadlineBubble", [this] { Show<NctBubbleScreen>(); });
  On("mnuSeasonScout", [this] { Show<ScoutScreen>(); });
  On("mnuHelpContents", [this] { Show<HelpScreen>(); });
  On("mnuHelpAbout", [this] { ShowAbout(); });
  RegisterSeasonCommands();
  RegisterOffseasonCommands();
  RegisterRecruitCommands();
  RegisterCareerCommands();
  RegisterHistoryCommands();
}

void MainWindow::On(const char* entry, std::function<void()> command) {
  commands_[entry] = std::move(command);
}

QAction* MainWindow::Entry(std::string_view name) const {
  const auto it = entries_.find(name);
  return it == entries_.end() ? nullptr : it->second;
}

bool MainWindow::HasCommand(std::string_view name) const {
  return commands_.find(name) != commands_.end();
}

void MainWindow::RunCommand(std::string_view name) {
  const auto it = commands_.find(name);
  if (it == commands_.end()) return;
  try {
    it->second();
  } catch (const std::exception& e) {
    session_.ui.Message("The error occured in " + std::string(name) + ". " + e.what());
  }
}

// While the auto-sim runs, its stop is the one entry the user may take.
bool MainWindow::Usable(std::string_view name) const {
  if (!busy_) return true;
  return autoSimRunning_ &&
         (name == "mnuSeason" || name == "mnuSimAll" || name == "mnuStopAutoSim");
}

void MainWindow::UpdateEntries() {
  for (const auto& [name, action] : entries_) {
    const bool menu = menus_.count(name) != 0;
    action->setEnabled(Usable(name) && gate_.Open(name) && (menu || HasCommand(name)));
  }
  if (intro_) intro_->UpdateLabels();
}

// ---------------------------------------------------------------------------
// The gate

void MainWindow::RunGate() {
  const MenuGateState state = MenuGate(session_);
  ApplyGate(state);
  if (state.fatal) {
    session_.quitting = true;
    close();
  }
}

void MainWindow::ApplyGate(const MenuGateState& state) {
  gate_ = state;
  setWindowTitle(QString::fromStdString(WindowTitle(state.title)));
  UpdateEntries();
  UpdateIntro();
  inbox_->setVisible(state.dynasty);
  if (state.dynasty) inbox_->Refresh();
}

void MainWindow::UpdateIntro() {
  if (tearingDown_) return;
  bool setUp = false;
  bool others = false;
  for (Screen* screen : Screens()) {
    setUp = setUp || screen->SetsUpDynasty();
    others = others || screen != home_;
  }
  ShowIntro(!gate_.dynasty && !setUp);
  ShowHome(gate_.dynasty && !others && !session_.quitting && session_.StoreOpen());
}

// The home screen fills the area without a frame: it is the board the other
// screens open over, not a window to close.
void MainWindow::ShowHome(bool shown) {
  if (!shown) {
    // Out of the area at once; deleted later, as a link of its own may be
    // the sender of the event in hand.
    if (homeWindow_) {
      area_->removeSubWindow(homeWindow_);
      homeWindow_->hide();
      homeWindow_->setParent(this);
      homeWindow_->deleteLater();
    }
    homeWindow_ = nullptr;
    home_ = nullptr;
    return;
  }
  if (homeWindow_) return;
  home_ = new HomeScreen(
      session_, *this, [this](const char* name) { RunCommand(name); },
      [this](const char* name) {
        QAction* action = Entry(name);
        return action && action->isEnabled();
      },
      [this] {
        return recruiting_ ? recruiting_->Period(session_.config)
                           : PeriodAfterLoad(session_.config);
      });
  QMdiSubWindow* window = area_->addSubWindow(home_, Qt::FramelessWindowHint);
  window->setAttribute(Qt::WA_DeleteOnClose);
  connect(window, &QObject::destroyed, this, [this, window] {
    if (homeWindow_ != window) return;
    homeWindow_ = nullptr;
    home_ = nullptr;
  });
  homeWindow_ = window;
  window->show();
  FitHome();
}

void MainWindow::FitHome() {
  if (!homeWindow_) return;
  homeWindow_->setGeometry(area_->viewport()->rect());
}

void MainWindow::ShowIntro(bool shown) {
  if (!shown) {
    if (introWindow_) introWindow_->close();  // deleted on close
    introWindow_ = nullptr;
    intro_ = nullptr;
    return;
  }
  if (!introWindow_) {
    intro_ = new IntroScreen([this](const char* name) { RunCommand(name); },
                             [this](const char* name) { return HasCommand(name); });
    QMdiSubWindow* window = area_->addSubWindow(intro_, Qt::FramelessWindowHint);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setFixedSize(intro_->sizeHint());
    window->setAttribute(Qt::WA_TranslucentBackground);
    window->setStyleSheet("QMdiSubWindow { background: transparent; border: none; }");
    connect(window, &QObject::destroyed, this, [this, window] {
      if (introWindow_ != window) return;
      introWindow_ = nullptr;
      intro_ = nullptr;
    });
    introWindow_ = window;
  }
  introWindow_->show();
  CenterIntro();
}

void MainWindow::CenterIntro() {
  if (!introWindow_) return;
  const QRect space = area_->viewport()->rect();
  introWindow_->move(space.center() - introWindow_->rect().center());
}

IntroScreen* MainWindow::Intro() const {
  return intro_;
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == area_->viewport() && event->type() == QEvent::Resize) {
    CenterIntro();
    FitHome();
  }
  return QMainWindow::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------
// Screens

void MainWindow::Show(Screen* screen) {
  for (Screen* open : Screens()) {
    if (open->Key() != screen->Key()) continue;
    delete screen;
    open->Refresh();
    area_->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(open->parentWidget()));
    return;
  }
  ShowHome(false);
  const QSize wanted = screen->size();
  QMdiSubWindow* window = area_->addSubWindow(screen);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(screen->Caption());
  // Queued: the window is still being taken apart when it reports. The last
  // screen to close brings back the home screen, a set-up screen the intro.
  connect(
      window, &QObject::destroyed, this, [this] { UpdateIntro(); }, Qt::QueuedConnection);
  window->show();
  Place(window, wanted);
  UpdateIntro();
}

// A new window goes a step down and right of the last one, back to the top
// left when it would leave the area, and is no larger than the area.
void MainWindow::Place(QMdiSubWindow* window, QSize wanted) {
  const QSize space = area_->viewport()->size();
  const int frame = window->height() - window->widget()->height();
  const QSize size(std::min(wanted.width(), space.width()),
                   std::min(wanted.height() + frame, space.height()));
  window->resize(size);
  constexpr int kStep = 28;
  const int open = static_cast<int>(Screens().size()) - 1;
  QPoint at(kStep * open, kStep * open);
  if (at.x() + size.width() > space.width() || at.y() + size.height() > space.height()) {
    at = QPoint(0, 0);
  }
  window->move(at);
}

QList<Screen*> MainWindow::Screens() const {
  QList<Screen*> screens;
  for (QMdiSubWindow* window : area_->subWindowList()) {
    if (auto* screen = qobject_cast<Screen*>(window->widget())) screens << screen;
  }
  return screens;
}

// The windows leave the area at once, so no flow that follows sees them; they
// are deleted when the event in hand is over, as one of them may be the
// sender of that event.
void MainWindow::CloseScreens() {
  for (QMdiSubWindow* window : area_->subWindowList()) {
    area_->removeSubWindow(window);
    window->hide();
    window->setParent(this);
    window->deleteLater();
  }
  introWindow_ = nullptr;
  intro_ = nullptr;
  homeWindow_ = nullptr;
  home_ = nullptr;
  // With every screen gone the home screen (or the intro) comes back once
  // the flow in hand is over.
  QMetaObject::invokeMethod(
      this, [this] { UpdateIntro(); }, Qt::QueuedConnection);
}

void MainWindow::OpenTeam(const std::string& school) {
  if (!school.empty()) Show<TeamInfoScreen>(school);
}

void MainWindow::OpenPlayerCard(int playerId) {
  Show<PlayerCardScreen>(playerId);
}

void MainWindow::OpenBoxScore(const std::filesystem::path& file) {
  Show<BoxScoreScreen>(file);
}

void MainWindow::OpenTextFile(const std::filesystem::path& file) {
  Show<TextViewer>(file);
}

void MainWindow::OpenBracket(const std::string& kind, const std::string& name) {
  const auto shown =
      kind == "Preseason" ? BracketScreen::Kind::kPreseason : BracketScreen::Kind::kConference;
  Show<BracketScreen>(shown, name);
}

void MainWindow::OpenScreen(Screen* screen) {
  Show(screen);
}

void MainWindow::RunFlow(const std::function<void()>& flow) {
  busy_ = true;
  UpdateEntries();
  ticker_->Clear();
  try {
    flow();
  } catch (const std::exception& e) {
    session_.ui.Message(std::string("The error occured in a flow. ") + e.what());
  }
  ticker_->hide();
  session_.ui.HideProgress();
  busy_ = false;
  StoreChanged();
}

void MainWindow::StoreChanged() {
  RunGate();
  if (session_.quitting) return;
  for (Screen* screen : Screens()) {
    screen->Refresh();
    if (auto* window = qobject_cast<QMdiSubWindow*>(screen->parentWidget())) {
      window->setWindowTitle(screen->Caption());
    }
  }
}

// ---------------------------------------------------------------------------
// Commands

void MainWindow::LoadGame() {
  const auto path = ChooseGameToLoad(session_);
  if (!path) return;
  EndSeasonRun();
  if (LoadGameFile(session_, *path, GradeAllPlayers) == LoadOutcome::kLoaded) {
    ResumeSeason(session_);
  }
  StoreChanged();
}

bool MainWindow::SaveGame() {
  const auto path = ChooseSaveName(session_);
  if (!path) return false;
  CloseScreens();
  const bool saved = SaveGameFile(session_, *path);
  StoreChanged();
  return saved;
}

// Until the team choice has set up the league the gate sees no dynasty: a
// Cancel on either choice screen leaves the menus of File and Help only.
void MainWindow::NewDynasty() {
  bool begun = false;
  RunFlow([&] {
    EndSeasonRun();
    begun = BeginNewDynasty(session_);
  });
  if (begun) Show<ConferenceChoiceScreen>();
}

// The season's figures live in memory from the first game on: they start
// from the store's (empty) table once the season is open.
void MainWindow::StartNewSeason() {
  if (StartSeason(session_) == SeasonStart::kStarted) LoadSeasonStats(session_);
}

void MainWindow::ShowOptions() {
  OptionsDialog(session_, this).exec();
}

void MainWindow::ShowAbout() {
  AboutDialog(this).exec();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!session_.quitting) {
    if (!session_.ui.Ask("Are you sure you want to quit?")) {
      event->ignore();
      return;
    }
    if (UnsavedChanges(session_) && session_.ui.Ask(kSaveBeforeQuit) && !SaveGame()) {
      event->ignore();
      return;
    }
  }
  EndRun();
  event->accept();
}

// The store is left blank, closed and in plain form: the dynasty lives on
// only in its saves.
void MainWindow::EndRun() {
  session_.quitting = true;
  CloseScreens();
  if (!session_.StoreOpen()) return;
  ClearDynasty(session_.Db());
  CloseStore(session_, 0);
}

}  // namespace courtmere::app
