#include "history/tourney_result.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "store/store.h"

namespace courtmere {

namespace {

// The NCT's seeds stand in slots 1 to 16; a winner goes on under the
// school's name alone into the slots above, so those rows are its wins.
constexpr int kLastNctSeedSlot = 16;
constexpr int kTitleWins = 6;

int SeedOf(Store& store, const char* table, const std::string& school,
           const std::string& conference) {
  return static_cast<int>(
      store
          .ScalarInt(fmt::format("SELECT Seed FROM {} WHERE SchoolName = ? AND Conference <> ? "
                                 "ORDER BY Id LIMIT 1",
                                 table),
                     school, conference)
          .value_or(0));
}

std::string ActSummary(int rows) {
  static constexpr std::array<const char*, 7> kLines = {"",
                                                        "Made the ACT",
                                                        "Won a game in the ACT",
                                                        "Solid showing in the ACT",
                                                        "Made the ACT Final Four",
                                                        "Made the ACT Finals",
                                                        "Was ACT Champion"};
  return kLines[std::clamp(rows, 0, 6)];
}

std::string Record(int wins, bool champion) {
  return fmt::format("{}-{}", wins, champion ? 0 : 1);
}

}  // namespace

std::string NctSummary(int wins) {
  static constexpr std::array<const char*, 7> kLines = {
      "Made the NCT",         "Won a game in the NCT",   "Made the NCT Sweet 16",
      "Made the NCT Elite 8", "Made the NCT Final Four", "Made the NCT Finals",
      "Was NCT Champion"};
  return kLines[std::clamp(wins, 0, kTitleWins)];
}

TourneyResult ReadTourneyResult(Store& store, const std::string& school,
                                const std::string& conference, TourneyMarks marks) {
  TourneyResult r;
  if (SeedOf(store, "NCTTourney", school, conference) > 0) {
    r.kind = TourneyResult::kNct;
    r.wins = static_cast<int>(
        store
            .ScalarInt("SELECT count(Id) FROM NCTTourney WHERE SchoolName = ? AND Seed > ?", school,
                       kLastNctSeedSlot)
            .value_or(0));
    r.champion = marks.nctChampion;
    r.record = Record(r.wins, r.champion);
    r.summary = NctSummary(r.wins);
    return r;
  }
  if (SeedOf(store, "ACTTourney", school, conference) > 0) {
    // Every row of the school: its seed and one for each win.
    const int rows = static_cast<int>(
        store.ScalarInt("SELECT count(Id) FROM ACTTourney WHERE SchoolName = ?", school)
            .value_or(0));
    r.kind = TourneyResult::kAct;
    r.wins = std::max(rows - 1, 0);
    r.champion = marks.actChampion;
    r.record = Record(r.wins, r.champion);
    r.summary = ActSummary(rows);
  }
  return r;
}

}  // namespace courtmere
