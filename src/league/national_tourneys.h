// The national tournaments as the day step drives them.
//
// The Sunday of week 16, after the poll, selects the NCT (with its sites and
// first games), then the ACT, and tells the user where his team stands.
// Each later day of weeks 17 to 20 takes that day's results and writes the
// rounds that follow, as the calendar fixes them:
//
//   week 17  Tue ACT  Wed ACT, next ACT round  Thu NCT  Fri NCT, Saturday's
//            Sat NCT, Sunday's  Sun NCT, Thursday's and Friday's of week 18
//   week 18  Mon ACT, next ACT round  Wed ACT, ACT semifinals
//            Thu, Sat NCT  Fri NCT, Saturday's and Sunday's  Sun NCT, Final Four
//   week 19  Mon ACT semifinals, ACT final  Wed ACT final, ACT closed
//            Sat NCT semifinals, NCT final
//   week 20  Mon NCT final, NCT closed
#pragma once

#include <optional>
#include <string>

namespace courtmere {

class Store;
struct Session;

// The Sunday of week 16: "Setting up NCT", "Setting up ACT", then the
// user's message ("Made the NCT!" or "Made the ACT."). A tournament already
// selected is not selected again. Throws TourneyError, with nothing
// written, when the poll cannot fill the fields.
void SetupNationalTourneys(Session& session);

// After the games of `day` of `week` (17 to 20), under "Setting up next
// round" ("Finalizing NCT" in week 20). Safe to run again for a day whose
// results it has taken.
void RecordPostseasonDay(Session& session, int week, const std::string& day);

// The NCT champion's school, once the final has been played.
std::optional<std::string> NctChampion(Store& store);

}  // namespace courtmere
