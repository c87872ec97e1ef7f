#include "engine_fixture.h"

#include "platform/numeric.h"
#include "store/blank_store.h"

namespace courtmere::testing {

EngineFixture::EngineFixture(uint64_t seed, int rosterSize) {
  session_ = std::make_unique<Session>(ProgramFolder(dir_.Path()), Rng(seed), ui_);
  BuildBlankStore(session_->folder.Store());
  session_->store = std::make_unique<Store>(session_->folder.Store());
  session_->config.CurrWeek = 5;
  Store& s = store();
  if (s.RowCount("InjuryList") == 0) {
    for (int i = 1; i <= 60; ++i) {
      s.Append("InjuryList", {{"InjuryID", int64_t{i}},
                              {"InjuryName", "Injury " + std::to_string(i)},
                              {"WeeksOut", int64_t{i % 6 + 1}}});
    }
  }
  AddSchool(kHomeSchool, rosterSize, 62, seed * 31 + 1);
  AddSchool(kAwaySchool, rosterSize, 60, seed * 31 + 2);
}

int EngineFixture::AddPlayerRow(const std::string& table, const std::string& school, int position,
                                int base, Rng& rng) {
  const int id = nextId_++;
  auto rating = [&](int spread) { return int64_t{base - spread / 2 + rng.Roll(spread)}; };
  const int64_t perr = rating(30), post = rating(30), jumping = rating(30), quick = rating(30);
  const int64_t offReb = rating(30), defReb = rating(30), strength = rating(30);
  const int64_t reach = 74 + position * 2 + rng.Roll(4);
  const int64_t block = CInt(0.75 * post + 0.25 * jumping + reach - 76);
  const int64_t steal = CInt(0.75 * perr + 0.25 * quick);
  const int64_t offRebounding =
      CInt(0.75 * jumping + offReb + 0.5 * strength + 0.5 * quick + reach - 76);
  const int64_t defRebounding =
      CInt(0.75 * jumping + defReb + 0.5 * strength + 0.5 * quick + reach - 76);
  const std::string first = "Pl" + std::to_string(id);
  store().Append(table, {{"Id", int64_t{id}},
                         {"Name", first + " Test"},
                         {"AbbrName", "P. " + first},
                         {"PlayerYear", "Junior"},
                         {"Team", school},
                         {"PlayerPosition", int64_t{position}},
                         {"AvoidInjury", rating(40)},
                         {"Health", "Good"},
                         {"Intelligence", rating(30)},
                         {"Jumpshot", rating(30)},
                         {"InScoring", rating(30)},
                         {"Range", int64_t{position <= 3 ? 19 + rng.Roll(5) : 11 + rng.Roll(8)}},
                         {"ThreePoint", rating(30)},
                         {"FreeThrow", int64_t{55 + rng.Roll(35)}},
                         {"PerrDefense", perr},
                         {"PostDefense", post},
                         {"DefReb", defReb},
                         {"OffReb", offReb},
                         {"ShotBlock", block},
                         {"Steal", steal},
                         {"OffRebounding", offRebounding},
                         {"DefRebounding", defRebounding},
                         {"Handling", rating(30)},
                         {"OffAware", rating(30)},
                         {"DefAware", rating(30)},
                         {"Passing", rating(30)},
                         {"Jumping", jumping},
                         {"Quickness", quick},
                         {"Endurance", int64_t{1800 + rng.Roll(350)}},
                         {"Strength", strength},
                         {"Reach", reach},
                         {"Overall", static_cast<double>(base - 10 + rng.Roll(20))}});
  return id;
}

void EngineFixture::SetChart(const std::string& table, const std::string& school,
                             const std::vector<int>& ids) {
  // Starters, then the first and second bench rows by position; a short
  // roster repeats its men in the third row.
  std::vector<int64_t> chart(15, 0);
  for (int n = 0; n < 15; ++n) {
    if (ids.empty()) break;
    const size_t pick = n < static_cast<int>(ids.size()) ? n : n % 10;
    chart[n] = ids[pick < ids.size() ? pick : pick % ids.size()];
  }
  static const char* kColumns[] = {"PG1", "SG1", "SF1", "PF1", "C1",  "PG2", "SG2", "SF2",
                                   "PF2", "C2",  "PG3", "SG3", "SF3", "PF3", "C3"};
  for (int n = 0; n < 15; ++n) {
    store().Exec("UPDATE " + table + " SET " + kColumns[n] + " = ? WHERE SchoolName = ?", chart[n],
                 school);
  }
}

void EngineFixture::AddSchool(const std::string& school, int players, int base, uint64_t seed) {
  Rng rng(seed);
  store().Append("Team", {{"SchoolName", school},
                          {"Region", "East"},
                          {"Conference", "Test"},
                          {"Prestige", 55.0},
                          {"TeamRating", int64_t{470}},
                          {"Owner", "Computer"},
                          {"Tempo", "Normal"},
                          {"OffenseType", "Normal"},
                          {"Defense", "Man"},
                          {"Press", nullptr}});
  store().Append("TeamStats", {{"SchoolName", school}});
  store().Append("Coach", {{"Name", "Off " + school},
                           {"Team", school},
                           {"OffCoach", int64_t{60}},
                           {"DefCoach", int64_t{40}},
                           {"OffPoints", int64_t{1}}});
  store().Append("Coach", {{"Name", "Def " + school},
                           {"Team", school},
                           {"OffCoach", int64_t{40}},
                           {"DefCoach", int64_t{58}},
                           {"DefPoints", int64_t{1}}});
  store().Append("Trainer",
                 {{"Name", "Trainer " + school}, {"Team", school}, {"Ability", int64_t{55}}});
  std::vector<int> ids;
  for (int i = 0; i < players; ++i)
    ids.push_back(AddPlayerRow("Player", school, i % 5 + 1, base, rng));
  SetChart("Team", school, ids);
}

void EngineFixture::AddScrubSchool(const std::string& school, int players, int base,
                                   uint64_t seed) {
  Rng rng(seed);
  store().Append("ScrubTeam", {{"SchoolName", school},
                               {"Region", "East"},
                               {"Prestige", 30.0},
                               {"TeamRating", int64_t{420}},
                               {"OffCoach", int64_t{45}},
                               {"DefCoach", int64_t{45}},
                               {"Trainer", int64_t{40}},
                               {"Tempo", "Normal"},
                               {"OffenseType", "Normal"},
                               {"Defense", "Zone"},
                               {"Press", "None"}});
  std::vector<int> ids;
  for (int i = 0; i < players; ++i) {
    ids.push_back(AddPlayerRow("ScrubPlayer", school, i % 5 + 1, base, rng));
  }
  SetChart("ScrubTeam", school, ids);
}

void EngineFixture::HealEveryone() {
  store().Exec("UPDATE Player SET TimeInjured = 0, Health = 'Good'");
  store().Exec("UPDATE ScrubPlayer SET TimeInjured = 0, Health = 'Good'");
}

int EngineFixture::Play(Game& game, DayResults& day, int batchIndex, bool withLog, bool withFiles,
                        const std::string& home, const std::string& away) {
  GameRequest request;
  request.HomeTeam = home;
  request.AwayTeam = away;
  request.GameType = "Conference";
  request.BatchIndex = batchIndex;
  request.GameNo = 1;
  request.WriteFiles = withFiles;
  std::string box;
  std::string log = withLog ? "log" : "none";
  return RunEngine(game, day, request, box, log);
}

}  // namespace courtmere::testing
