#include "league/conf_tourney.h"

#include <fmt/format.h>

#include <charconv>
#include <optional>
#include <vector>

#include "league/bracket_games.h"
#include "league/bracket_slots.h"
#include "schedule/calendar_slots.h"
#include "schedule/game_counter.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kTourneyWeek = 16;
constexpr std::string_view kTourneyGame = "Tournament";

struct StandingRow {
  std::string school;
  std::string division;
};

// The conference in order of standing. Only conference wins and then total
// wins decide; a tie beyond them keeps the order of the TeamStats rows.
std::vector<StandingRow> StandingOrder(Store& store, const std::string& conference) {
  std::vector<StandingRow> rows;
  for (Rows r = store.Query("SELECT TeamStats.SchoolName, Division FROM TeamStats, Team "
                            "WHERE Conference = ? AND TeamStats.SchoolName = Team.SchoolName "
                            "ORDER BY ConfWins DESC, TotalWins DESC, TeamStats.rowid",
                            conference);
       r.Next();) {
    rows.push_back({r.Text(0), r.Text(1)});
  }
  return rows;
}

// The schools by seed, seed 1 first. With divisions the first team of the
// other division is seed 2, whatever the records of the teams between.
std::vector<std::string> SeedOrder(const std::vector<StandingRow>& rows) {
  std::vector<std::string> seeds;
  if (rows.empty()) return seeds;
  std::vector<bool> taken(rows.size(), false);
  seeds.push_back(rows[0].school);
  taken[0] = true;
  if (rows[0].division != "None") {
    for (size_t i = 1; i < rows.size(); ++i) {
      if (rows[i].division != rows[0].division) {
        seeds.push_back(rows[i].school);
        taken[i] = true;
        break;
      }
    }
  }
  for (size_t i = 1; i < rows.size(); ++i) {
    if (!taken[i]) seeds.push_back(rows[i].school);
  }
  return seeds;
}

int ParseSize(const std::string& size) {
  int value = 0;
  const auto [end, error] = std::from_chars(size.data(), size.data() + size.size(), value);
  return error == std::errc() && end == size.data() + size.size() ? value : 0;
}

// False, after telling the user, when no bracket can be drawn for the field.
bool FieldFits(Session& session, const std::string& conference, const std::string& size,
               int field) {
  if (field < kConfSmallestField || field > kConfLargestField) {
    session.ui.Message(fmt::format(
        "The {} Conference Tournament cannot be set up: the conference has {} teams, and a "
        "tournament takes 8 to 14.",
        conference, field));
    return false;
  }
  if (ParseSize(size) != field) {
    session.ui.Message(fmt::format(
        "The {} Conference Tournament cannot be set up: the conference has {} teams, and its "
        "schedule is made for {}.",
        conference, field, size));
    return false;
  }
  return true;
}

struct LeagueEntry {
  std::string table;
  int field = 0;
};

std::optional<LeagueEntry> FindLeague(Store& store, const std::string& conference) {
  Rows rows = store.Query("SELECT Id, SchedType FROM League WHERE Conference = ?", conference);
  if (!rows.Next()) return std::nullopt;
  return LeagueEntry{ConferenceTable(rows.Int(0)), ParseSize(ConfTourneySize(rows.Text(1)))};
}

std::vector<BracketGame> RoundGames(const std::string& conference, const ConfRound& round,
                                    int field) {
  std::vector<BracketGame> games;
  int target = round.firstTarget;
  for (const SlotPair& pair : ConfPairsPlayed(round, field)) {
    games.push_back({{conference, pair.home},
                     {conference, pair.away},
                     {conference, target++},
                     std::string(kTourneyGame),
                     std::nullopt});
  }
  return games;
}

void AddRound(Session& session, const LeagueEntry& league, const std::string& conference,
              const ConfRound& round) {
  GameCounter counter = ContinueCounter(session.Db());
  const std::vector<BracketGame> games = RoundGames(conference, round, league.field);
  if (AddBracketGames(session.Db(), counter, kConfTourney, league.table, kTourneyWeek, round.day,
                      games) > 0) {
    SaveGameCounter(session, counter);
  }
}

}  // namespace

int ConfTourneyField(Store& store, const std::string& conference) {
  const std::optional<LeagueEntry> league = FindLeague(store, conference);
  return league ? league->field : 0;
}

std::string ConfTourneySize(std::string_view schedType) {
  return std::string(schedType.substr(0, 2));
}

void SetupConfTourney(Session& session, const std::string& conference, const std::string& size) {
  Store& store = session.Db();
  const std::optional<LeagueEntry> league = FindLeague(store, conference);
  if (!league) return;
  if (store.ScalarInt("SELECT count(*) FROM ConfTourney WHERE Conference = ?", conference)
          .value_or(0) > 0) {
    return;
  }
  const std::vector<StandingRow> standing = StandingOrder(store, conference);
  const int field = static_cast<int>(standing.size());
  if (!FieldFits(session, conference, size, field)) return;
  const std::string& host = standing.front().school;
  const std::vector<std::string> seeds = SeedOrder(standing);
  for (int seed = 1; seed <= field; ++seed) {
    InsertSlot(store, kConfTourney, conference, ConfSeedSlot(seed, field),
               seeds[static_cast<size_t>(seed - 1)], host);
  }
  AddRound(session, {league->table, field}, conference, *ConfRoundOn(kThursday));
}

void AdvanceConfTourney(Session& session, const std::string& conference, int week,
                        const std::string& day) {
  Store& store = session.Db();
  const ConfRound* round = ConfRoundOn(day);
  const std::optional<LeagueEntry> league = FindLeague(store, conference);
  if (round == nullptr || !league) return;
  const std::vector<BracketGame> games = RoundGames(conference, *round, league->field);
  RecordBracketGames(store, kConfTourney, league->table, week, day, games);
  if (const ConfRound* next = ConfRoundAfter(day)) {
    AddRound(session, *league, conference, *next);
    return;
  }
  if (const std::optional<SlotRow> champion =
          ReadSlot(store, kConfTourney, conference, kConfChampionSlot)) {
    // A title already raised by the NCT stays as it is when the day is taken again.
    store.Exec("UPDATE Team SET Winner = 1 WHERE SchoolName = ? AND Winner = 0", champion->school);
  }
}

}  // namespace courtmere
