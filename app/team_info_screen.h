// frmTeamInfo, "Team Info": a school's profile, record and staff; the user's
// school first, any other by the list.
#pragma once

#include "app/screen.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class TeamInfoScreen : public Screen {
  Q_OBJECT

 public:
  TeamInfoScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Team Info"; }
  void Refresh() override;
  QComboBox* Schools() const { return schools_; }
  GridView* Grid() const { return grid_; }

 private:
  QComboBox* schools_;
  GridView* grid_;
};

}  // namespace courtmere::app
