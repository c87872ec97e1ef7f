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
  // `school`: the school shown first; the user's when empty.
  TeamInfoScreen(Session& session, ScreenHost& host, const std::string& school = "",
                 QWidget* parent = nullptr);

  QString Caption() const override { return "Team Info"; }
  // One page a school asked for by name; the menu's page is the user's.
  QString Key() const override { return "frmTeamInfo:" + key_; }
  void Refresh() override;
  QComboBox* Schools() const { return schools_; }
  GridView* Grid() const { return grid_; }

 private:
  QString key_;
  QComboBox* schools_;
  GridView* grid_;
};

}  // namespace courtmere::app
