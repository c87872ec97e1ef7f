#include "career/coaches_leaving.h"

#include <vector>

#include "career/career_row.h"
#include "platform/numeric.h"
#include "store/inbox.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct Assistant {
  int id;
  std::string name;
  int off;
  int def;
  int ambition;
};

std::vector<Assistant> StaffOf(Store& store, const std::string& school) {
  std::vector<Assistant> staff;
  for (Rows r =
           store.Query("SELECT Id, Name, OffCoach, DefCoach, Ambition FROM Coach WHERE Team = ? "
                       "ORDER BY OffCoach DESC, rowid",
                       school);
       r.Next();) {
    staff.push_back({r.Int(0), r.Text(1), r.Int(2), r.Int(3), r.Int(4)});
  }
  return staff;
}

// The background school that hires him: n = round(Rnd x 60 + 1) steps down
// the list by rating, round to the top again past its end. Empty with no
// background school.
std::string NewSchool(Session& session) {
  std::vector<std::string> schools;
  for (Rows r = session.Db().Query("SELECT SchoolName FROM ScrubTeam ORDER BY TeamRating DESC, "
                                   "rowid");
       r.Next();) {
    schools.push_back(r.Text(0));
  }
  if (schools.empty()) return "";
  const int steps = session.rng.R(60, 1);
  return schools[static_cast<size_t>(steps) % schools.size()];
}

}  // namespace

bool CoachLeaves(int off, int def, int ambition, const std::function<int()>& drawR) {
  if (off > 80 && def > 80 && ambition > 85) return true;
  if (off <= 74 && def <= 74) return false;
  const int r = drawR();
  return (r > 5 && ambition > 74) || (r > 7 && ambition > 60) || (r > 8 && ambition > 40) || r > 9;
}

void CoachesLeaving(Session& session) {
  Store& store = session.Db();
  const CareerRow career = ReadCareer(store);
  if (career.Id == 0 || career.Fired()) return;
  const auto drawR = [&session] { return Int(session.rng.Rnd() * 10 + 1); };
  for (const Assistant& coach : StaffOf(store, career.Team)) {
    if (!CoachLeaves(coach.off, coach.def, coach.ambition, drawR)) continue;
    // Design decision: with no background school to hire him there is no
    // offer, and he stays.
    const std::string school = NewSchool(session);
    if (school.empty()) return;
    Store::Transaction tx(store);
    AddInboxMessage(session, "Athletic Director", coach.name + " Left",
                    "Coach " + coach.name + " has accepted an offer from " + school +
                        " to become their head coach. He will no longer be a member of your "
                        "staff. Please replace him before proceeding.");
    store.Exec("UPDATE Coach SET Team = 'Looking For FA' WHERE Id = ?", coach.id);
    tx.Commit();
    return;
  }
}

}  // namespace courtmere
