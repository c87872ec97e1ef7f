#include "screens/bracket_view.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <span>

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
                     int winnerSlot, const SeedOf& seeds, std::string site = {}) {
  return {SideOf(home, homeSlot, seeds),
          SideOf(away, awaySlot, seeds),
          std::move(site),
          homeSlot,
          awaySlot,
          winnerSlot};
}

// The connectors drawn from the slots, then the section.
BracketSection Section(std::string title, std::vector<BracketRound> rounds) {
  std::vector<BracketConnector> connectors = ConnectorsOf(rounds);
  return {std::move(title), std::move(rounds), std::move(connectors)};
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

// A round played over two days (the NCT's first and second rounds, the
// ACT's first) is one column: its second day joins the first's.
BracketRound& RoundFor(std::vector<BracketRound>& rounds, const std::string& title,
                       const RegionRound& day) {
  if (!rounds.empty() && rounds.back().title == title) {
    BracketRound& round = rounds.back();
    round.when = fmt::format("{} and {}", round.when.substr(0, round.when.find(',')),
                             When(day.day, day.week));
    return round;
  }
  rounds.push_back({title, When(day.day, day.week), {}});
  return rounds.back();
}

BracketSection RegionSection(const NationalTourney& tourney, const NctSites& sites,
                             std::string_view region, const Slots& slots, const SeedOf& seeds) {
  const NationalFormat& f = tourney.format;
  std::vector<BracketRound> rounds;
  for (const RegionRound& day : f.rounds) {
    if (std::find(day.regions.begin(), day.regions.end(), region) == day.regions.end()) {
      continue;
    }
    BracketRound& r = RoundFor(rounds, NationalRoundTitle(f, day), day);
    for (size_t i = 0; i < day.pairs.size(); ++i) {
      const SlotPair& pair = day.pairs[i];
      r.games.push_back(
          MatchOf(slots, pair.home, slots, pair.away, day.firstTarget + static_cast<int>(i), seeds,
                  RegionalSite(tourney, sites, RegionIndex(region), day, pair, slots)));
    }
  }
  return Section(fmt::format("{} region", region), std::move(rounds));
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
    semis.games.push_back(MatchOf(home, kRegionChampionSlot, away, kRegionChampionSlot,
                                  kSemifinalSlots[i], seeds, site));
  }
  BracketRound final{"Final",
                     When(f.finalDay, f.finalWeek),
                     {MatchOf(finals, kSemifinalSlots[0], finals, kSemifinalSlots[1], kChampionSlot,
                              seeds, site)}};
  return Section("Final Four", {std::move(semis), std::move(final)});
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

// The preseason's games in the slots described in the header: Thursday's by
// the home seed, Friday's and Sunday's in the order of their game numbers.
struct PreseasonRound {
  const char* day;
  const char* title;
  std::array<SlotPair, 4> pairs;
  std::array<int, 4> winnerSlots;
  int games;
};

constexpr std::array<PreseasonRound, 3> kPreseasonRounds = {{
    {"Thursday", "First round", {{{1, 8}, {2, 7}, {3, 6}, {4, 5}}}, {11, 13, 14, 12}, 4},
    {"Friday", "Semifinals", {{{11, 12}, {13, 14}}}, {21, 22}, 2},
    {"Sunday", "Final", {{{21, 22}}}, {31}, 1},
}};

struct PreseasonRow {
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

// The index of a row's game in its round: Thursday's by the home seed (1 to
// 4 are at home), the later days' by their order.
int PreseasonGameIndex(const PreseasonRow& row, int orderInDay, const SeedOf& seeds) {
  if (row.day != "Thursday") return orderInDay;
  const auto seed = seeds.find(row.home);
  return seed == seeds.end() ? -1 : seed->second - 1;
}

std::vector<BracketRound> PreseasonRounds(const std::vector<PreseasonRow>& rows,
                                          const SeedOf& seeds) {
  std::vector<BracketRound> rounds;
  for (const PreseasonRound& shape : kPreseasonRounds) {
    BracketRound round{shape.title, When(shape.day, 1), {}};
    for (int i = 0; i < shape.games; ++i) {
      round.games.push_back(
          {{}, {}, {}, shape.pairs[i].home, shape.pairs[i].away, shape.winnerSlots[i]});
    }
    int order = 0;
    for (const PreseasonRow& row : rows) {
      if (row.day != shape.day) continue;
      const int index = PreseasonGameIndex(row, order++, seeds);
      if (index < 0 || index >= shape.games) continue;
      const bool played = row.homeScore != 0;
      BracketMatch& game = round.games[static_cast<size_t>(index)];
      game.home =
          PreseasonSide(row.home, row.homeScore, played && row.homeScore > row.awayScore, seeds);
      game.away =
          PreseasonSide(row.away, row.awayScore, played && row.awayScore > row.homeScore, seeds);
    }
    rounds.push_back(std::move(round));
  }
  return rounds;
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
  std::vector<BracketRound> rounds;
  for (std::string_view day : {"Thursday", "Friday", "Saturday", "Sunday"}) {
    const ConfRound& round = *ConfRoundOn(day);
    BracketRound r{ConfRoundTitle(day, rounds.empty()), When(day, 16), {}};
    const std::span<const SlotPair> pairs = ConfPairsPlayed(round, field);
    for (size_t i = 0; i < pairs.size(); ++i) {
      r.games.push_back(MatchOf(slots, pairs[i].home, slots, pairs[i].away,
                                round.firstTarget + static_cast<int>(i), seeds));
    }
    if (!r.games.empty()) rounds.push_back(std::move(r));
  }
  view.sections.push_back(Section("", std::move(rounds)));
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
  std::vector<PreseasonRow> rows;
  for (Rows r = store.Query(
           "SELECT GameDay, HomeTeam, AwayTeam, HomeScore, AwayScore FROM NonConfSchedule "
           "WHERE Week = 1 AND (GameType = ? OR GameType = ?) ORDER BY GameNo ASC",
           tournament, tournament + std::string(kTempSuffix));
       r.Next();) {
    rows.push_back({r.Text(0), r.Text(1), r.Text(2), r.Int(3), r.Int(4)});
  }
  BracketSection section = Section("", PreseasonRounds(rows, seeds));
  const BracketMatch& final = section.rounds.back().games.front();
  if (final.home.bold) view.champion = final.home.school;
  if (final.away.bold) view.champion = final.away.school;
  view.sections.push_back(std::move(section));
  return view;
}

// ---- Connectors and layout ----

std::vector<BracketConnector> ConnectorsOf(const std::vector<BracketRound>& rounds) {
  std::vector<BracketConnector> connectors;
  for (size_t r = 1; r < rounds.size(); ++r) {
    const std::vector<BracketMatch>& before = rounds[r - 1].games;
    for (size_t g = 0; g < rounds[r].games.size(); ++g) {
      const BracketMatch& game = rounds[r].games[g];
      for (const bool home : {true, false}) {
        const int slot = home ? game.homeSlot : game.awaySlot;
        for (size_t f = 0; slot > 0 && f < before.size(); ++f) {
          if (before[f].winnerSlot != slot) continue;
          connectors.push_back({static_cast<int>(r - 1), static_cast<int>(f), static_cast<int>(r),
                                static_cast<int>(g), home});
        }
      }
    }
  }
  return connectors;
}

namespace {

struct Placer {
  const BracketSection& section;
  BracketLayout layout;

  void Place(int round, int game) {
    double& row = layout.rows[static_cast<size_t>(round)][static_cast<size_t>(game)];
    if (row >= 0) return;
    std::vector<double> fed;
    for (const bool home : {true, false}) {
      for (const BracketConnector& c : section.connectors) {
        if (c.toRound != round || c.toGame != game || c.toHome != home) continue;
        Place(c.fromRound, c.fromGame);
        fed.push_back(
            layout.rows[static_cast<size_t>(c.fromRound)][static_cast<size_t>(c.fromGame)]);
      }
    }
    if (fed.empty()) {
      row = layout.rowCount++;
      return;
    }
    row = (fed.front() + fed.back()) / 2;
  }
};

}  // namespace

BracketLayout LayOut(const BracketSection& section) {
  Placer placer{section, {}};
  for (const BracketRound& round : section.rounds) {
    placer.layout.rows.emplace_back(round.games.size(), -1.0);
  }
  // From the last round back, so each game's feeders take their rows first;
  // a game that feeds nothing later is placed where it comes.
  for (int r = static_cast<int>(section.rounds.size()) - 1; r >= 0; --r) {
    for (int g = 0; g < static_cast<int>(section.rounds[static_cast<size_t>(r)].games.size());
         ++g) {
      placer.Place(r, g);
    }
  }
  return placer.layout;
}

}  // namespace courtmere
