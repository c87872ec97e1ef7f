// The conference's academic suspensions (frmLeaders from News > Player
// Suspensions): every suspended player of its schools, by school.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

inline constexpr const char* kSuspensionLine = "is suspended for four weeks because of academics.";

struct SuspensionRow {
  int PlayerId = 0;
  std::string Name;
  std::string Team;
  double GPA = 0;
  std::string PlayerYear;
};

// ShowSuspensions: ordered by school, then by name.
std::vector<SuspensionRow> ShowSuspensions(Store& store, const std::string& conference);

}  // namespace courtmere
