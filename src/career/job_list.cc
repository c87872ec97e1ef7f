#include "career/job_list.h"

#include <fmt/format.h>

#include "career/career_row.h"
#include "league/prestige_bands.h"
#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

namespace {

std::string WinPct(int wins, int games) {
  if (games == 0) return "";
  const std::string text = fmt::format("{:.3f}", static_cast<double>(wins) / games);
  return text.rfind("0", 0) == 0 ? text.substr(1) : text;
}

std::vector<JobOffer> OpenSchools(Store& store, const CareerRow& career) {
  const int rating = CInt(career.Rating);
  // A fired coach's "Fired-<school>" names no school: prestige 0.
  // Design decision: the school that fired him makes him no offer, in the
  // open list as among the three lowest.
  const int prestige =
      CInt(store.ScalarDouble("SELECT Prestige FROM Team WHERE SchoolName = ?", career.Team)
               .value_or(0));
  std::vector<JobOffer> offers;
  for (Rows r = store.Query(
           "SELECT Team.SchoolName, Team.OverallWins, Team.OverallGames, Team.Prestige, "
           "Ranking.CoachRank FROM Team JOIN TeamStats ON Team.SchoolName = TeamStats.SchoolName "
           "JOIN Ranking ON Team.SchoolName = Ranking.SchoolName WHERE Team.Prestige < ? AND "
           "Team.Prestige < ? AND Team.SchoolName <> ? ORDER BY Team.Prestige DESC, Team.rowid",
           rating, prestige + 11, career.School());
       r.Next() && offers.size() < kMostOffers;) {
    const int rank = r.Int(4);
    if (rank >= 1 && rank <= 10) continue;
    const PrestigeBand& band = BandOf(r.Double(3));
    offers.push_back({r.Text(0), WinPct(r.Int(1), r.Int(2)), band.Label, band.Expectation,
                      band.Expectations, r.Double(3)});
  }
  return offers;
}

// Whatever their prestige, the three lowest read as a low school.
std::vector<JobOffer> LowestSchools(Store& store, const std::string& firedBy) {
  std::vector<JobOffer> offers;
  for (Rows r = store.Query("SELECT SchoolName, OverallWins, OverallGames, Prestige FROM Team "
                            "ORDER BY Prestige ASC, rowid");
       r.Next() && offers.size() < 3;) {
    if (r.Text(0) == firedBy) continue;
    offers.push_back(
        {r.Text(0), WinPct(r.Int(1), r.Int(2)), "Low", "Win a few games", 5, r.Double(3)});
  }
  return offers;
}

}  // namespace

std::vector<JobOffer> LoadJobList(Store& store) {
  const CareerRow career = ReadCareer(store);
  if (career.Id == 0) return {};
  std::vector<JobOffer> offers = OpenSchools(store, career);
  if (offers.empty() && career.Fired()) offers = LowestSchools(store, career.School());
  return offers;
}

std::optional<std::string> JobListClosed(Session& session) {
  const Config& c = session.config;
  if (c.Stage != kStageNbaDraft) {
    return fmt::format(
        "Job openings can only be checked between the NBA draft and the start of the offseason; "
        "the dynasty stands in {}.",
        c.Stage);
  }
  if (ReadCareer(session.Db()).JobYear == c.CurrYear) {
    return std::string("You have already changed jobs this year.");
  }
  return std::nullopt;
}

}  // namespace courtmere
