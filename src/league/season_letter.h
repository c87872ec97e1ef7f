// The assistant coach's letter at the start of every season: a welcome, the
// scholarships the user has to offer, the players who may leave early for
// the professional draft, and advice on recruiting, lineups and staff.
#pragma once

#include <string>

namespace courtmere {

class Store;
struct Session;

// The scholarship sentence for m graduating seniors and k open roster
// places (13 minus the roster; negative for a roster above 13), capped at
// five scholarships. Empty when there are none.
std::string ScholarshipSentence(int m, int k);

// The whole letter for the school.
std::string SeasonLetterText(Store& store, const std::string& school);

// Stores the letter as a "Team" message of the current week and puts it in
// the inbox from "Assistant Coach", subject "Season Instructions".
void SeasonLetter(Session& session);

}  // namespace courtmere
