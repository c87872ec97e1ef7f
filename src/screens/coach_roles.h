// frmCoachRoles, the coaching roles of the user's staff: each coach runs the
// offence, runs the defence or recruits, with one holder of each game role.
//
// A coach has two points: the offence or the defence coach keeps one for
// recruiting (RecPoints 1), a coach with no game role recruits with both
// (RecPoints 2). The screen works on a copy of the roles; nothing reaches the
// store until a submit passes every check.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;
struct Session;

inline constexpr const char* kRolesNotOneEach =
    "You can only have one offensive specialist and one defensive specialist. Please re-submit "
    "your coaching roles.";
inline constexpr const char* kRolesBothToOne =
    "The same coach cannot be both the offensive specialist and defensive specialist. Please "
    "re-submit your coaching roles.";

struct RoleLine {
  int CoachId = 0;
  std::string Name;
  int Off = 0;  // 0 or 1
  int Def = 0;  // 0 or 1
};

struct CoachRoles {
  std::string Caption;  // "<school> Coaching Roles"
  std::vector<RoleLine> Lines;
};

// The school's coaches in the order the store keeps them, with their roles.
CoachRoles LoadCoachRoles(Store& store, const std::string& school);

// A choice in a coach's offence list. Choosing "1" takes the offence from the
// other coaches and the defence from this one.
//
// Design decision: choosing "0" clears only the list chosen in; clearing the
// coach's other role as well would undo a choice the user did not touch.
void ChooseOffence(CoachRoles& roles, size_t line, int value);
// The same for the defence lists.
void ChooseDefence(CoachRoles& roles, size_t line, int value);

// Names a coach, by his Id, the one holder of a game role (offence or
// defence), or (`recruiting`) takes both game roles from him. Unlike a choice
// on the screen it leaves his other role as it stands, so that naming one man
// for both is refused at the submit. False for a coach not on the staff.
enum class Role { kOffence, kDefence, kRecruiting };
bool AssignRole(CoachRoles& roles, int coachId, Role role);

enum class RolesCheck { kValid, kNotOneEach, kBothToOne };

// The checks of a submit, in their order.
RolesCheck CheckRoles(const CoachRoles& roles);

// Submit: shows the refusal's message and changes nothing, or writes every
// coach's OffPoints, DefPoints and RecPoints (2 less his game roles).
//
// Design decision: every coach is checked before any is written, so a refused
// submit leaves the staff as it was.
bool SubmitCoachRoles(Session& session, const CoachRoles& roles);

}  // namespace courtmere
