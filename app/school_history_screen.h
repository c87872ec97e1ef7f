// A school's history: its seasons year by year with a chart of its wins and
// final poll rank by year, its all-time totals, NCT appearances and titles,
// and its alumni. Opens on the user's school; any school can be chosen.
#pragma once

#include "app/screen.h"
#include "screens/school_history.h"

class QChartView;
class QComboBox;
class QLabel;

namespace courtmere::app {

class GridView;

class SchoolHistoryScreen : public Screen {
  Q_OBJECT

 public:
  SchoolHistoryScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "School History"; }
  void Refresh() override;

  QComboBox* School() const { return school_; }
  GridView* Seasons() const { return seasons_; }
  GridView* Alumni() const { return alumni_; }
  QLabel* Totals() const { return totals_; }
  // The points the chart draws, of both lines.
  int ChartPoints() const;

 private:
  void ShowSchool();
  void ShowChart();

  SchoolHistory history_;
  QComboBox* school_;
  GridView* seasons_;
  QLabel* totals_;
  GridView* alumni_;
  QChartView* chart_;
};

}  // namespace courtmere::app
