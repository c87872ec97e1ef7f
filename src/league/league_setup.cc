#include "league/league_setup.h"

#include "store/session.h"

namespace courtmere {

namespace {

// The columns a Team row takes from its seed row, with the seed's Prestige
// as InitialPrestige. Design decision: every school starts as the computer's,
// with normal tactics, so that each row holds an owner and tactics the game
// knows before anyone changes them.
constexpr const char* kCopySchools =
    "INSERT INTO Team (SchoolName, State, Location, Area, Population, Colors, ArenaCapacity, "
    "Conference, Region, Division, SchedGroup, InitialPrestige, Owner, Tempo, OffenseType, "
    "Defense, Press) "
    "SELECT s.SchoolName, s.State, s.Location, s.Area, s.Population, s.Colors, s.ArenaCapacity, "
    "s.Conference, s.Region, s.Division, s.SchedGroup, s.Prestige, ?, ?, ?, ?, ? ";

template <class... Args>
void CopySchools(Store& store, const std::string& fromWhereOrder, const Args&... args) {
  store.Exec(std::string(kCopySchools) + fromWhereOrder, "Computer", "Normal", "Normal", "Man",
             "None", args...);
  store.Exec("INSERT INTO TeamStats (SchoolName) SELECT s.SchoolName " + fromWhereOrder, args...);
}

}  // namespace

void SetupLeagues(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  store.Exec(
      "INSERT INTO League (Id, Conference, SchedType, Challenge, Week, Day) "
      "SELECT Id, Conference, SchedType, Challenge, Week, Day FROM LeagueSetup WHERE Id < 7 "
      "ORDER BY Id");
  store.Exec("UPDATE Config SET CurrWeek = 1, CurrDay = 'Thursday' WHERE IdConfig = 0");
  session.config.CurrWeek = 1;
  session.config.CurrDay = "Thursday";
  CopySchools(store, "FROM TeamSetup s ORDER BY s.rowid");
  tx.Commit();
}

bool AddChosenConferences(Session& session, const std::array<std::string, 3>& conferences) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  for (int k = 1; k <= 3; ++k) {
    const std::string& conference = conferences[k - 1];
    auto type =
        store.ScalarText("SELECT SchedType FROM LeagueSetup WHERE Conference = ?", conference);
    if (!type) {
      session.ui.Message("League not found");
      return false;
    }
    store.Exec("INSERT INTO League (Id, Conference, SchedType) VALUES (?, ?, ?)", k + 6, conference,
               *type);
  }
  tx.Commit();
  return true;
}

void AddChosenTeams(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  CopySchools(store,
              "FROM LowLeagueSetup s JOIN League l ON s.Conference = l.Conference "
              "ORDER BY s.Conference DESC, s.rowid");
  tx.Commit();
}

}  // namespace courtmere
