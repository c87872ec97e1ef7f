// A school's won-lost record this season as the ranking screens show it.
#pragma once

#include <string>

namespace courtmere {

class Store;

// "<wins>-<losses>": from TeamStats for a first-division school, from
// ScrubTeam for a background one; "0-0" for a school in neither.
std::string SchoolRecord(Store& store, const std::string& school);

}  // namespace courtmere
