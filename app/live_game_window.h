// frmPlayByPlay2, the live game window: the user coaches his team's game.
// Four tabs: the game (play-by-play, clock, scores, the five men of each
// side, tactics, end game, speed), the lineup (both teams' grids, the three
// strings, Update and Save Gameplan), the box score of the moment, and the
// substitution patterns.
//
// The engine runs in this window's thread, as every flow of the program
// does: it calls the window at its live points, and the window handles the
// window system's events only inside those calls (the delay of each line
// and the waits). A click thus never lands in the middle of an engine step;
// it sets a flag or a value of the game, which the engine reads at its next
// point. Closing the window is Exit: the rest of the game runs unattended.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "engine/live_screen.h"
#include "screens/live_coach.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSlider;
class QTabWidget;
class QTableWidget;

namespace courtmere {
struct Session;
}

namespace courtmere::app {

class LiveGameWindow : public QWidget, public LiveScreen {
  Q_OBJECT

 public:
  explicit LiveGameWindow(Session& session, QWidget* parent = nullptr);

  // LiveScreen
  void PrepareGame(Game& game) override;
  void ShowPlay(Game& game, PlayKind kind, std::string_view text,
                std::string_view listLine) override;
  void Halftime(Game& game) override;
  void WaitForResume(Game& game) override;
  void PlayerMustLeave(Game& game, bool fouledOut) override;
  void OpenSubstitutions(Game& game) override;
  void ShowSubs(Game& game) override;
  bool AutoSubstitution() const override;
  void ShowFinal(Game& game) override;
  void Finish(Game& game) override;

  // The controls, for the tests and the screenshot tour.
  QTabWidget* Tabs() const { return tabs_; }
  QPushButton* StartButton() const { return start_; }
  QPushButton* TimeoutButton() const { return timeout_; }
  QPushButton* SubButton() const { return sub_; }
  QPushButton* ExitButton() const { return exit_; }
  QPushButton* UpdateButton() const { return update_; }
  QComboBox* Defence() const { return defence_; }
  QComboBox* StarterBox(int slot) const { return strings_[0][slot - 1]; }
  QSlider* Speed() const { return speed_; }
  QListWidget* PlayByPlay() const { return pbp_; }
  QCheckBox* AutoSubBox() const { return autoSub_; }
  // Opens a player's card (the main window's).
  std::function<void(int playerId)> openPlayerCard;
  // The running game, null between games.
  Game* Running() const { return game_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* BuildGameTab();
  QWidget* BuildLineupTab();
  QWidget* BuildBoxTab();
  QWidget* BuildPatternsTab();
  void Wire();

  // Handles events until `done` holds.
  template <class Done>
  void PumpUntil(Done done);
  void Delay(double seconds);

  void Press(void (*action)(Game&));
  void Exit();
  void Tell(const std::string& message);
  void TabChanged(int tab);
  void Update();
  void SaveGameplan();
  void CoachClicked();
  void EndgameChosen();

  void ShowBoard();
  void ShowMen();
  void SetCombos();
  void FillLineupTab();
  void FillBoxTab();
  void FillPatternsTab();
  void AddLine(const QString& line);

  Session& session_;
  Game* game_ = nullptr;
  FloorBoxes boxes_;
  bool filling_ = false;  // a fill's change events change nothing

  QTabWidget* tabs_;
  QListWidget* pbp_;
  QLabel* clock_;
  QLabel* half_;
  QLabel* shotClock_;
  std::array<QLabel*, 2> names_{};
  std::array<QLabel*, 2> scores_{};
  std::array<QLabel*, 2> fouls_{};
  std::array<QLabel*, 2> timeoutsLeft_{};
  std::array<QLabel*, 2> ball_{};
  std::array<QTableWidget*, 2> men_{};
  QComboBox* tempo_;
  QComboBox* offence_;
  QComboBox* defence_;
  QComboBox* press_;
  QCheckBox* coach_;
  QComboBox* pace_;
  QComboBox* shot_;
  QSlider* speed_;
  QCheckBox* autoSub_;
  QPushButton* start_;
  QPushButton* timeout_;
  QPushButton* sub_;
  QPushButton* exit_;
  QPushButton* debug_;

  std::array<QTableWidget*, 2> lineup_{};
  std::array<std::array<QComboBox*, 5>, 3> strings_{};
  QComboBox* player_;
  QPushButton* update_;
  QPushButton* gameplan_;
  QPushButton* playerView_;

  std::array<QTableWidget*, 2> box_{};
  QTableWidget* patterns_;
};

}  // namespace courtmere::app
