// frmStaff in view mode, "<school> Coaching Staff": the user's assistant
// coaches, with Change Roles opening the roles screen.
#pragma once

#include "app/screen.h"

class QPushButton;

namespace courtmere::app {

class GridView;

class StaffScreen : public Screen {
  Q_OBJECT

 public:
  StaffScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override;
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  QPushButton* RolesButton() const { return roles_; }
  // cmdRoles.
  void ChangeRoles();

 private:
  GridView* grid_;
  QPushButton* roles_;
};

}  // namespace courtmere::app
