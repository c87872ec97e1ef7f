// frmSimGames, "Today's Games": the games of the day shown, Previous Day and
// Next Day to walk the calendar, and Sim Day to play the dynasty's day. The
// list, the notices, the coach-this-game box and the buttons' states all
// come from the season's day screen; this screen only draws them. A click on
// a played game opens its box score.
#pragma once

#include "app/screen.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace courtmere {
struct SeasonRun;
}

namespace courtmere::app {

class GridView;

class SimGamesScreen : public Screen {
  Q_OBJECT

 public:
  SimGamesScreen(Session& session, ScreenHost& host, SeasonRun& run, QWidget* parent = nullptr);

  QString Caption() const override { return "Today's Games"; }
  // Draws the day screen as the season's run holds it.
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  QLabel* WeekCaption() const { return caption_; }
  QLabel* Notice() const { return notice_; }
  QCheckBox* CoachGame() const { return coachGame_; }
  QCheckBox* CoachFinish() const { return coachFinish_; }
  QPushButton* SimButton() const { return sim_; }
  QPushButton* NextButton() const { return next_; }
  QPushButton* PrevButton() const { return prev_; }

  // The buttons' actions.
  void SimDay();
  void NextDay();
  void PreviousDay();

 private:
  void OpenBoxScore(int row);

  SeasonRun& run_;
  QLabel* caption_;
  GridView* grid_;
  QLabel* notice_;
  QCheckBox* coachGame_;
  QCheckBox* coachFinish_;
  QPushButton* prev_;
  QPushButton* sim_;
  QPushButton* next_;
};

}  // namespace courtmere::app
