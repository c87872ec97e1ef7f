#include "league/national_rounds.h"

#include <fmt/format.h>

#include <array>

#include "league/head_coach.h"
#include "league/nct_sites.h"
#include "league/tourney_history.h"
#include "schedule/calendar_slots.h"
#include "schedule/game_counter.h"
#include "schedule/schedule_error.h"
#include "store/session.h"

namespace courtmere {

namespace {

// The NCT champion's Winner rises by 2 (1 + 2 = 3 for a conference
// champion). A Winner of 2 or more has had its rise: the close may run again.
void RaiseWinner(Store& store, const std::string& school) {
  for (const char* table : {"Team", "ScrubTeam"}) {
    store.Exec(
        fmt::format("UPDATE {} SET Winner = Winner + 2 WHERE SchoolName = ? AND Winner < 2", table),
        school);
  }
}

void MarkActWinner(Store& store, const std::string& school) {
  for (const char* table : {"Team", "ScrubTeam"}) {
    store.Exec(fmt::format("UPDATE {} SET ACTWinner = 1 WHERE SchoolName = ?", table), school);
  }
}

const NationalTourney kNct{NctFormat(), kNctTourney, "NCTHistory", "NCTFinalFour", RaiseWinner};
const NationalTourney kAct{ActFormat(), kActTourney, "ACTHistory", "ACTFinalFour", MarkActWinner};

bool Is(DayRef ref, int week, std::string_view day) {
  return ref.week == week && ref.day == day;
}

// The NCT's later rounds are played at the region's regional site and the
// Final Four at none; its first weekend, and every ACT game, keep the home
// slot's.
std::optional<std::string> TargetHost(const NationalTourney& tourney, const NctSites& sites,
                                      std::string_view region, int target) {
  if (!tourney.table.hasHost) return std::nullopt;
  if (region.empty()) return std::string();
  if (target >= 41) return sites.regions[static_cast<size_t>(RegionIndex(region))].regional;
  return std::nullopt;
}

void AddRegionGames(Store& store, const NationalTourney& tourney, const RegionRound& round,
                    std::vector<BracketGame>& games) {
  const NctSites sites = tourney.table.hasHost ? ReadSites(store) : NctSites{};
  for (std::string_view region : round.regions) {
    const std::string group = RegionGroup(tourney.format, region);
    int target = round.firstTarget;
    for (const SlotPair& pair : round.pairs) {
      games.push_back({{group, pair.home},
                       {group, pair.away},
                       {group, target},
                       group,
                       TargetHost(tourney, sites, region, target)});
      ++target;
    }
  }
}

void AddSemifinals(const NationalTourney& tourney, std::vector<BracketGame>& games) {
  const NationalFormat& f = tourney.format;
  const std::string finals(f.finalsGroup);
  for (size_t i = 0; i < kSemifinalSlots.size(); ++i) {
    games.push_back({{RegionGroup(f, kRegionsBySite[2 * i]), kRegionChampionSlot},
                     {RegionGroup(f, kRegionsBySite[2 * i + 1]), kRegionChampionSlot},
                     {finals, kSemifinalSlots[i]},
                     std::string(f.semifinalType),
                     TargetHost(tourney, {}, {}, kSemifinalSlots[i])});
  }
}

void AddFinal(const NationalTourney& tourney, std::vector<BracketGame>& games) {
  const NationalFormat& f = tourney.format;
  const std::string finals(f.finalsGroup);
  games.push_back({{finals, kSemifinalSlots[0]},
                   {finals, kSemifinalSlots[1]},
                   {finals, kChampionSlot},
                   std::string(f.finalType),
                   TargetHost(tourney, {}, {}, kChampionSlot)});
}

// The regional champions, Midwest, South, East, West.
std::array<std::string, 4> RegionChampions(Store& store, const NationalTourney& tourney) {
  std::array<std::string, 4> schools;
  for (size_t i = 0; i < kRegionsBySite.size(); ++i) {
    const std::optional<SlotRow> row = ReadSlot(
        store, tourney.table, RegionGroup(tourney.format, kRegionsBySite[i]), kRegionChampionSlot);
    if (row) schools[i] = row->school;
  }
  return schools;
}

void MarkFinalFour(Store& store, const NationalTourney& tourney) {
  for (const std::string& school : RegionChampions(store, tourney)) {
    if (school.empty()) continue;
    for (const char* table : {"Team", "ScrubTeam"}) {
      store.Exec(
          fmt::format("UPDATE {} SET {} = 1 WHERE SchoolName = ?", table, tourney.finalFourColumn),
          school);
    }
  }
}

void Close(Session& session, const NationalTourney& tourney) {
  Store& store = session.Db();
  const std::optional<std::string> champion = NationalChampion(store, tourney);
  if (!champion) return;
  tourney.markChampion(store, *champion);
  WriteFinalFour(store, tourney.history, LoadConfig(store).CurrYear,
                 RegionChampions(store, tourney), *champion);
}

// Writes the rounds that follow `played`, with the Final Four's marks when
// the semifinals are among them.
void WriteNextRounds(Session& session, const NationalTourney& tourney, int week,
                     std::string_view day) {
  const NationalFormat& f = tourney.format;
  for (const RoundLink& link : f.links) {
    if (!Is(link.played, week, day)) continue;
    for (const DayRef& next : link.writes) {
      if (next.week == 0) continue;
      AddNationalDay(session, tourney, next);
      if (Is(next, f.semifinalWeek, f.semifinalDay)) MarkFinalFour(session.Db(), tourney);
    }
  }
}

}  // namespace

const NationalTourney& Nct() {
  return kNct;
}

const NationalTourney& Act() {
  return kAct;
}

std::string PostseasonScheduleTable(Store& store) {
  const std::string conference = HumanConference(store);
  const std::optional<int64_t> id =
      store.ScalarInt("SELECT Id FROM League WHERE Conference = ?", conference);
  if (!id) throw ScheduleError("The user's school stands in no conference of the league.");
  return ConferenceTable(static_cast<int>(*id));
}

std::string RegionGroup(const NationalFormat& format, std::string_view region) {
  return std::string(format.prefix) + std::string(region);
}

std::vector<BracketGame> NationalGamesOn(Store& store, const NationalTourney& tourney, int week,
                                         std::string_view day) {
  const NationalFormat& f = tourney.format;
  std::vector<BracketGame> games;
  for (const RegionRound& round : f.rounds) {
    if (round.week == week && round.day == day) AddRegionGames(store, tourney, round, games);
  }
  if (week == f.semifinalWeek && day == f.semifinalDay) AddSemifinals(tourney, games);
  if (week == f.finalWeek && day == f.finalDay) AddFinal(tourney, games);
  return games;
}

void AddNationalDay(Session& session, const NationalTourney& tourney, DayRef day) {
  Store& store = session.Db();
  const std::vector<BracketGame> games = NationalGamesOn(store, tourney, day.week, day.day);
  GameCounter counter = ContinueCounter(store);
  if (AddBracketGames(store, counter, tourney.table, PostseasonScheduleTable(store), day.week,
                      day.day, games) > 0) {
    SaveGameCounter(session, counter);
  }
}

void RecordNationalDay(Session& session, const NationalTourney& tourney, int week,
                       std::string_view day) {
  Store& store = session.Db();
  const std::vector<BracketGame> games = NationalGamesOn(store, tourney, week, day);
  if (games.empty()) return;
  RecordBracketGames(store, tourney.table, PostseasonScheduleTable(store), week, day, games);
  WriteNextRounds(session, tourney, week, day);
  if (week == tourney.format.finalWeek && day == tourney.format.finalDay) Close(session, tourney);
}

std::optional<std::string> NationalChampion(Store& store, const NationalTourney& tourney) {
  const std::optional<SlotRow> row =
      ReadSlot(store, tourney.table, tourney.format.finalsGroup, kChampionSlot);
  if (!row) return std::nullopt;
  return row->school;
}

}  // namespace courtmere
