// The Config row (IdConfig = 0): the calendar, the stage, the id counters and
// the user's options, with the rules that apply when it is read.
#pragma once

#include <string>

namespace courtmere {

class Store;

inline constexpr const char* kStagePostTraining = "Post Training";
inline constexpr const char* kStageSeason = "Season";
inline constexpr const char* kStageSeasonOver = "Season Over";
inline constexpr const char* kStageEndSeason = "End Season";
inline constexpr const char* kStageNbaDraft = "NBA Draft";
inline constexpr const char* kStageBeginOffSeason = "Begin OffSeason";

struct Config {
  int CurrWeek = 1;
  std::string CurrDay = "Thursday";
  int CurrYear = 2001;
  std::string Stage = kStagePostTraining;
  int NextId = 1;
  int NumRecruits = 0;
  int NumPlayers = 0;  // the option "Save Box Scores to Disk:"
  int PlayByPlay = 0;
  int Autosave = 0;
  int SimSpeed = 5;
  int MaxGameNo = 0;
};

// Reads the row. NumRecruits above 20000 reads as 1 and NumPlayers above 1
// (an old save's value) as 0. Throws StoreError when there is no row.
Config LoadConfig(Store& store);
// Writes every column of the row.
void SaveConfig(Store& store, const Config& config);

// The in-memory id counters: loaded before a batch that creates players or
// games and saved after it.
struct IdCounters {
  int NextId = 1;
  int NumRecruits = 0;
  int MaxGameNo = 0;
};

IdCounters LoadIdCounters(Store& store);
void SaveIdCounters(Store& store, const IdCounters& ids);

}  // namespace courtmere
