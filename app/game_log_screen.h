// frmGameLog, "Game Logs": a school's season game by game. A click on a
// played game opens its play-by-play log; Box Score opens the game's box.
#pragma once

#include "app/screen.h"

class QComboBox;
class QPushButton;

namespace courtmere::app {

class GridView;

class GameLogScreen : public Screen {
  Q_OBJECT

 public:
  GameLogScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Game Logs"; }
  void Refresh() override;

  // Shows a school of a conference (as the two lists would).
  void ShowSchool(const std::string& conference, const std::string& school);
  GridView* Grid() const { return grid_; }

 private:
  void FillSchools();
  void BuildGrid();
  void OpenLog(int row);
  void OpenBoxScore();

  QComboBox* conferences_;
  QComboBox* schools_;
  GridView* grid_;
  QPushButton* boxScore_;
};

}  // namespace courtmere::app
