// The record books screen: a book's season or career marks as rows of the
// columns "Record", "Value", "Player Name", "    Year    ", "Team". An empty
// choice of book means the national book; a book whose first mark (PPG of a
// season) is empty lists nothing.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace courtmere {

class Store;

inline constexpr std::array<const char*, 5> kRecordColumns = {"Record", "Value", "Player Name",
                                                              "    Year    ", "Team"};

struct RecordRow {
  std::string record, value, player, year, team;
};

std::vector<RecordRow> RecordList(Store& store, const std::string& book, bool career);

// The books a user can pick: "National", the schools, the conferences.
std::vector<std::string> RecordBookSchools(Store& store);
std::vector<std::string> RecordBookConferences(Store& store);

}  // namespace courtmere
