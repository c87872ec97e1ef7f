// The board's review of the user after each draft: his rating, his strikes
// and, when the strikes pass what the school expects, his firing.
//
// The rating weighs his winning, his tournament runs, his conference titles,
// the first-round picks he has produced and how his school's prestige moved;
// it is capped at 100 with no floor. A strike comes with every season whose
// prestige change is negative and goes with one above 2.
#pragma once

namespace courtmere {

struct CareerRow;
struct Session;

// The rating of a career of at least one season.
double CoachRatingOf(const CareerRow& career);

// The strikes after a season's prestige change.
int StrikesAfter(int strikes, double prestigeChange);

// Whether a school of `expectations` fires a coach with `strikes`: the most
// demanding school at the third strike, the next at the fourth, the others
// at the fifth.
bool BoardFires(int expectations, int strikes);

// The review, on the user's HeadCoach row. With no season coached nothing is
// worked out. A fired coach gets his letter and his school goes back to the
// computer; one who keeps his job gets the "Check School Interest" letter.
// Runs in the draft, before the stage turns to "NBA Draft"; writes in one
// transaction.
void ReviewHeadCoach(Session& session);

}  // namespace courtmere
