#include "league/act.h"

#include <fmt/format.h>

#include "league/bracket_slots.h"
#include "league/bracket_table.h"
#include "league/national_rounds.h"
#include "league/region_placement.h"
#include "league/tourney_error.h"
#include "league/tourney_history.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kActCandidates = 49;

bool InNct(Store& store, const std::string& school) {
  return store.ScalarInt("SELECT count(*) FROM NCTTourney WHERE SchoolName = ?", school)
             .value_or(0) > 0;
}

}  // namespace

std::vector<Entrant> SelectActField(Store& store, int year) {
  std::vector<Entrant> candidates = PollCandidates(
      store, kActCandidates, [&](const std::string& school) { return InNct(store, school); });
  ScoreAndSort(store, candidates);
  WriteBubble(store, "ACTHistory", year, candidates, kActField);
  if (static_cast<int>(candidates.size()) < kActField) {
    throw TourneyError(fmt::format(
        "The ACT cannot be selected: the poll holds {} schools outside the NCT for its 32 places.",
        candidates.size()));
  }
  candidates.resize(kActField);
  return candidates;
}

bool SetupAct(Session& session) {
  Store& store = session.Db();
  if (store.RowCount("ACTTourney") > 0) return false;
  std::vector<Entrant> field = SelectActField(store, LoadConfig(store).CurrYear);
  ReadHomes(store, field);
  const NationalFormat& format = ActFormat();
  const RegionBrackets brackets = PlaceSeedLines(field, format.seeds);
  for (size_t r = 0; r < brackets.size(); ++r) {
    for (int seed = 1; seed <= format.seeds; ++seed) {
      InsertSlot(store, kActTourney, RegionGroup(format, kRegions[r]),
                 format.firstSeedSlot + seed - 1, brackets[r][static_cast<size_t>(seed)].school,
                 {});
    }
  }
  for (int i = 0; i < kOpeningDays; ++i) {
    const RegionRound& round = format.rounds[static_cast<size_t>(i)];
    AddNationalDay(session, Act(), {round.week, round.day});
  }
  return true;
}

}  // namespace courtmere
