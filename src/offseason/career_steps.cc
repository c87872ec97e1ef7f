#include "offseason/career_steps.h"

#include "career/coaches_leaving.h"
#include "career/head_coach_review.h"

namespace courtmere {

namespace {

class LibraryCareer : public CareerSteps {
 public:
  void ReviewHeadCoach(Session& session) override { courtmere::ReviewHeadCoach(session); }
  void DevelopStaff(Session& session) override { CoachesLeaving(session); }
};

class PolicyCareer : public LibraryCareer {
 public:
  explicit PolicyCareer(CoachPolicy policy) : policy_(policy) {}
  void ChooseJob(Session& session) override { ApplyCoachPolicy(session, policy_); }

 private:
  CoachPolicy policy_;
};

}  // namespace

CareerSteps& CoachCareer() {
  static LibraryCareer career;
  return career;
}

std::unique_ptr<CareerSteps> HeadlessCareer(CoachPolicy policy) {
  return std::make_unique<PolicyCareer>(policy);
}

}  // namespace courtmere
