#include "screens/recruit_card.h"

#include "people/player.h"
#include "store/session.h"

namespace courtmere {

std::optional<RecruitCard> LoadRecruitCard(Session& session, int playerId) {
  Rows r = session.Db().Query(
      "SELECT Name, HomeTown, HighSchool, PlayerYear, Area, PlayerPosition, Height, "
      "AthleticGrade, ScoreGrade, ShootingGrade, OutsideShootGrade, ReboundGrade, "
      "PerrDefenseGrade, PostDefenseGrade, HandlingGrade, PassingGrade, PotentialGrade, "
      "Homesick, PlayWinner, PPG, APG, RPG, TOs, SPG, Recruit.GPA, "
      "coalesce(Recruit.ScoutingReport, ''), coalesce(Team1, ''), coalesce(Team2, ''), "
      "coalesce(Team3, ''), PosRank, Top50Rank, NBAFlag, coalesce(TeamChoice, '') FROM Player, "
      "Recruit WHERE Player.Id = "
      "Recruit.Id AND Player.Id = ?",
      playerId);
  if (!r.Next()) return std::nullopt;
  RecruitCard card;
  card.Id = playerId;
  card.Name = r.Text(0);
  card.HomeTown = r.Text(1);
  const bool juniorCollege = r.Text(3) == "JCRecruit";
  card.SchoolLabel = juniorCollege ? "Junior Col.:" : "High School:";
  card.School = juniorCollege ? std::string(r.Text(4)) + " JC (" + std::string(r.Text(2)) + ")"
                              : std::string(r.Text(2));
  card.Position = PositionName(r.Int(5));
  card.Height = r.Text(6);
  const char* labels[] = {"Athletic",   "Scoring",           "Shooting",     "Outside Shooting",
                          "Rebounding", "Perimeter Defense", "Post Defense", "Ball Handling",
                          "Passing",    "Potential"};
  for (int i = 0; i < 10; ++i) card.Grades.emplace_back(labels[i], r.Text(7 + i));
  card.Homesick = r.Int(17);
  card.PlayWinner = r.Int(18);
  card.PPG = r.Double(19);
  card.APG = r.Double(20);
  card.RPG = r.Double(21);
  card.TOs = r.Double(22);
  card.SPG = r.Double(23);
  card.GPA = r.Double(24);
  card.ScoutingReport = r.Text(25);
  if (r.Int(31) == 1) {
    card.ScoutingReport +=
        " He is declaring for the NBA draft and forfeiting his college eligability.";
  }
  // Each sentence of the report is stored with the blank that joins it to
  // the one before; the card shows the text without the first one's.
  card.ScoutingReport.erase(0, card.ScoutingReport.find_first_not_of(' '));
  for (int i = 26; i < 29; ++i) {
    if (!r.Text(i).empty()) card.Schools.emplace_back(r.Text(i));
  }
  if (r.Int(29) > 0) card.PosRank = "No. " + std::to_string(r.Int(29));
  card.TeamChoice = r.Text(32);
  if (r.Int(30) > 0) card.Top50Rank = "No. " + std::to_string(r.Int(30)) + " Overall";
  return card;
}

}  // namespace courtmere
