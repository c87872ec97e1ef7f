// frmSchedule: a school's season game by game, with the date, the site, the
// opponent and the result; a click on a played game opens its box score.
// From the national menu any school of the dynasty, from the conference menu
// the schools of the user's conference; the user's school first.
#pragma once

#include <string>
#include <vector>

#include "app/scope.h"
#include "app/screen.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class ScheduleScreen : public Screen {
  Q_OBJECT

 public:
  ScheduleScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override { return ScopedKey("frmSchedule", scope_); }
  void Refresh() override;

  QComboBox* Schools() const { return schools_; }
  GridView* Grid() const { return grid_; }

 private:
  void OpenBoxScore(int row);

  Scope scope_;
  QComboBox* schools_;
  GridView* grid_;
  std::vector<std::string> boxScores_;  // by model row; empty before the game
};

}  // namespace courtmere::app
