// The professional draft at the end of the year: every player marked to
// leave (seniors, early entries and recruits who skip college) is ranked,
// the 29 professional teams pick twice in a rotated and shuffled order, 58
// picks in all. A college player taken in the first
// round gets his school's alumni row and counts for its head coach. The
// draft changes no Player row: the leavers go at Begin Offseason.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Rng;
struct Session;
class CareerSteps;

inline constexpr int kMostProspects = 300;
inline constexpr int kDraftPicks = 58;
inline constexpr int kProTeams = 29;
// Picks up to this one make the first round.
inline constexpr int kFirstRound = 29;

struct Prospect {
  std::string Height;
  std::string Name;
  int Id = 0;
  std::string School;
  int FromHighSchool = 0;
  double Score = 0;
  double PPG = 0;
  double RPG = 0;
  double APG = 0;
  std::string Position;
};

// A prospect's score: mostly Potential for a recruit, mostly Overall for a
// college player, less for a short reach.
double ProspectScore(bool fromHighSchool, double overall, int potential, int reach);

// The prospects ranked by score, highest first; equal scores keep the
// earlier player in front.
std::vector<Prospect> RankProspects(Session& session);

// The order of the 29 teams: a rotation from a random start, then a pass of
// random swaps of neighbours.
std::vector<std::string> DraftOrder(Session& session);

// The team of a pick (1 to 58): the order runs twice.
//
// Design decision: pick p > 29 goes to the (p - 29)th team of the order, so
// picks 30 to 58 give each of the 29 teams its second pick, the last team
// included: 58 picks are two full rounds.
const std::string& PickTeam(const std::vector<std::string>& order, int pick);

// Ranks, drafts and writes the picks and the alumni rows, then the board's
// review and the stage "NBA Draft". One transaction; the caller has the
// user's confirmation.
void RunDraft(Session& session, CareerSteps& career);

// Progress > Run Draft: the user's confirmation, then the draft. False when
// he answers No; nothing is changed then.
bool ProceedWithDraft(Session& session, CareerSteps& career);

}  // namespace courtmere
