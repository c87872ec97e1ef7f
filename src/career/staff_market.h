// The staff market of the user's school: his three assistant coaches, his
// head scout and his head trainer, and the candidates "Looking at <school>"
// whom he may hire in their place.
//
// A fired man goes to "Looking At FA" and a hired one takes the school's
// name. A post can't be left without a man to fill it: firing needs a
// candidate, and hiring needs a free place (three coaches, one scout, one
// trainer). A hired coach starts as a recruiter with no game role.
#pragma once

#include <optional>
#include <string>

namespace courtmere {

class Store;
struct Session;

enum class Post { kCoach, kScout, kTrainer };

// The post's table ("Coach", "Scout", "Trainer").
const char* PostTable(Post post);
// How many men the post holds: three coaches, one scout, one trainer.
int PostPlaces(Post post);

// The candidates' Team text for a school.
//
// Design decision: candidates are made as "Looking at <school>" and read as
// "Looking At <school>"; the two spellings name the same market, so the
// texts are compared without regard to case.
std::string CandidateTeam(const std::string& school);

// Whether the man of `id` is on the school's staff, or a candidate for it.
bool OnStaff(Store& store, Post post, int id, const std::string& school);
bool IsCandidate(Store& store, Post post, int id, const std::string& school);

// Fire (cmdFire): asks "Do you wish to fire ...?" and on Yes, when a
// candidate can replace him, sends him to "Looking At FA" (a coach with his
// roles cleared). False, with the post's message when nobody could replace
// him, on No or when nothing was fired.
bool FireStaff(Session& session, Post post, int id);

// Hire (cmdHire): asks "Do you wish to hire ...?" and on Yes, when the post
// has a free place, gives the candidate the school (a coach as a recruiter,
// RecPoints 2). False on a full post (with its message) or on No.
bool HireStaff(Session& session, Post post, int id);

// Why the hire screen can't be left yet: the post short of men, or (for the
// coaches) roles that aren't one offence coach, one defence coach and four
// recruiting points. Nothing when it may close.
std::optional<std::string> StaffIncomplete(Store& store, Post post, const std::string& school);

// Why the staff market is closed now, or nothing when it is open: the hire
// screens open in "Post Training" and close when the season starts.
std::optional<std::string> HiringClosed(const Session& session);

}  // namespace courtmere
