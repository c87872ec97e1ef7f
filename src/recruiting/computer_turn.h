// The computer teams' side of the recruiting week: their target lists at
// the end of week 1 and their bids at the end of weeks 2 to 12. The user's
// recruiting calls it where the week's last step asks for it.
//
// Nothing stands behind it yet: the default does nothing and says it does
// nothing (Active() is false), so the day step shows no "CPU Recruiting".
#pragma once

#include "recruiting/recruiting_period.h"

namespace courtmere {

struct Session;

class ComputerTurn {
 public:
  virtual ~ComputerTurn() = default;
  virtual bool Active() const { return false; }
  // The computer teams' turn at the end of `week`, in `period` (the one
  // the end of the week has just set).
  virtual void Run(Session&, int /*week*/, RecruitingPeriod /*period*/) {}
};

// The stand-in while the computer teams do not recruit.
ComputerTurn& NoComputerTurn();

}  // namespace courtmere
