// News > Recruit Test Scores: the low-GPA recruits' academic test, best
// score first, with Pass at 50 or more. It also opens on its own when the
// test is given at the end of week 10.
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class TestScoresScreen : public Screen {
  Q_OBJECT

 public:
  TestScoresScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Recruit Test Scores"; }
  QString Key() const override { return "frmTestScores"; }
  void Refresh() override;

  GridView* Grid() const { return grid_; }

 private:
  GridView* grid_;
  QLabel* notice_;
};

}  // namespace courtmere::app
