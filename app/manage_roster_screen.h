// frmManageRoster, "Manage Roster": release, redshirt, activate and switch
// the user's players. Release, redshirt and switch are open only while the
// year stands at "Post Training"; a redshirting player can be activated at
// any time.
#pragma once

#include <vector>

#include "app/screen.h"
#include "screens/roster_view.h"

class QPushButton;

namespace courtmere::app {

class GridView;

class ManageRosterScreen : public Screen {
  Q_OBJECT

 public:
  ManageRosterScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override;
  void Refresh() override;
  GridView* Grid() const { return grid_; }

  void Release();   // cmdCut
  void Redshirt();  // cmdRedshirt
  void Activate();  // cmdActivate
  void Switch();    // cmdSwitch: frmSwitch asks for the new position

 private:
  QPushButton* AddButton(const char* name, const QString& text,
                         void (ManageRosterScreen::*action)());
  const RosterRow* Selected() const;
  void UpdateButtons();

  std::string school_;
  std::vector<RosterRow> roster_;
  GridView* grid_;
  QPushButton* cut_;
  QPushButton* redshirt_;
  QPushButton* activate_;
  QPushButton* switch_;
};

}  // namespace courtmere::app
