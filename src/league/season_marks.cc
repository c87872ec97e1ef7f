#include "league/season_marks.h"

#include "store/store.h"

namespace courtmere {

void ClearSeasonMarks(Store& store) {
  store.Exec("UPDATE Team SET Winner = 0, NCTFinalFour = 0, ACTWinner = 0, ACTFinalFour = 0");
}

}  // namespace courtmere
