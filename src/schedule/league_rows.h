// The League rows of the dynasty, one a conference.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

class Store;

struct LeagueRow {
  int Id = 0;
  std::string Conference;
  std::string SchedType;
  int Challenge = 0;
  int Week = 0;
  std::string Day;
};

// The orders the schedule reads the conferences in.
enum class LeagueOrder { IdAsc, ConferenceAsc, IdDesc, ConferenceDesc };

std::vector<LeagueRow> ReadLeagues(Store& store, LeagueOrder order = LeagueOrder::IdAsc);

}  // namespace courtmere
