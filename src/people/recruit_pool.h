// The recruiting pool: the schools a prospect wants to play for, and the
// magazines' ranks that the recruiting screens and the computer's recruiters
// read.
//
// A prospect is a Player row (PlayerYear "Recruit", "JCRecruit" or "JC", his
// region in Team) plus a Recruit row with the same Id. His interest list
// (Team1 to Team3) is drawn once, when his Recruit row is made; his ranks are
// drawn anew at each ranking from noisy views of his Overall and Potential.
#pragma once

#include <string>
#include <vector>

#include "people/player_creation.h"

namespace courtmere {

class Rng;
class Store;
struct Session;

// What a recruit weighs of a school.
struct InterestSchool {
  std::string SchoolName;
  std::string State;
  std::string Area;
  std::string Region;
  double Prestige = 0;
};

// Every Team row by Prestige, the most prestigious first.
std::vector<InterestSchool> LoadInterestSchools(Store& store);

// Fills Team1 to Team3 of a new recruit from `schools` (by Prestige
// descending) in four passes: schools near home for a homesick recruit, the
// powers for one who wants to win, his region, and last the lower middle of
// the table until the list is full.
void SetRecruitInterest(Rng& rng, const std::vector<InterestSchool>& schools, Recruit& recruit,
                        const Player& player);

// The hook a batch of recruits calls for each new Recruit row; it reads the
// schools once, at its first call.
RecruitInterestHook RecruitInterestFromStore();

// A player's rank value as the magazines see him: round(0.5 B + 0.5 A, 2),
// with A his Overall and B his Potential each seen through the noise.
double DrawRankPoints(Rng& rng, double overall, int potential);

// Draws the rank value (RankPoints) of every eligible recruit of the position
// and gives the best fifteen PosRank 1 to 15. Eligible: InEligible 0, or the
// current year for a junior-college man whose year has come.
void RankRecruitsByPosition(Session& session, int position);

// Top50Rank 1 to 50 for the eligible recruits with the highest RankPoints.
void RankTop50Recruits(Session& session);

// The ranking of a new pool: the five positions, then the top 50.
void RankRecruitPool(Session& session);

}  // namespace courtmere
