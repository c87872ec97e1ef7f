// The head coach's career as the offseason meets it: the board's review
// after the draft, the schools' interest in him, and the yearly development
// of the staff after training. A career library plugs in here; while none is
// present (the default below) these steps do nothing and show nothing.
#pragma once

namespace courtmere {

struct Session;

class CareerSteps {
 public:
  virtual ~CareerSteps() = default;

  // Whether a career library stands behind these calls.
  virtual bool Active() const { return false; }

  // The board's review of the head coach, at the end of the draft; it may
  // fire him ("Fired-<school>" in HeadCoach.Team).
  virtual void ReviewHeadCoach(Session&) {}
  // The message "Check School Interest", for a coach who wasn't fired.
  virtual void CheckSchoolInterest(Session&) {}
  // The staff's yearly development, the last step of training.
  virtual void DevelopStaff(Session&) {}
};

// The stand-in while no career library is present.
CareerSteps& NoCareerSteps();

}  // namespace courtmere
