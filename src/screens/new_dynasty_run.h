// File > New from start to end with the user's answers given beforehand:
// the conferences, the school, the name and the prestige option. The
// command-line tool and the tests drive the same steps the desktop screens
// do, answering Yes to every question.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

struct Session;

struct NewDynastyRequest {
  std::vector<std::string> conferences;  // the three low conferences, in order
  std::string school;
  std::string coach;
  bool randomPrestige = false;  // Randomize once before the school is taken
};

// Runs in one transaction: when a step refuses (its message shown) or
// fails, the store is left as it was before. True when the dynasty stands.
bool RunNewDynasty(Session& session, const NewDynastyRequest& request);

}  // namespace courtmere
