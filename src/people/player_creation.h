// Drawing new players: recruits, the rosters of new first-division and
// background teams, and walk-ons.
//
// Every player goes through one pipeline: a quality class from the prestige,
// a position and height from one roll, ratings from his builder's table, a
// few years of development for an upperclassman, then RatePlayer. The five
// position counters of a batch, with its cap, spread a batch evenly over the
// positions: a roll that lands on a full position is handed on to the first
// position with room, looking at C, PF, SF, SG, PG in that order.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "people/player.h"
#include "people/player_writer.h"
#include "store/config.h"

namespace courtmere {

class Rng;
struct Session;

// The four quality classes of players and staff.
enum class Quality { kExc, kGood, kAverage, kPoor };
// "Exc", "Good", "Average", "Poor".
const char* QualityName(Quality quality);

// Players built per position (index 1 PG .. 5 C) since the last Clear.
struct PositionCounters {
  std::array<int, 6> built{};
  void Clear() { built.fill(0); }
  int& operator[](int position) { return built[position]; }
  int operator[](int position) const { return built[position]; }
};

// Fills Team1 to Team3 of a new recruit. The recruiting subsystem supplies
// it; a batch without one leaves a recruit's interest list empty.
using RecruitInterestHook = std::function<void(Session&, Recruit&, const Player&)>;

// The state of one batch of creation: the id counters, loaded from Config
// when the batch begins and written back by Save(), the position counters,
// and the hook that fills a new recruit's interest list.
struct PlayerBatch {
  // A batch whose id counters are read from Config.
  static PlayerBatch Begin(Session& session);
  // Writes NextId and NumRecruits back to Config and the session's copy.
  void Save(Session& session) const;

  IdCounters ids;
  PositionCounters positions;
  RecruitInterestHook recruitInterest;

  // Seed rows read once per batch: the sizes of the name pools and the high
  // schools of each region, in the table's order.
  struct HighSchoolRow {
    std::string highSchool;
    std::string homeTown;
    std::string area;
  };
  int firstNameRows = -1;
  int lastNameRows = -1;
  std::map<std::string, std::vector<HighSchoolRow>> highSchools;
};

// Makes `count` Player rows for `team`, with hometowns of `region`; `year` is
// 0 for recruits (who also get a Recruit row) and 1 to 4 for Freshman to
// Senior; `cap` is the most players of one position in the batch.
void CreatePlayers(Session& session, PlayerBatch& batch, const std::string& team,
                   const std::string& region, int prestige, int count, int year, int cap);

// The same for ScrubPlayer rows of a background team, with their own class
// and height tables and no hometown, recruiting wishes, grades or stats row.
void CreateScrubPlayers(Session& session, PlayerBatch& batch, const std::string& team, int prestige,
                        int count, int year, int cap);

// The 13 players of a new first-division team: three of each class with cap
// 3, then one of a random class with cap 4.
void CreateTeamRoster(Session& session, PlayerBatch& batch, const std::string& team,
                      const std::string& region, int prestige);
// The same as a batch of its own, with the id counters read and saved.
void CreateTeamRoster(Session& session, const std::string& team, const std::string& region,
                      int prestige);

// The 13 players of a new background team, made the same way.
void CreateScrubTeamRoster(Session& session, PlayerBatch& batch, const std::string& team,
                           int prestige);
// The same as a batch of its own, with the id counters read and saved.
void CreateScrubTeamRoster(Session& session, const std::string& team, int prestige);

// One Senior walk-on, drawn at prestige 20, for each place a Team row lacks
// below 13 players. The position counters are not cleared for them.
void AddWalkOns(Session& session, PlayerBatch& batch);

// Marks the region's early leavers for the draft (NBAFlag = 1) and returns
// the size of its recruit class: its seniors, its early leavers and 5.
int RegionRecruitCount(Session& session, const std::string& region);

// The recruit class of one region: the junior-college men who return this
// year get fresh recruit rows, then new recruits fill the class up to the
// region's size, always drawn at prestige 60.
void CreateRegionRecruits(Session& session, PlayerBatch& batch, const std::string& region);

// The recruit classes of "West", "Midwest", "East" and "South" in this order.
void CreateRecruitClasses(Session& session, PlayerBatch& batch);

// GPA from Intelligence, at most 4.0.
void SetPlayerGPA(Rng& rng, Player& player);

}  // namespace courtmere
