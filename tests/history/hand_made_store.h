// A small store made by hand for the history's tests: a blank store with a
// few schools, conferences and players whose season lines a test writes.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "league/dynasty_fixture.h"

namespace courtmere::testing {

class HandMadeStore : public ::testing::Test, public BlankProgram {
 protected:
  using Figures = std::vector<std::pair<std::string, double>>;

  void AddSchool(const std::string& school, const std::string& conference) {
    if (!store()
             .ScalarInt("SELECT count(*) FROM League WHERE Conference = ?", conference)
             .value_or(0)) {
      store().Exec("INSERT INTO League (Conference) VALUES (?)", conference);
    }
    store().Exec(
        "INSERT INTO Team (SchoolName, Conference, Owner, Prestige, InitialPrestige) VALUES (?, "
        "?, 'Computer', 50, 50)",
        school, conference);
    store().Exec("INSERT INTO TeamStats (SchoolName) VALUES (?)", school);
    store().Exec("INSERT INTO Ranking (SchoolName) VALUES (?)", school);
  }

  int AddPlayer(const std::string& name, const std::string& team, int position = 1) {
    return static_cast<int>(store().Append("Player", {{"Name", name},
                                                      {"AbbrName", name},
                                                      {"Team", team},
                                                      {"PlayerPosition", int64_t{position}},
                                                      {"PlayerYear", "Junior"}}));
  }

  // The player's season line in PlayerStats, each figure named.
  void SetSeason(int id, const Figures& figures) {
    store().Exec("INSERT OR REPLACE INTO PlayerStats (Id) VALUES (?)", id);
    for (const auto& [column, value] : figures) {
      store().Exec("UPDATE PlayerStats SET " + column + " = ? WHERE Id = ?", value, id);
    }
  }

  int64_t Count(const std::string& sql) { return store().ScalarInt(sql).value_or(-1); }
};

}  // namespace courtmere::testing
