// frmCoachRoles, "<school> Coaching Roles": a line per coach with his name
// and two lists, offence and defence, each "0" or "1". Submit saves the
// roles or says why it cannot.
#pragma once

#include <vector>

#include "app/screen.h"
#include "screens/coach_roles.h"

class QComboBox;
class QGridLayout;

namespace courtmere::app {

class CoachRolesScreen : public Screen {
  Q_OBJECT

 public:
  CoachRolesScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override;
  void Refresh() override;

  // cmbOffense(i) and cmbDefense(i), one per coach in the staff's order.
  QComboBox* Offence(size_t line) const { return offence_.at(line); }
  QComboBox* Defence(size_t line) const { return defence_.at(line); }
  size_t Lines() const { return roles_.Lines.size(); }
  // cmdSubmit: closes the screen once the roles are saved.
  void Submit();

 private:
  void Build();
  // Shows the working copy in the lists.
  void Show();
  QComboBox* RoleList(const char* name, size_t line, bool offence);

  CoachRoles roles_;
  QGridLayout* lines_;
  std::vector<QComboBox*> offence_;
  std::vector<QComboBox*> defence_;
  bool showing_ = false;
};

}  // namespace courtmere::app
