// The last step of every offseason and of a new dynasty: the assistant's
// list of what the user can still do before the season starts, and the
// invitation to a preseason tournament, which the user may decline.
#pragma once

namespace courtmere {

struct Session;

void FinalOffseasonTasks(Session& session);

// Asks the user whether he accepts his preseason tournament's invitation, if
// he has one. On No another school outside his conference takes his place in
// the bracket and he takes that school's games of week 1; with no such
// school the invitation stands.
void AnswerTournamentInvitation(Session& session);

}  // namespace courtmere
