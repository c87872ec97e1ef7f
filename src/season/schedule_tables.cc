#include "season/schedule_tables.h"

#include "schedule/calendar_slots.h"
#include "store/store.h"

namespace courtmere {

std::vector<std::string> LeagueConferences(Store& store) {
  std::vector<std::string> names;
  for (Rows r = store.Query("SELECT Conference FROM League ORDER BY Id"); r.Next();) {
    names.push_back(r.Text(0));
  }
  return names;
}

std::string ScheduleTableOf(Store& store, const std::string& conference) {
  const auto id = store.ScalarInt("SELECT Id FROM League WHERE Conference = ?", conference);
  return id ? ConferenceTable(static_cast<int>(*id)) : std::string();
}

std::vector<std::string> SeasonScheduleTables(Store& store) {
  std::vector<std::string> tables = {"NonConfSchedule"};
  for (Rows r = store.Query("SELECT Id FROM League ORDER BY Id"); r.Next();) {
    tables.push_back(ConferenceTable(r.Int(0)));
  }
  return tables;
}

std::string TableOfGame(Store& store, int gameNo) {
  for (const std::string& table : SeasonScheduleTables(store)) {
    if (store.ScalarInt("SELECT count(*) FROM " + table + " WHERE GameNo = ?", gameNo).value_or(0))
      return table;
  }
  return "";
}

}  // namespace courtmere
