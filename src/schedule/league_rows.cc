#include "schedule/league_rows.h"

#include "store/store.h"

namespace courtmere {
namespace {

std::string_view OrderClause(LeagueOrder order) {
  switch (order) {
    case LeagueOrder::IdAsc:
      return "ORDER BY Id ASC";
    case LeagueOrder::ConferenceAsc:
      return "ORDER BY Conference ASC";
    case LeagueOrder::IdDesc:
      return "ORDER BY Id DESC";
    case LeagueOrder::ConferenceDesc:
      return "ORDER BY Conference DESC";
  }
  return "ORDER BY Id ASC";
}

}  // namespace

std::vector<LeagueRow> ReadLeagues(Store& store, LeagueOrder order) {
  const std::string sql = "SELECT Id, Conference, SchedType, Challenge, Week, Day FROM League " +
                          std::string(OrderClause(order));
  std::vector<LeagueRow> leagues;
  for (Rows rows = store.Query(sql); rows.Next();) {
    leagues.push_back(
        {rows.Int(0), rows.Text(1), rows.Text(2), rows.Int(3), rows.Int(4), rows.Text(5)});
  }
  return leagues;
}

}  // namespace courtmere
