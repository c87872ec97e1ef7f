#include "screens/recruit_lists.h"

#include "people/player.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kListSelect =
    "SELECT Player.Id, Name, PlayerPosition, Height, HomeTown, RecruitType, PosRank, Top50Rank, "
    "AthleticGrade, ScoreGrade, ShootingGrade, OutsideShootGrade, ReboundGrade, "
    "PerrDefenseGrade, PostDefenseGrade, HandlingGrade, PassingGrade, PotentialGrade, Team1, "
    "Team2, Team3, TeamChoice, InEligible, NBAFlag, (SELECT count(*) FROM RecruitDecision WHERE "
    "RecruitDecision.Team = ? AND PlayerID = Player.Id) FROM Player, Recruit WHERE Player.Id = "
    "Recruit.Id AND PlayerYear LIKE '%Recruit' ";

int RankShown(int rank) {
  return rank > 0 ? rank : 99;
}

std::string Joined(const Rows& r, int first, int count) {
  std::string text;
  for (int i = first; i < first + count; ++i) {
    if (r.IsNull(i) || r.Text(i).empty()) continue;
    if (!text.empty()) text += ", ";
    text += r.Text(i);
  }
  return text;
}

std::string StatusOf(const Rows& r) {
  if (!r.IsNull(21) && !r.Text(21).empty()) return std::string(r.Text(21));
  if (r.Int(23) == 1) return "NBA";
  if (r.Int(22) > 0) return "Ineligible";
  return "";
}

RecruitListRow ReadRow(const Rows& r) {
  RecruitListRow row;
  row.Id = r.Int(0);
  row.Name = r.Text(1);
  row.Pos = PositionName(r.Int(2));
  row.Height = r.Text(3);
  row.HomeTown = r.Text(4);
  row.RecruitType = r.Text(5);
  row.PosRank = RankShown(r.Int(6));
  row.Top50Rank = RankShown(r.Int(7));
  for (int i = 8; i < 18; ++i) row.Grades.emplace_back(r.Text(i));
  row.Schools = Joined(r, 18, 3);
  row.Status = StatusOf(r);
  row.Listed = r.Int(24) > 0;
  return row;
}

template <class... Args>
RecruitList List(Session& session, std::string title, const std::string& where,
                 const Args&... args) {
  RecruitList list{std::move(title), {}};
  for (Rows r = session.Db().Query(kListSelect + where, session.humanSchool, args...); r.Next();) {
    list.Rows.push_back(ReadRow(r));
  }
  return list;
}

}  // namespace

RecruitList RegionRecruits(Session& session, const std::string& region) {
  return List(session, region + " Region Recruits",
              "AND Recruit.Region = ? ORDER BY Top50Rank = 0, Top50Rank, PosRank = 0, PosRank, "
              "Player.Id",
              region);
}

RecruitList InterestedRecruits(Session& session, int slot) {
  const std::string column = "Team" + std::to_string(slot);
  return List(session, "Recruits Listing " + session.humanSchool + " As " + column,
              "AND " + column +
                  " = ? ORDER BY Top50Rank = 0, Top50Rank, PosRank = 0, PosRank, "
                  "Player.Id",
              session.humanSchool);
}

RecruitList PositionRecruits(Session& session, int position) {
  return List(session, PositionTitle(position) + " Recruits in the Nation",
              "AND PlayerPosition = ? AND PosRank > 0 ORDER BY PosRank, Player.Id", position);
}

RecruitList Top50Recruits(Session& session) {
  return List(session, "Top 50 Recruits in the Nation",
              "AND Top50Rank > 0 ORDER BY Top50Rank, Player.Id");
}

std::vector<int> PoolIds(Store& store) {
  std::vector<int> ids;
  for (Rows r = store.Query(
           "SELECT Player.Id FROM Player, Recruit WHERE Player.Id = Recruit.Id AND PlayerYear "
           "LIKE '%Recruit' ORDER BY Player.Id");
       r.Next();) {
    ids.push_back(r.Int(0));
  }
  return ids;
}

std::string PositionTitle(int position) {
  static const char* const kNames[] = {"Point Guard", "Shooting Guard", "Small Forward",
                                       "Power Forward", "Center"};
  if (position < 1 || position > 5) return "";
  return kNames[position - 1];
}

}  // namespace courtmere
