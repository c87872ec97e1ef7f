#include "screens/bracket_view.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "league/bracket_slots.h"
#include "league/bracket_table.h"
#include "league/conf_tourney.h"
#include "league/national_rounds.h"
#include "league/nct_sites.h"
#include "schedule/preseason_tournaments.h"
#include "store/store.h"

namespace courtmere {

namespace {

using Slots = std::map<int, SlotRow>;
using SeedOf = std::map<std::string, int>;

BracketSide SideOf(const Slots& slots, int slot, const SeedOf& seeds) {
  BracketSide side;
  const auto it = slots.find(slot);
  if (it == slots.end()) return side;
  side.school = it->second.school;
  const auto seed = seeds.find(side.school);
  if (seed != seeds.end()) side.seed = seed->second;
  side.points = it->second.points;
  side.bold = it->second.bold == 1;
  return side;
}

BracketMatch MatchOf(const Slots& home, int homeSlot, const Slots& away, int awaySlot,
                     const SeedOf& seeds, std::string site = {}) {
  return {SideOf(home, homeSlot, seeds), SideOf(away, awaySlot, seeds), std::move(site)};
}

std::string When(std::string_view day, int week) {
  return fmt::format("{}, week {}", day, week);
}

std::string ChampionOf(const Slots& slots, int slot) {
  const auto it = slots.find(slot);
  return it == slots.end() ? std::string() : it->second.school;
}

// ---- Conference tournaments ----

// Thursday's games, when the field has any, are the first round and
// Friday's the second; a field of 8 starts on Friday with its first round.
const char* ConfRoundTitle(std::string_view day, bool firstRound) {
  if (day == "Saturday") return "Semifinals";
  if (day == "Sunday") return "Final";
  return firstRound ? "First round" : "Second round";
}

// ---- National tournaments ----

// The seeds of every region's teams, by school.
SeedOf NationalSeeds(const std::map<std::string, Slots>& regions, const NationalFormat& format) {
  SeedOf seeds;
  for (const auto& [group, slots] : regions) {
    for (int seed = 1; seed <= format.seeds; ++seed) {
      const auto it = slots.find(format.firstSeedSlot + seed - 1);
      if (it != slots.end()) seeds[it->second.school] = seed;
    }
  }
  return seeds;
}

std::string NationalRoundTitle(const NationalFormat& format, const RegionRound& round) {
  if (round.firstTarget == kRegionChampionSlot) return "Regional final";
  if (round.firstTarget == 41) return "Regional semifinals";
  const int lastSeedSlot = format.firstSeedSlot + format.seeds - 1;
  return round.pairs.front().home <= lastSeedSlot ? "First round" : "Second round";
}

// The NCT's site of a regional game: the first weekend at the site of the
// half the home slot comes from, the later rounds at the regional site.
std::string RegionalSite(const NationalTourney& tourney, const NctSites& sites, int region,
                         const RegionRound& round, const SlotPair& pair, const Slots& slots) {
  if (!tourney.table.hasHost) return {};
  if (round.firstTarget >= 41) return sites.regions[static_cast<size_t>(region)].regional;
  const auto it = slots.find(pair.home);
  return it == slots.end() ? std::string() : it->second.host;
}

BracketSection RegionSection(const NationalTourney& tourney, const NctSites& sites,
                             std::string_view region, const Slots& slots, const SeedOf& seeds) {
  const NationalFormat& f = tourney.format;
  BracketSection section{fmt::format("{} region", region), {}};
  for (const RegionRound& round : f.rounds) {
    if (std::find(round.regions.begin(), round.regions.end(), region) == round.regions.end()) {
      continue;
    }
    BracketRound r{NationalRoundTitle(f, round), When(round.day, round.week), {}};
    for (const SlotPair& pair : round.pairs) {
      r.games.push_back(
          MatchOf(slots, pair.home, slots, pair.away, seeds,
                  RegionalSite(tourney, sites, RegionIndex(region), round, pair, slots)));
    }
    section.rounds.push_back(std::move(r));
  }
  return section;
}

BracketSection FinalsSection(const NationalTourney& tourney, const NctSites& sites,
                             const std::map<std::string, Slots>& regions, const Slots& finals,
                             const SeedOf& seeds) {
  const NationalFormat& f = tourney.format;
  const std::string site = tourney.table.hasHost ? sites.final : std::string();
  BracketRound semis{"Semifinals", When(f.semifinalDay, f.semifinalWeek), {}};
  for (size_t i = 0; i < kSemifinalSlots.size(); ++i) {
    const Slots& home = regions.at(RegionGroup(f, kRegionsBySite[2 * i]));
    const Slots& away = regions.at(RegionGroup(f, kRegionsBySite[2 * i + 1]));
    // A regional champion's slot holds its semifinal's score.
    BracketMatch match = MatchOf(home, kRegionChampionSlot, away, kRegionChampionSlot, seeds, site);
    semis.games.push_back(std::move(match));
  }
  BracketRound final{
      "Final",
      When(f.finalDay, f.finalWeek),
      {MatchOf(finals, kSemifinalSlots[0], finals, kSemifinalSlots[1], seeds, site)}};
  return {"Final Four", {std::move(semis), std::move(final)}};
}

BracketView NationalView(Store& store, const NationalTourney& tourney, std::string title) {
  const NationalFormat& f = tourney.format;
  std::map<std::string, Slots> regions;
  for (std::string_view region : kRegionsBySite) {
    regions[RegionGroup(f, region)] = ReadGroup(store, tourney.table, RegionGroup(f, region));
  }
  BracketView view{std::move(title), {}, {}, {}};
  if (regions.begin()->second.empty()) return view;
  const SeedOf seeds = NationalSeeds(regions, f);
  const NctSites sites = tourney.table.hasHost ? ReadSites(store) : NctSites{};
  if (!sites.final.empty()) view.subtitle = "Final Four at " + sites.final;
  for (std::string_view region : kRegionsBySite) {
    view.sections.push_back(
        RegionSection(tourney, sites, region, regions.at(RegionGroup(f, region)), seeds));
  }
  const Slots finals = ReadGroup(store, tourney.table, f.finalsGroup);
  view.sections.push_back(FinalsSection(tourney, sites, regions, finals, seeds));
  view.champion = ChampionOf(finals, kChampionSlot);
  return view;
}

// ---- Preseason tournaments ----

struct PreseasonGame {
  std::string day, home, away;
  int homeScore = 0, awayScore = 0;
};

BracketSide PreseasonSide(const std::string& name, int points, bool won, const SeedOf& seeds) {
  BracketSide side;
  if (name.size() > 1 && name[1] == '-') {
    side.pairing = name;
    return side;
  }
  side.school = name;
  const auto seed = seeds.find(name);
  if (seed != seeds.end()) side.seed = seed->second;
  side.points = points;
  side.bold = won;
  return side;
}

const char* PreseasonRoundTitle(std::string_view day) {
  if (day == "Thursday") return "First round";
  if (day == "Friday") return "Semifinals";
  return "Final";
}

}  // namespace

BracketView ConfBracketView(Store& store, const std::string& conference) {
  BracketView view{fmt::format("{} Conference Tournament", conference), {}, {}, {}};
  const Slots slots = ReadGroup(store, kConfTourney, conference);
  if (slots.empty()) return view;
  view.subtitle = "Host: " + slots.begin()->second.host;
  const int field = ConfTourneyField(store, conference);
  SeedOf seeds;
  for (const auto& [slot, row] : slots) {
    if (const int seed = ConfSeedInSlot(slot, field); seed > 0) seeds[row.school] = seed;
  }
  BracketSection section;
  for (std::string_view day : {"Thursday", "Friday", "Saturday", "Sunday"}) {
    const ConfRound& round = *ConfRoundOn(day);
    BracketRound r{ConfRoundTitle(day, section.rounds.empty()), When(day, 16), {}};
    for (const SlotPair& pair : ConfPairsPlayed(round, field)) {
      r.games.push_back(MatchOf(slots, pair.home, slots, pair.away, seeds));
    }
    if (!r.games.empty()) section.rounds.push_back(std::move(r));
  }
  view.sections.push_back(std::move(section));
  view.champion = ChampionOf(slots, kConfChampionSlot);
  return view;
}

BracketView NctBracketView(Store& store) {
  return NationalView(store, Nct(), "NCT");
}

BracketView ActBracketView(Store& store) {
  return NationalView(store, Act(), "ACT");
}

BracketView PreseasonBracketView(Store& store, const std::string& tournament) {
  BracketView view{fmt::format("{} Preseason Tournament", tournament), {}, {}, {}};
  SeedOf seeds;
  for (Rows rows = store.Query(
           "SELECT SchoolName, Seed FROM PreSeasonTourney WHERE HostCity = ? ORDER BY Seed ASC",
           tournament);
       rows.Next();) {
    seeds[rows.Text(0)] = rows.Int(1);
  }
  if (seeds.empty()) return view;
  BracketSection section;
  for (Rows rows = store.Query(
           "SELECT GameDay, HomeTeam, AwayTeam, HomeScore, AwayScore FROM NonConfSchedule "
           "WHERE Week = 1 AND (GameType = ? OR GameType = ?) ORDER BY GameNo ASC",
           tournament, tournament + std::string(kTempSuffix));
       rows.Next();) {
    const std::string day = rows.Text(0);
    const int home = rows.Int(3);
    const int away = rows.Int(4);
    if (section.rounds.empty() || section.rounds.back().when != When(day, 1)) {
      section.rounds.push_back({PreseasonRoundTitle(day), When(day, 1), {}});
    }
    const bool played = home != 0;
    section.rounds.back().games.push_back(
        {PreseasonSide(rows.Text(1), home, played && home > away, seeds),
         PreseasonSide(rows.Text(2), away, played && away > home, seeds),
         {}});
  }
  if (!section.rounds.empty() && section.rounds.back().title == std::string("Final")) {
    const BracketMatch& final = section.rounds.back().games.front();
    if (final.home.bold) view.champion = final.home.school;
    if (final.away.bold) view.champion = final.away.school;
  }
  view.sections.push_back(std::move(section));
  return view;
}

}  // namespace courtmere
