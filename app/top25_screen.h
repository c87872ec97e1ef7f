// frmTop25, "TOP 25 Media Poll": the poll's 25 schools with their records,
// points and last week's ranks, the user's school in blue, and the schools
// that received votes below them.
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class Top25Screen : public Screen {
  Q_OBJECT

 public:
  Top25Screen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Top 25"; }
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  QLabel* Votes() const { return votes_; }

 private:
  QLabel* title_;
  GridView* grid_;
  QLabel* votes_;
};

}  // namespace courtmere::app
