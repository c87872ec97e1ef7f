#include "screens/nonconf_pre_candidates.h"

#include <algorithm>
#include <array>

#include "league/prestige_bands.h"
#include "platform/rng.h"
#include "store/store.h"

namespace courtmere {
namespace {

constexpr size_t kCandidates = 8;
constexpr int kLooks = 200;

// A bound of P / divisor + add.
struct CandidateRule {
  bool background;
  bool atLeast;  // false: the candidate's prestige must be below the bound
  double divisor;
  double add;
};

// Design decision: games 2 and 3 have no upper bound; their value is read as
// a lower bound, so that they offer the stronger opponents.
constexpr std::array<CandidateRule, 8> kRules = {{
    {true, false, 2, 10},
    {true, true, 1, -15},
    {false, true, 2, 10},
    {false, false, 1, -15},
    {true, false, 3, 20},
    {true, false, 1, 0},
    {false, false, 3, 20},
    {false, false, 1, 0},
}};

const CandidateRule* RuleOf(int position) {
  return position >= 1 && position <= 8 ? &kRules[position - 1] : nullptr;
}

bool Admits(const CandidateRule& rule, double userPrestige, double prestige) {
  const double p = std::max(userPrestige, rule.background ? 40.0 : 50.0);
  const double bound = p / rule.divisor + rule.add;
  return rule.atLeast ? prestige >= bound : prestige < bound;
}

bool InPreseasonTournament(Store& store, const std::string& school) {
  return store
      .ScalarInt(
          "SELECT 1 FROM NonConfSchedule WHERE (HomeTeam = ? OR AwayTeam = ?) AND Week = 1 "
          "AND GameDay = 'Thursday' AND GameType <> 'NonConference' LIMIT 1",
          school, school)
      .has_value();
}

bool Contains(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

struct Candidate {
  double prestige;
  std::string school;
  std::string conference;
};

// The schools a rule walks, strongest first. First-division schools of the
// user's conference and his present opponents are never listed.
std::vector<Candidate> Pool(Store& store, const PreConferenceContext& context, bool background) {
  const std::string column(context.user.column);
  const std::string sql = background
                              ? "SELECT InitialPrestige, SchoolName, Conference FROM ScrubTeam "
                                "ORDER BY InitialPrestige DESC"
                              : "SELECT " + column +
                                    ", SchoolName, Conference FROM Team WHERE SchoolName <> ? AND "
                                    "Conference <> ? ORDER BY " +
                                    column + " DESC";
  std::vector<Candidate> pool;
  Rows rows =
      background ? store.Query(sql) : store.Query(sql, context.team, context.user.conference);
  while (rows.Next()) {
    Candidate c{rows.Double(0), rows.Text(1), rows.Text(2)};
    if (background || !Contains(context.presentOpponents, c.school)) pool.push_back(std::move(c));
  }
  return pool;
}

bool Refused(Store& store, int position, const std::string& school) {
  return position <= 2 && InPreseasonTournament(store, school);
}

}  // namespace

std::vector<NonConfChoice> PreConferenceCandidates(Store& store, Rng& rng,
                                                   const PreConferenceContext& context,
                                                   int position,
                                                   const std::vector<NonConfChoice>& listed) {
  std::vector<NonConfChoice> candidates;
  const CandidateRule* rule = RuleOf(position);
  if (rule == nullptr) return candidates;
  const std::vector<Candidate> pool = Pool(store, context, rule->background);
  const size_t start = rule->background ? static_cast<size_t>(rng.Roll(7) - 1) : 0;
  auto isListed = [&](const std::string& school) {
    auto same = [&](const NonConfChoice& c) { return c.School == school; };
    return std::any_of(listed.begin(), listed.end(), same) ||
           std::any_of(candidates.begin(), candidates.end(), same);
  };
  for (size_t i = start; i < pool.size() && i < start + kLooks; ++i) {
    const Candidate& c = pool[i];
    if (!Admits(*rule, context.user.prestige, c.prestige) || isListed(c.school) ||
        Refused(store, position, c.school)) {
      continue;
    }
    candidates.push_back({c.school, c.conference, BandOf(c.prestige).Label});
    if (candidates.size() == kCandidates) break;
  }
  return candidates;
}

bool FitsPreConferenceGame(Store& store, const PreConferenceContext& context, int position,
                           const std::string& school) {
  const CandidateRule* rule = RuleOf(position);
  if (rule == nullptr) return false;
  for (const Candidate& c : Pool(store, context, rule->background)) {
    if (c.school == school) {
      return Admits(*rule, context.user.prestige, c.prestige) && !Refused(store, position, school);
    }
  }
  return false;
}

}  // namespace courtmere
