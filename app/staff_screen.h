// frmStaff, "<school> Coaching Staff": the user's assistant coaches, with
// Change Roles opening the roles screen. In hire mode (Staff > Hire/Fire
// Coaches) the coaches looking at his school stand below, with Fire and Hire,
// and the screen can't be left short of a coach or of an offence and a
// defence coach.
#pragma once

#include "app/screen.h"

class QPushButton;

namespace courtmere::app {

class GridView;

class StaffScreen : public Screen {
  Q_OBJECT

 public:
  StaffScreen(Session& session, ScreenHost& host, bool hire = false, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  GridView* Candidates() const { return candidates_; }
  QPushButton* RolesButton() const { return roles_; }
  // cmdRoles.
  void ChangeRoles();
  // cmdFire and cmdHire, on the chosen line of the upper or the lower list.
  void Fire();
  void Hire();
  // cmdExit: in hire mode, stays with its message while the staff is short.
  void Exit();

 private:
  bool hire_;
  GridView* grid_;
  GridView* candidates_ = nullptr;
  QPushButton* roles_;
};

}  // namespace courtmere::app
