// The recruiting classes ranked at the start of a season, once the freshmen
// stand on their rosters: each freshman is valued as the magazines value a
// recruit, the class's points are the sum over the freshmen plus one (a
// class of one counts half of his value), and the ten best classes get
// ClassRank 1 to 10.
#pragma once

namespace courtmere {

struct Session;

void RankRecruitClasses(Session& session);

}  // namespace courtmere
