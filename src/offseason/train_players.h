// Train Players, the last command of the offseason: every player of every
// school develops, junior-college prospects too; redshirts end; the signed
// recruits join their schools; last year's free agents of the staff market
// go and new candidates come; the background field is drawn anew; the
// teams' statistics and ranking rows, the schedules and the depth charts are
// built for the new year, and the assistant writes his list of last tasks.
// The dynasty then stands in "Post Training".
#pragma once

#include <string>

namespace courtmere {

struct Session;
class CareerSteps;

// Gives each of the user's players without a regimen 5 in every list.
void DefaultUserTraining(Session& session);

// The junior-college prospects' development: coaches' value 20, 4 to 6 more
// Intelligence, and the scouting report that says he is coming back.
void DevelopJuniorCollegeProspects(Session& session);

// The player id counter starts again at 1 once it stands above 25000.
int WrappedPlayerId(int nextId);

// Asks the user's confirmation, then runs every step in one transaction.
// False when he answers No; nothing is changed then.
bool TrainPlayers(Session& session, CareerSteps& career);

// The steps after the confirmation.
void RunTraining(Session& session, CareerSteps& career);

}  // namespace courtmere
