#include "screens/award_lists.h"

#include "people/player.h"
#include "store/store.h"

namespace courtmere {

namespace {

// Where WeekNo holds a position rather than a week or a slot.
bool WeekNoIsPosition(const std::string& type) {
  return type == "FirstAA" || type == "SecondAA" || type == "ThirdAA" || type.ends_with("POY");
}

// The winners of one award Type, by WeekNo.
std::vector<AwardRow> Winners(Store& store, const std::string& userSchool, const std::string& type,
                              int week) {
  std::vector<AwardRow> rows;
  for (Rows r = store.Query(
           "SELECT AwardWinners.WeekNo, AwardWinners.PlayerId, Player.Name, Player.Team, "
           "Player.PlayerPosition, PPG, RPG, APG, SPG, BPG, TOPG FROM AwardWinners "
           "LEFT JOIN Player ON Player.Id = AwardWinners.PlayerId "
           "WHERE Type = ? AND (? = 0 OR WeekNo = ?) ORDER BY WeekNo, AwardWinners.Id",
           type, week, week);
       r.Next();) {
    AwardRow row{r.Int(0),    r.Int(1),    r.Text(2),   r.Text(3),   PositionName(r.Int(4)),
                 r.Double(5), r.Double(6), r.Double(7), r.Double(8), r.Double(9),
                 r.Double(10)};
    if (WeekNoIsPosition(type)) row.Position = PositionName(row.WeekNo);
    row.User = !userSchool.empty() && row.Team == userSchool;
    rows.push_back(std::move(row));
  }
  return rows;
}

void AddList(Store& store, const std::string& userSchool, const std::string& title,
             const std::string& type, std::vector<AwardList>& lists) {
  std::vector<AwardRow> rows = Winners(store, userSchool, type, 0);
  if (!rows.empty()) lists.push_back({title, std::move(rows)});
}

}  // namespace

AwardList PlayersOfWeek(Store& store, const std::string& userSchool, int week) {
  return {"Player of the Week", Winners(store, userSchool, "week", week)};
}

std::vector<AwardList> ConferenceAwards(Store& store, const std::string& userSchool,
                                        const std::string& conference) {
  std::vector<AwardList> lists;
  AddList(store, userSchool, conference + " All-Conference Team", conference, lists);
  AddList(store, userSchool, conference + " Player of the Year", conference + "POY", lists);
  AddList(store, userSchool, conference + " All-Freshman Team", conference + "F", lists);
  return lists;
}

std::vector<AwardList> NationalAwards(Store& store, const std::string& userSchool) {
  std::vector<AwardList> lists;
  AddList(store, userSchool, "National Player of the Year", "NationalPOY", lists);
  AddList(store, userSchool, "First Team All America", "FirstAA", lists);
  AddList(store, userSchool, "Second Team All America", "SecondAA", lists);
  AddList(store, userSchool, "Third Team All America", "ThirdAA", lists);
  AddList(store, userSchool, "National Freshman Team", "NationalF", lists);
  return lists;
}

}  // namespace courtmere
