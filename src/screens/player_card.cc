#include "screens/player_card.h"

#include "people/player.h"
#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {
namespace {

std::string HealthText(const std::string& health, int weeksOut) {
  if (health.empty() || health == kGood) return kGood;
  if (weeksOut <= 0) return health;
  return health + " (" + std::to_string(weeksOut) + (weeksOut == 1 ? " week)" : " weeks)");
}

std::string StatusText(int redshirt, int suspended, int inactive) {
  std::string status;
  auto add = [&](const char* text) {
    if (!status.empty()) status += ", ";
    status += text;
  };
  if (redshirt == 1) add("Redshirting");
  if (redshirt == 2) add("Redshirt used");
  if (suspended > 0) add("Suspended");
  if (inactive == 1) add("Inactive");
  return status;
}

}  // namespace

std::optional<PlayerCard> LoadPlayerCard(Session& session, int playerId) {
  Rows r = session.Db().Query(
      "SELECT Name, Team, PlayerYear, PlayerPosition, Height, HomeTown, HighSchool, Health, "
      "TimeInjured, Redshirt, Suspended, Inactive, GPA, ScoutOverall, AthleticGrade, ScoreGrade, "
      "ShootingGrade, OutsideShootGrade, ReboundGrade, PerrDefenseGrade, PostDefenseGrade, "
      "HandlingGrade, PassingGrade, PotentialGrade FROM Player WHERE Id = ?",
      playerId);
  if (!r.Next()) return std::nullopt;
  PlayerCard card;
  card.Id = playerId;
  card.Name = r.Text(0);
  card.Team = r.Text(1);
  card.Year = r.Text(2);
  card.Position = PositionName(r.Int(3));
  card.Height = r.Text(4);
  card.HomeTown = r.Text(5);
  card.HighSchool = r.Text(6);
  card.Health = HealthText(r.Text(7), r.Int(8));
  card.Status = StatusText(r.Int(9), r.Int(10), r.Int(11));
  card.GPA = r.Double(12);
  card.ScoutOverall = CInt(r.Double(13));
  const char* labels[] = {"Athletic",   "Scoring",           "Shooting",     "Outside Shooting",
                          "Rebounding", "Perimeter Defense", "Post Defense", "Ball Handling",
                          "Passing",    "Potential"};
  for (int i = 0; i < 10; ++i) card.Grades.emplace_back(labels[i], r.Text(14 + i));
  card.Season = SeasonLine(session, playerId, card.Team);
  card.Career = CareerLine(session.Db(), playerId);
  return card;
}

}  // namespace courtmere
