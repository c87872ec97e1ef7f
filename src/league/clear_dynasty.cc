#include "league/clear_dynasty.h"

#include <string>

#include "store/store.h"

namespace courtmere {

namespace {

void Empty(Store& store, std::initializer_list<const char*> tables) {
  // Table names come from this file, never from input.
  for (const char* table : tables) store.Exec(std::string("DELETE FROM ") + table);
}

}  // namespace

void ClearDynasty(Store& store) {
  Store::Transaction tx(store);
  Empty(store, {"Player", "ScrubPlayer", "Development", "Records"});
  store.Exec(
      "UPDATE Config SET NumPlayers = 0, NextId = 1, CurrWeek = 1, CurrDay = 'Thursday', "
      "CurrYear = 2001, Stage = 'Post Training', MaxGameNo = 0 WHERE IdConfig = 0");
  Empty(store, {"Recruit", "RecruitDecision", "TeamRecruit"});
  store.Exec("UPDATE Config SET NumRecruits = 0 WHERE IdConfig = 0");
  Empty(store, {"NBADraft", "PlayerStats", "CareerPlayerStats", "PlayerYearStats"});
  store.Exec("DELETE FROM League WHERE Id > 0");
  Empty(store,
        {"Team", "ScrubTeam", "TeamStats", "Ranking", "CRIRank", "Messages", "Alumni", "NCTHistory",
         "ACTHistory", "CoachHistory", "TrainPlayer", "InboxMessage", "RankHistory"});
  for (const char* table : {"NCTTourney", "ACTTourney", "ConfTourney", "PreSeasonTourney"}) {
    store.Exec(std::string("DELETE FROM ") + table + " WHERE Id > 0");
  }
  for (int league = 1; league <= 9; ++league) {
    store.Exec("DELETE FROM League" + std::to_string(league) + "Schedule WHERE GameNo > 0");
  }
  store.Exec("DELETE FROM NonConfSchedule WHERE GameNo > 0");
  store.Exec("UPDATE Cities SET Second = 0, Regional = 0, Final = 0 WHERE Id > 0");
  Empty(store, {"Coach", "Scout", "Trainer", "HeadCoach", "AwardWinners", "WeekAward"});
  Empty(store, {"TeamHistory"});
  tx.Commit();
}

}  // namespace courtmere
