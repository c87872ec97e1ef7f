// The letters the user's staff write about his recruits during the year:
// the head scout's report on one recruit of his list, the interest of his
// list in his school, and the backup recruit of week 9. Each letter goes to
// the inbox and is kept among the season's recruiting messages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

struct Session;

// "a", "a and b", "a, b and c".
std::string JoinNames(const std::vector<std::string>& names);

// Sends a recruiting letter: to the inbox, and kept in Messages as a
// "Recruits" message of the current week.
void SendRecruitingLetter(Session& session, std::string_view sender, std::string_view subject,
                          const std::string& text);

// The report on the n-th recruit of the user's list (by RecruitNo); nothing
// when the list is shorter.
void ScoutRecruitReport(Session& session, int n);

// Which recruits of the user's list are interested in his school.
void RecruitInterestReport(Session& session);

// The best recruit nobody chases who names the user's school, or the word
// that there is none.
void FindBackupRecruit(Session& session);

// Whether a recruit is interested in the user's school as the interest
// letter judges it: it is on his list, or its prestige is enough for his
// class ("Exc" 60, "Good" 45, any other class always).
bool InterestedIn(const std::string& school, int prestige, const std::string& recruitType,
                  const std::string& team1, const std::string& team2, const std::string& team3);

}  // namespace courtmere
