// The history lists that are one table each: the coach's history
// (frmCoachHistory) with his career above it, the "Top 10 Coaches" of the
// year, and the NCT's and the ACT's year by year history (frmNCTHistory).
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class HistoryListScreen : public Screen {
  Q_OBJECT

 public:
  enum class List { kCoach, kTopCoaches, kNct, kAct };

  HistoryListScreen(Session& session, ScreenHost& host, List list, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  QLabel* Title() const { return title_; }
  GridView* Grid() const { return grid_; }

 private:
  void ShowCoach();
  void ShowTopCoaches();
  void ShowTourney(const char* table);

  List list_;
  QLabel* title_;
  GridView* grid_;
};

}  // namespace courtmere::app
