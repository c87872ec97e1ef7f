// The year's marks on a first-division school: Winner (1 conference
// tournament champion, 2 NCT champion, 3 both), NCTFinalFour, ACTWinner and
// ACTFinalFour. The tournaments set them during the postseason; the season's
// end, once the team history has counted them, sets them back to 0, so that
// last year's champions hold no automatic bid in the next season.
//
// Background teams keep theirs: ScrubTeam.Winner marks the automatic
// qualifier of a background conference, and the background teams are drawn
// anew in the offseason.
#pragma once

namespace courtmere {

class Store;

void ClearSeasonMarks(Store& store);

}  // namespace courtmere
