// Taking a job from the job list: the old school goes back to the computer
// (unless the board already took it), the user's row and session move to the
// new school, his strikes are cleared and any negative history raised to 0,
// and his school's expectations are those of the list. The career's counters
// go with him. One transaction: a failure leaves the store as it was.
#pragma once

#include <string>

namespace courtmere {

struct JobOffer;
struct Session;

// The Apply button: asks "Are you sure you wish to switch jobs and join
// <school>?" and on Yes moves him. False on No or a failure (its message
// shown).
bool TakeJob(Session& session, const JobOffer& offer);

// The move itself, without the question.
bool MoveToSchool(Session& session, const JobOffer& offer);

}  // namespace courtmere
