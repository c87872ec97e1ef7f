#include "career/fire_head_coach.h"

#include "career/career_row.h"
#include "store/inbox.h"
#include "store/session.h"

namespace courtmere {

void FireHeadCoach(Session& session, const std::string& school) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  store.Exec("UPDATE Team SET Owner = 'Computer' WHERE SchoolName = ?", school);
  store.Exec("UPDATE HeadCoach SET Team = ? WHERE Team = ?", std::string(kFiredPrefix) + school,
             school);
  AddInboxMessage(
      session, "Athletic Director", "You've Been Fired!",
      " I have some bad news. The Atheltic Director of " + school +
          " has decided to remove you from the head coaching position. He didn't feel that the "
          "program was going in the right direction under your leadership. You must now pick a "
          "new school to lead and try to prove him wrong.");
  tx.Commit();
  // The session keeps the school without the prefix, as the menu gate reads
  // it; the store's "Fired-" text is what marks the coach as fired.
}

}  // namespace courtmere
