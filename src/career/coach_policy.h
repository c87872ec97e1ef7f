// How a headless run's coach answers the job list each year after the draft.
#pragma once

namespace courtmere {

struct Session;

enum class CoachPolicy {
  kStay,   // keeps his school; once fired, takes the best school offered
  kClimb,  // takes the most prestigious school that offers, when it beats his own
};

// Takes a job as the policy says, when the job list is open. True when he
// moved.
//
// Design decision: a climbing coach moves only to a school of higher prestige
// than his own; the list also holds schools below his, and taking one of
// those would be a step down, not a climb. The best of a fired coach's three
// lowest schools is the one of highest prestige.
bool ApplyCoachPolicy(Session& session, CoachPolicy policy);

}  // namespace courtmere
