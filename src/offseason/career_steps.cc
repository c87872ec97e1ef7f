#include "offseason/career_steps.h"

#include <optional>
#include <string>

#include "career/coaches_leaving.h"
#include "career/head_coach_review.h"
#include "career/staff_market.h"
#include "store/session.h"

namespace courtmere {

namespace {

class LibraryCareer : public CareerSteps {
 public:
  void ReviewHeadCoach(Session& session) override { courtmere::ReviewHeadCoach(session); }
  void DevelopStaff(Session& session) override { CoachesLeaving(session); }
};

// Hires candidates into the post's free places, the best paid first.
//
// Design decision: the market pays its men by their worth, so a headless
// coach who must fill a place takes the candidate of the highest salary.
void FillPost(Session& session, Post post) {
  Store& store = session.Db();
  const std::string table = PostTable(post);
  const std::string school = session.humanSchool;
  while (store.ScalarInt("SELECT count(*) FROM " + table + " WHERE Team = ?", school).value_or(0) <
         PostPlaces(post)) {
    const std::optional<int64_t> id = store.ScalarInt(
        "SELECT Id FROM " + table + " WHERE lower(Team) = lower(?) ORDER BY Salary DESC, Id",
        CandidateTeam(school));
    if (!id || !HireStaff(session, post, static_cast<int>(*id))) return;
  }
}

class PolicyCareer : public LibraryCareer {
 public:
  explicit PolicyCareer(CoachPolicy policy) : policy_(policy) {}
  void ChooseJob(Session& session) override { ApplyCoachPolicy(session, policy_); }
  void FillStaff(Session& session) override {
    for (Post post : {Post::kCoach, Post::kScout, Post::kTrainer}) FillPost(session, post);
  }

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
