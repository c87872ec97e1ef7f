// Players' marks: worked out for every team three times a season, and a man
// who fails twice running is suspended until the next check. A team loses
// at most two men to its marks, and one when two or more of its men are
// hurt; a man beyond that is lifted to a passing mark instead. Background
// players have no marks.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

struct Session;

// The new marks and suspensions of every team, without letters. Every old
// suspension ends here; a computer team that gets a new one has its depth
// chart cleared so that the lineup pass builds it anew.
void UpdateGrades(Session& session);

// UpdateGrades, and the "Academic Update" letter from "Compliance Dir" that
// tells the user which of his men return and which are suspended.
void AcademicCheck(Session& session);

// One line of the suspensions list.
struct SuspendedPlayer {
  int Id = 0;
  std::string Name;
  std::string Team;
  double GPA = 0;
  std::string PlayerYear;
  std::string Line;  // "<name> is suspended for four weeks because of academics."
};

// News > Player Suspensions: the suspended men of a conference, by team.
std::vector<SuspendedPlayer> ShowSuspensions(Session& session, const std::string& conference);

}  // namespace courtmere
