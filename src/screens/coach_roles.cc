#include "screens/coach_roles.h"

#include <algorithm>

#include "store/session.h"

namespace courtmere {

CoachRoles LoadCoachRoles(Store& store, const std::string& school) {
  CoachRoles roles;
  roles.Caption = school + " Coaching Roles";
  for (Rows r = store.Query(
           "SELECT Id, Name, OffPoints, DefPoints FROM Coach WHERE Team = ? ORDER BY rowid",
           school);
       r.Next();) {
    roles.Lines.push_back({r.Int(0), r.Text(1), r.Int(2) == 1 ? 1 : 0, r.Int(3) == 1 ? 1 : 0});
  }
  return roles;
}

namespace {

void Choose(CoachRoles& roles, size_t line, int value, int RoleLine::*chosen,
            int RoleLine::*other) {
  if (line >= roles.Lines.size()) return;
  roles.Lines[line].*chosen = value == 1 ? 1 : 0;
  if (value != 1) return;
  roles.Lines[line].*other = 0;
  for (size_t i = 0; i < roles.Lines.size(); ++i) {
    if (i != line) roles.Lines[i].*chosen = 0;
  }
}

}  // namespace

void ChooseOffence(CoachRoles& roles, size_t line, int value) {
  Choose(roles, line, value, &RoleLine::Off, &RoleLine::Def);
}

void ChooseDefence(CoachRoles& roles, size_t line, int value) {
  Choose(roles, line, value, &RoleLine::Def, &RoleLine::Off);
}

bool AssignRole(CoachRoles& roles, int coachId, Role role) {
  const auto on = [coachId](const RoleLine& l) { return l.CoachId == coachId; };
  if (std::none_of(roles.Lines.begin(), roles.Lines.end(), on)) return false;
  for (RoleLine& l : roles.Lines) {
    const bool him = on(l);
    if (role == Role::kOffence) l.Off = him ? 1 : 0;
    if (role == Role::kDefence) l.Def = him ? 1 : 0;
    if (role == Role::kRecruiting && him) l.Off = l.Def = 0;
  }
  return true;
}

RolesCheck CheckRoles(const CoachRoles& roles) {
  int off = 0;
  int def = 0;
  for (const RoleLine& l : roles.Lines) {
    off += l.Off;
    def += l.Def;
  }
  if (off != 1 || def != 1) return RolesCheck::kNotOneEach;
  for (const RoleLine& l : roles.Lines) {
    if (l.Off + l.Def == 2) return RolesCheck::kBothToOne;
  }
  return RolesCheck::kValid;
}

bool SubmitCoachRoles(Session& session, const CoachRoles& roles) {
  switch (CheckRoles(roles)) {
    case RolesCheck::kNotOneEach:
      session.ui.Message(kRolesNotOneEach);
      return false;
    case RolesCheck::kBothToOne:
      session.ui.Message(kRolesBothToOne);
      return false;
    case RolesCheck::kValid:
      break;
  }
  Store& store = session.Db();
  Store::Transaction tx(store);
  // Design decision: a coach is written by his Id; two coaches of one staff
  // may share a name.
  for (const RoleLine& l : roles.Lines) {
    store.Exec("UPDATE Coach SET OffPoints = ?, DefPoints = ?, RecPoints = ? WHERE Id = ?", l.Off,
               l.Def, 2 - l.Off - l.Def, l.CoachId);
  }
  tx.Commit();
  return true;
}

}  // namespace courtmere
