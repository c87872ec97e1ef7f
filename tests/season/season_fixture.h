// A dynasty whose season has started: the shared test dynasty (St. John's in
// the MVC, the WAC and the Atlantic 10) with Start Season run once per test
// program, copied into a fresh program folder for each test, and the season
// driver on it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "league/dynasty_fixture.h"
#include "season/season_run.h"

namespace courtmere::testing {

class SeasonFixture : public ::testing::Test, public DynastyFixture {
 public:
  SeasonFixture();
  SeasonRun& run() { return *run_; }
  const Config& config() { return session().config; }

  // Moves the dynasty to a day of the season without playing the days
  // before it.
  void GoTo(int week, const std::string& day);
  // Presses Sim Day until the dynasty stands on (week, day); fails the test
  // when a press does not play. `weekEnded` is told of each week that ends.
  void SimTo(int week, const std::string& day, const std::function<void(int)>& weekEnded = nullptr);

 private:
  std::unique_ptr<SeasonRun> run_;
};

}  // namespace courtmere::testing
