// The injury report (frmLeaders from the Injuries entries): every hurt player
// of the nation's first division or of one conference, with his injury and
// the weeks he is still out.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct InjuryRow {
  int PlayerId = 0;
  std::string Name;
  std::string School;
  std::string Position;
  std::string Injury;  // the player's Health: the injury's name
  int WeeksOut = 0;
};

// `conference` empty: the nation. By school, then by name.
std::vector<InjuryRow> Injuries(Store& store, const std::string& conference);

}  // namespace courtmere
