// Two small fixed schools in a blank store, with everything a game needs:
// Team, TeamStats, coaches with roles, a trainer, 12 players each with full
// depth charts, and the injury list.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engine/game_model.h"
#include "engine/run_engine.h"
#include "platform/scripted_ui.h"
#include "store/session.h"
#include "support/temp_folder.h"

namespace courtmere::testing {

inline constexpr const char* kHomeSchool = "St. John's";
inline constexpr const char* kAwaySchool = "Lakeview State";

class EngineFixture {
 public:
  explicit EngineFixture(uint64_t seed = 7, int rosterSize = 12);

  Session& session() { return *session_; }
  Store& store() { return session_->Db(); }
  ScriptedUi& ui() { return ui_; }

  // Adds a first-division school with `players` players, a full chart when
  // the roster allows, staff and a TeamStats row. Ratings come from `base`.
  void AddSchool(const std::string& school, int players, int base, uint64_t seed);
  // A background school with its players and chart.
  void AddScrubSchool(const std::string& school, int players, int base, uint64_t seed);

  // Ends every injury, as the weekly healing would.
  void HealEveryone();

  // Plays one game home against away; returns RunEngine's result.
  int Play(Game& game, DayResults& day, int batchIndex = 0, bool withLog = false,
           bool withFiles = true, const std::string& home = kHomeSchool,
           const std::string& away = kAwaySchool);

 private:
  int AddPlayerRow(const std::string& table, const std::string& school, int position, int base,
                   Rng& rng);
  void SetChart(const std::string& table, const std::string& school, const std::vector<int>& ids);

  TempFolder dir_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
  int nextId_ = 100;
};

}  // namespace courtmere::testing
