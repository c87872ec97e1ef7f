#include "people/league_fixture.h"

#include "store/blank_store.h"

namespace courtmere::testing {

LeagueFixture::LeagueFixture(uint64_t seed) {
  session_ = std::make_unique<Session>(ProgramFolder(dir_.Path()), Rng(seed), ui_);
  BuildBlankStore(session_->folder.Store());
  session_->store = std::make_unique<Store>(session_->folder.Store());
  FillSeedPools();
}

void LeagueFixture::FillSeedPools() {
  Store& s = store();
  if (s.RowCount("FName") == 0) {
    for (int i = 1; i <= 40; ++i)
      s.Append("FName", {{"Id", int64_t{i}}, {"FirstName", "Fn" + std::to_string(i)}});
  }
  if (s.RowCount("LName") == 0) {
    for (int i = 1; i <= 40; ++i)
      s.Append("LName", {{"Id", int64_t{i}}, {"LastName", "Ln" + std::to_string(i)}});
  }
  if (s.RowCount("HighSchool") == 0) {
    for (const char* region : {"West", "Midwest", "East", "South"}) {
      for (int i = 1; i <= 8; ++i) {
        s.Append("HighSchool", {{"Region", region},
                                {"HighSchool", std::string(region) + " High " + std::to_string(i)},
                                {"HomeTown", "Town" + std::to_string(i)},
                                {"State", "KS"},
                                {"Area", "KS"}});
      }
    }
  }
}

void LeagueFixture::AddTeam(const std::string& school, const std::string& region, int prestige,
                            const std::string& owner) {
  store().Append("Team", {{"SchoolName", school},
                          {"Region", region},
                          {"InitialPrestige", int64_t{prestige}},
                          {"Prestige", double(prestige)},
                          {"Owner", owner}});
}

void LeagueFixture::AddScrubTeam(const std::string& school, int prestige) {
  store().Append("ScrubTeam", {{"SchoolName", school},
                               {"Region", "East"},
                               {"InitialPrestige", int64_t{prestige}},
                               {"Prestige", double(prestige)}});
}

void LeagueFixture::AddScout(const std::string& team, int skill) {
  store().Append("Scout", {{"Name", "Scout " + team},
                           {"Team", team},
                           {"Potential", int64_t{skill}},
                           {"Scoring", int64_t{skill}},
                           {"Defending", int64_t{skill}},
                           {"Rebounding", int64_t{skill}},
                           {"Handling", int64_t{skill}}});
}

int LeagueFixture::AddPlayer(const std::string& team, int position, double overall,
                             const std::string& year) {
  const int id = nextId_++;
  store().Append("Player", {{"Id", int64_t{id}},
                            {"Name", "Test Player" + std::to_string(id)},
                            {"Team", team},
                            {"PlayerYear", year},
                            {"PlayerPosition", int64_t{position}},
                            {"Height", "6-6"},
                            {"Reach", int64_t{78}},
                            {"Health", "Good"},
                            {"Overall", overall},
                            {"ScoutOverall", overall}});
  return id;
}

}  // namespace courtmere::testing
