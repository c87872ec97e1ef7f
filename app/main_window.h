// frmMDI: the main window. It carries the menu tree, the title and the inbox,
// holds every open screen, and brings its menus in line with the store
// through the menu gate after every flow.
//
// Adding a screen behind a menu entry takes one line in RegisterCommands():
// an entry with a command is open whenever the gate opens it; an entry without
// one stays closed.
#pragma once

#include <QMainWindow>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "app/screen.h"
#include "store/menu_gate.h"

namespace courtmere {
struct SeasonRun;
class SeasonRecruiting;
}  // namespace courtmere

class QAction;
class QMdiArea;
class QMdiSubWindow;

namespace courtmere::app {

class HomeScreen;
class InboxDock;
class IntroScreen;
class LiveGameWindow;
class ScoreTicker;

class MainWindow : public QMainWindow, public ScreenHost {
  Q_OBJECT

 public:
  explicit MainWindow(Session& session, QWidget* parent = nullptr);
  ~MainWindow() override;

  // An entry's action, a menu's included; null for a name not in the tree.
  QAction* Entry(std::string_view name) const;
  bool HasCommand(std::string_view name) const;
  // Runs an entry's command as a click on it would (the intro's labels do).
  void RunCommand(std::string_view name);

  // The gate worked out from the store and applied: menus, title, intro and
  // inbox. Ends the program when the store has no Config row.
  void RunGate();
  // UnloadScreens: closes every screen, before a load or a save.
  void CloseScreens();
  QList<Screen*> Screens() const;
  // The intro screen while it is shown, else null.
  IntroScreen* Intro() const;
  // The home screen while it is shown, else null.
  HomeScreen* Home() const { return home_; }
  InboxDock* Inbox() const { return inbox_; }
  ScoreTicker* Ticker() const { return ticker_; }
  // frmPlayByPlay2, made with the season's run; null before.
  LiveGameWindow* LiveWindow() const { return liveWindow_; }
  // The season's run of this dynasty: the day screen, the auto-sim flag.
  SeasonRun& Season();
  // The recruiting the season's run plugs in, with the period it holds.
  SeasonRecruiting& Recruiting();

  // File > Load and File > Save; SaveGame answers whether a save was written.
  void LoadGame();
  bool SaveGame();

  // ScreenHost
  void OpenPlayerCard(int playerId) override;
  void OpenTeam(const std::string& school) override;
  void OpenBoxScore(const std::filesystem::path& file) override;
  void OpenTextFile(const std::filesystem::path& file) override;
  void OpenScreen(Screen* screen) override;
  // A tournament's bracket, as the day step asks for it: kind "Preseason"
  // with the tournament's name, or "Conference" with the conference's.
  void OpenBracket(const std::string& kind, const std::string& name);
  void RunFlow(const std::function<void()>& flow) override;
  void StoreChanged() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenus();
  void RegisterCommands();
  // The entries of the season: Sim Games, the auto-sim, End Season.
  void RegisterSeasonCommands();
  // The Recruit menu's entries.
  void RegisterRecruitCommands();
  // main_window_career.cc
  void RegisterCareerCommands();
  // Run Draft, Begin Offseason, the training screen, Train Players and the
  // offseason's lists.
  void RegisterOffseasonCommands();
  // The records, history and report entries.
  void RegisterHistoryCommands();
  // The window's title: the gate's, or the period's caption the running
  // season has set.
  std::string WindowTitle(const std::string& gateTitle) const;
  void On(const char* entry, std::function<void()> command);
  void ApplyGate(const MenuGateState& state);
  bool Usable(std::string_view name) const;
  void UpdateEntries();
  void ShowIntro(bool shown);
  // The intro stands while there is no dynasty and no set-up screen is open;
  // the home screen while there is one and no other screen is open.
  void UpdateIntro();
  void ShowHome(bool shown);
  void FitHome();
  // File > New: the store emptied, then the conference choice.
  void NewDynasty();
  // Off Season > Start Next Season.
  void StartNewSeason();
  void CenterIntro();
  // Shows a screen in a window of its own, or brings forward the open screen
  // with the same key (and drops the new one).
  void Show(Screen* screen);
  void Place(QMdiSubWindow* window, QSize wanted);
  template <class T, class... Args>
  void Show(Args&&... args) {
    Show(new T(session_, *this, std::forward<Args>(args)...));
  }
  // Season > Auto Sim > Start AutoSim: the days run on while the user may
  // still stop the auto-sim from its menu entry.
  void RunAutoSim();
  // A new dynasty or a load starts a new run.
  void EndSeasonRun();
  void ShowOptions();
  void ShowAbout();
  void EndRun();

  Session& session_;
  QMdiArea* area_;
  InboxDock* inbox_;
  ScoreTicker* ticker_;
  LiveGameWindow* liveWindow_ = nullptr;
  // Deleted where the season's run is a complete type (main_window_season.cc).
  struct SeasonRunDeleter {
    void operator()(SeasonRun* run) const;
  };
  std::unique_ptr<SeasonRun, SeasonRunDeleter> season_;
  std::shared_ptr<SeasonRecruiting> recruiting_;  // lives as long as season_
  QMdiSubWindow* introWindow_ = nullptr;
  IntroScreen* intro_ = nullptr;
  QMdiSubWindow* homeWindow_ = nullptr;
  HomeScreen* home_ = nullptr;
  std::map<std::string, QAction*, std::less<>> entries_;
  std::set<std::string, std::less<>> menus_;
  std::map<std::string, std::function<void()>, std::less<>> commands_;
  MenuGateState gate_;
  bool busy_ = false;
  bool autoSimRunning_ = false;
  bool tearingDown_ = false;
};

}  // namespace courtmere::app
