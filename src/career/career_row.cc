#include "career/career_row.h"

#include "store/store.h"

namespace courtmere {

std::string CareerRow::School() const {
  if (!Fired()) return Team;
  return Team.size() > kFiredPrefix.size() ? Team.substr(kFiredPrefix.size()) : std::string();
}

CareerRow ReadCareer(Store& store) {
  CareerRow c;
  Rows r = store.Query(
      "SELECT Id, Name, Team, Expectations, Seasons, Wins, Losses, ConfChamps, NCTApps, NCTWins, "
      "NCTLosses, NCTFinalFour, NCTChamps, ACTApps, ACTWins, ACTLosses, ACTFinalFour, ACTChamps, "
      "FirstRound, PrestigeChange, Rating, Strikes, JobYear FROM HeadCoach ORDER BY Id LIMIT 1");
  if (!r.Next()) return c;
  c.Id = r.Int(0);
  c.Name = r.Text(1);
  c.Team = r.Text(2);
  int* counters[] = {&c.Expectations, &c.Seasons,      &c.Wins,      &c.Losses,
                     &c.ConfChamps,   &c.NCTApps,      &c.NCTWins,   &c.NCTLosses,
                     &c.NCTFinalFour, &c.NCTChamps,    &c.ACTApps,   &c.ACTWins,
                     &c.ACTLosses,    &c.ACTFinalFour, &c.ACTChamps, &c.FirstRound};
  int col = 3;
  for (int* counter : counters) *counter = r.Int(col++);
  c.PrestigeChange = r.Double(19);
  c.Rating = r.Double(20);
  c.Strikes = r.Int(21);
  c.JobYear = r.Int(22);
  return c;
}

}  // namespace courtmere
