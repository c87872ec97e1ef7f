// A small dynasty for the saved-game tests: two schools of one conference
// with players and scouts, the user's head coach at "St. John's", and the
// menu gate run so the session knows its school.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "people/league_fixture.h"
#include "store/menu_gate.h"

namespace courtmere::testing {

class SmallDynasty {
 public:
  static constexpr const char* kHuman = "St. John's";

  SmallDynasty() {
    league_.AddTeam(kHuman, "East", 60, "Human");
    league_.AddTeam("Duke", "South", 80);
    store().Exec("UPDATE Team SET Conference = ?", "Big East");
    store().Append("League", {{"Id", int64_t{1}}, {"Conference", "Big East"}});
    store().Append("HeadCoach", {{"Name", "Pat O'Neil"}, {"Team", kHuman}});
    for (const char* team : {kHuman, "Duke"}) {
      league_.AddScout(team, 60);
      for (int i = 0; i < 12; ++i) league_.AddPlayer(team, 1 + i % 5, 50 + i);
    }
    store().Exec("INSERT INTO PlayerStats (Id) SELECT Id FROM Player");
    MenuGate(session());
  }

  Session& session() { return league_.session(); }
  Store& store() { return league_.store(); }
  ScriptedUi& ui() { return league_.ui(); }
  const std::filesystem::path& root() { return session().folder.Root(); }

  // The rows a dynasty lives in, as text.
  std::string Dump() {
    std::string dump;
    for (const char* table : {"Config", "HeadCoach", "Team", "Player", "PlayerStats", "Scout"}) {
      for (Rows r = store().Query(std::string("SELECT * FROM ") + table + " ORDER BY rowid");
           r.Next();) {
        for (int c = 0; c < r.ColumnCount(); ++c) dump += r.Text(c) + "|";
        dump += "\n";
      }
    }
    return dump;
  }

 private:
  LeagueFixture league_;
};

inline std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

inline void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

}  // namespace courtmere::testing
