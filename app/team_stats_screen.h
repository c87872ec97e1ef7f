// frmTeamStats, "Team Stats": a school's figures against its opponents', and
// each player's season; the user's school first, any other by the list.
#pragma once

#include "app/screen.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class TeamStatsScreen : public Screen {
  Q_OBJECT

 public:
  TeamStatsScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Team Stats"; }
  void Refresh() override;
  GridView* Players() const { return players_; }
  GridView* Totals() const { return totals_; }

 private:
  QComboBox* schools_;
  GridView* totals_;
  GridView* players_;
};

}  // namespace courtmere::app
