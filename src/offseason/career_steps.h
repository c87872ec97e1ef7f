// The head coach's career as the offseason meets it: the board's review
// after the draft (which also brings the schools' interest, or the firing
// letter), and the staff's yearly changes after training. The offseason
// takes them through this interface so that a test can put its own in
// place; CoachCareer() is the career library's.
#pragma once

#include <memory>

#include "career/coach_policy.h"

namespace courtmere {

struct Session;

class CareerSteps {
 public:
  virtual ~CareerSteps() = default;

  // The board's review of the head coach, at the end of the draft; it may
  // fire him ("Fired-<school>" in HeadCoach.Team).
  virtual void ReviewHeadCoach(Session&) = 0;
  // The staff's yearly changes, near the end of training.
  virtual void DevelopStaff(Session&) = 0;
  // A headless coach's answer to the job list, after the draft and before
  // the offseason begins; the desktop's user answers it himself.
  virtual void ChooseJob(Session&) {}
  // A headless coach fills the places his staff lost before Start Season;
  // the desktop's user hires on the staff screens himself.
  virtual void FillStaff(Session&) {}
};

// The career library's steps.
CareerSteps& CoachCareer();

// The same, with a headless coach who answers the job list by `policy`.
std::unique_ptr<CareerSteps> HeadlessCareer(CoachPolicy policy);

}  // namespace courtmere
