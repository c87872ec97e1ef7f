// frmScoutOpp, Scout Opponents: the next opponent's record, ranks and
// tactics, his leaders, and his roster graded by the user's head scout.
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class ScoutScreen : public Screen {
  Q_OBJECT

 public:
  ScoutScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Scouting Report"; }
  QString Key() const override { return "frmScoutOpp"; }
  void Refresh() override;

  QLabel* Title() const { return title_; }
  GridView* Facts() const { return facts_; }
  GridView* Tactics() const { return tactics_; }
  GridView* Leaders() const { return leaders_; }
  GridView* Roster() const { return roster_; }

 private:
  QLabel* title_;
  GridView* facts_;
  GridView* tactics_;
  GridView* leaders_;
  GridView* roster_;
};

}  // namespace courtmere::app
