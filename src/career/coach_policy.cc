#include "career/coach_policy.h"

#include <algorithm>

#include "career/career_row.h"
#include "career/job_list.h"
#include "career/take_job.h"
#include "store/session.h"

namespace courtmere {

bool ApplyCoachPolicy(Session& session, CoachPolicy policy) {
  if (JobListClosed(session)) return false;
  Store& store = session.Db();
  const CareerRow career = ReadCareer(store);
  if (career.Id == 0) return false;
  if (!career.Fired() && policy == CoachPolicy::kStay) return false;
  const std::vector<JobOffer> offers = LoadJobList(store);
  if (offers.empty()) return false;
  const auto best = std::max_element(
      offers.begin(), offers.end(),
      [](const auto& a, const auto& b) { return a.SchoolPrestige < b.SchoolPrestige; });
  if (!career.Fired()) {
    const double own =
        store.ScalarDouble("SELECT Prestige FROM Team WHERE SchoolName = ?", career.Team)
            .value_or(0);
    if (best->SchoolPrestige <= own) return false;
  }
  return MoveToSchool(session, *best);
}

}  // namespace courtmere
