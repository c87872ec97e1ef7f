// A season's statistical line, as the outside professional-league games read
// it, and the line invented for a recruit who has no college figures: his
// high-school averages spread over a season of 24 games with random shares
// for free throws, threes, rebounds, fouls and blocks by his position.
#pragma once

namespace courtmere {

class Rng;

struct PoolLine {
  int G = 0, MIN = 0, FGM = 0, FGA = 0, FTM = 0, FTA = 0, ThreeFGM = 0, ThreeFGA = 0;
  int OREB = 0, REB = 0, AST = 0, STL = 0, TO = 0, BLK = 0, PF = 0;
};

// A recruit's figures per game in high school (the Recruit row).
struct SchoolFigures {
  double PPG = 0, RPG = 0, APG = 0, SPG = 0, TOs = 0;
};

// Every value is rounded to a whole number as it is worked out; each
// random share is a fresh draw, taken in the order of the fields above
// their use (free throws, threes, field goals, rebounds, fouls, blocks,
// then minutes).
PoolLine InventedLine(Rng& rng, int position, const SchoolFigures& figures);

}  // namespace courtmere
