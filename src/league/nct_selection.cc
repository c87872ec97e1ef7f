#include "league/nct_selection.h"

#include <fmt/format.h>

#include "league/bracket_slots.h"
#include "league/bracket_table.h"
#include "league/national_rounds.h"
#include "league/nct_sites.h"
#include "league/region_placement.h"
#include "league/tourney_error.h"
#include "league/tourney_history.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kAtLargeCandidates = 60;

bool HasAutomaticBid(Store& store, const std::string& school) {
  return store.ScalarInt("SELECT count(*) FROM Team WHERE SchoolName = ? AND Winner = 1", school)
                 .value_or(0) > 0 ||
         store.ScalarInt("SELECT count(*) FROM ScrubTeam WHERE SchoolName = ? AND Winner = 1",
                         school)
                 .value_or(0) > 0;
}

void WriteSeeds(Store& store, const RegionBrackets& brackets, const NctSites& sites) {
  for (size_t r = 0; r < brackets.size(); ++r) {
    const RegionSites& site = sites.regions[r];
    for (int seed = 1; seed <= NctFormat().seeds; ++seed) {
      InsertSlot(store, kNctTourney, kRegions[r], seed,
                 brackets[r][static_cast<size_t>(seed)].school,
                 InTopHalf(seed) ? site.first : site.second);
    }
  }
}

}  // namespace

std::vector<Entrant> AutomaticBids(Store& store) {
  std::vector<Entrant> bids;
  for (const char* sql : {"SELECT SchoolName FROM Team WHERE Winner = 1 ORDER BY rowid",
                          "SELECT SchoolName FROM ScrubTeam WHERE Winner = 1 ORDER BY rowid"}) {
    for (Rows rows = store.Query(sql); rows.Next();) {
      std::string school = rows.Text(0);
      const double points = PollPoints(store, school);
      bids.push_back({std::move(school), points, 0, {}, {}});
    }
  }
  return bids;
}

std::vector<Entrant> SelectNctField(Store& store, int year) {
  std::vector<Entrant> bids = AutomaticBids(store);
  if (bids.size() > static_cast<size_t>(kNctField)) {
    throw TourneyError(fmt::format(
        "The NCT cannot be selected: {} schools hold an automatic bid, and the field has 64.",
        bids.size()));
  }
  const int atLarge = kNctField - static_cast<int>(bids.size());
  std::vector<Entrant> candidates = PollCandidates(
      store, kAtLargeCandidates, [&](const std::string& s) { return HasAutomaticBid(store, s); });
  ScoreAndSort(store, candidates);
  WriteBubble(store, "NCTHistory", year, candidates, atLarge);
  if (static_cast<int>(candidates.size()) < atLarge) {
    throw TourneyError(fmt::format(
        "The NCT cannot be selected: the poll holds {} schools for its {} at-large places.",
        candidates.size(), atLarge));
  }
  candidates.resize(static_cast<size_t>(atLarge));
  candidates.insert(candidates.end(), bids.begin(), bids.end());
  ScoreAndSort(store, candidates);
  return candidates;
}

bool SetupNct(Session& session) {
  Store& store = session.Db();
  if (store.RowCount("NCTTourney") > 0) return false;
  std::vector<Entrant> field = SelectNctField(store, LoadConfig(store).CurrYear);
  ReadHomes(store, field);
  RegionBrackets brackets = PlaceSeedLines(field, NctFormat().seeds);
  SeparateConferences(brackets);
  WriteSeeds(store, brackets, PickSites(session));
  for (int i = 0; i < kOpeningDays; ++i) {
    const RegionRound& round = NctFormat().rounds[static_cast<size_t>(i)];
    AddNationalDay(session, Nct(), {round.week, round.day});
  }
  return true;
}

}  // namespace courtmere
