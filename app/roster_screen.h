// frmRoster, "Team Roster": the user's players as his scouts see them, his
// depth chart with the inactive man, and his tactics. The chart and the
// tactics are checked and stored by the roster rules.
#pragma once

#include <array>

#include "app/screen.h"
#include "screens/roster_view.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class RosterScreen : public Screen {
  Q_OBJECT

 public:
  RosterScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override;
  void Refresh() override;

  // What the lists show, as the rules read it.
  DepthChart ChosenChart() const;
  TeamTactics ChosenTactics() const;
  // The chart's list at a place (0 to 14, PG1 .. C3).
  QComboBox* ChartBox(int place) const { return chart_[place]; }
  GridView* Grid() const { return grid_; }

  void SubmitChart();    // cmdSubmit
  void SaveTactics();    // cmdAdjust
  void AutoSetLineup();  // cmdAuto

 private:
  QWidget* BuildChart();
  QWidget* BuildTactics();
  QWidget* BuildButtons();
  void FillPlayerLists(const std::vector<RosterRow>& roster);
  void ShowChart(const DepthChart& chart);
  void ShowTactics(const TeamTactics& tactics);

  std::string school_;
  GridView* grid_;
  std::array<QComboBox*, 15> chart_{};
  QComboBox* inactive_ = nullptr;
  std::array<QComboBox*, 4> tactics_{};  // tempo, offense, defense, press
};

}  // namespace courtmere::app
