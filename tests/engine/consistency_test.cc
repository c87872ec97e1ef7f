// Over many seeded games every box score must add up.
#include <gtest/gtest.h>

#include <cstdio>

#include "engine/box_score.h"
#include "engine/run_engine.h"
#include "engine_fixture.h"

namespace courtmere::testing {
namespace {

TEST(GameConsistency, SmokeOneGame) {
  EngineFixture fixture;
  Game game(fixture.session());
  DayResults day;
  ASSERT_EQ(fixture.Play(game, day, 0, true), 1);
  for (const std::string& line : FormatBoxScore(game)) std::printf("%s\n", line.c_str());
}

}  // namespace
}  // namespace courtmere::testing
