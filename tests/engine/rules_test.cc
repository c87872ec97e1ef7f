// The game rules most likely to be got wrong: substitution order and the
// reserve queue, the floor check and energy tables, the tired rule, the
// shot outcomes around 551 and 700, blocks, fouled threes, the play texts.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "engine/add_stat.h"
#include "engine/fatigue.h"
#include "engine/game_driver.h"
#include "engine/injury.h"
#include "engine/offence.h"
#include "engine/play_text.h"
#include "engine/shooting.h"
#include "engine/substitution.h"
#include "platform/scripted_ui.h"
#include "store/session.h"
#include "support/temp_folder.h"

namespace courtmere::testing {
namespace {

// A game in memory: two sides of 12 with full charts (entries 11 to 15
// repeat men of the second row), everyone fresh, nobody ever hurt.
struct Rules : ::testing::Test {
  TempFolder folder;
  ScriptedUi ui;
  Session session{ProgramFolder(folder.Path()), Rng(3), ui};
  Game game{session};

  void SetUp() override {
    for (int s = 0; s < 2; ++s) {
      GameSide& side = game.sides[s];
      side.ClearPeople();
      side.Team().TeamName = s == 0 ? "Home U" : "Away U";
      side.RosterCount = 12;
      side.Trainer = 100;
      for (int i = 1; i <= 12; ++i) {
        GamePlayer& p = side.Roster[i];
        p.Id = 100 * (s + 1) + i;
        std::string& name = side.Texts[i].AbbrName;
        name = std::to_string(p.Id);
        name.insert(0, 1, 'P');
        p.PlayerPosition = (i - 1) % 5 + 1;
        p.AvoidInjury = 100;
        p.Endurance = 2000;
        p.FreeThrow = 70;
        p.Range = 22;
        for (int* a : {&p.Jumpshot, &p.InScoring, &p.ThreePoint, &p.PerrDefense, &p.PostDefense,
                       &p.ShotBlock, &p.Steal, &p.OffRebounding, &p.DefRebounding, &p.Handling,
                       &p.OffAware, &p.DefAware, &p.Passing, &p.Quickness, &p.Strength}) {
          *a = 60;
        }
        p.StatIndex = i;
        side.Stats[i].Id = p.Id;
        side.Stats[i].Energy = 2000;
      }
      for (int n = 1; n <= 15; ++n) side.Depth[n] = side.Roster[n <= 12 ? n : n - 5].Id;
    }
    BuildFloor(game);
    game.Half = 1;
    game.Clock = 1000;
    game.LastClock = 1000;
    game.Possession = Side::Home;
    game.BallPos = 1;
    game.Distance = 10;
  }

  GameSide& Home() { return game.Home(); }
  GameStat& HomeLine(int rosterIndex) { return Home().Stats[rosterIndex]; }
};

TEST_F(Rules, SubstitutionOrderFollowsThePositionTables) {
  EXPECT_EQ(SubstitutionOrder(1), (std::array<int, 7>{1, 6, 11, 7, 12, 8, 13}));
  EXPECT_EQ(SubstitutionOrder(2), (std::array<int, 7>{2, 7, 12, 8, 13, 6, 11}));
  EXPECT_EQ(SubstitutionOrder(3), (std::array<int, 7>{3, 8, 13, 7, 12, 9, 14}));
  EXPECT_EQ(SubstitutionOrder(4), (std::array<int, 7>{4, 9, 14, 10, 15, 8, 13}));
  EXPECT_EQ(SubstitutionOrder(5), (std::array<int, 7>{5, 10, 15, 9, 14, 8, 13}));
}

TEST_F(Rules, DepthCandidateRefusesMenWhoMayNotComeIn) {
  EXPECT_EQ(DepthCandidate(game, 1, Side::Home, 0), 0);  // on the floor
  EXPECT_EQ(DepthCandidate(game, 6, Side::Home, 1500), 106);
  HomeLine(6).Energy = 1400;
  EXPECT_EQ(DepthCandidate(game, 6, Side::Home, 1500), 0);
  HomeLine(7).Fouls = 3;
  EXPECT_EQ(DepthCandidate(game, 7, Side::Home, 0), 0);  // three fouls in the first half
  game.Half = 2;
  EXPECT_EQ(DepthCandidate(game, 7, Side::Home, 0), 107);
  HomeLine(7).Fouls = 4;
  game.Clock = 301;
  EXPECT_EQ(DepthCandidate(game, 7, Side::Home, 0), 0);
  game.Clock = 300;
  EXPECT_EQ(DepthCandidate(game, 7, Side::Home, 0), 107);
  Home().Depth[8] = 999;  // not in the roster: a blank line with no energy
  EXPECT_EQ(DepthCandidate(game, 8, Side::Home, 1), 0);
  EXPECT_EQ(DepthCandidate(game, 8, Side::Home, 0), 999);
  // A chart entry that changes men is judged by the new man's line.
  Home().Depth[6] = 108;
  HomeLine(8).Energy = 1400;  // the new man is tired, the old one was not
  EXPECT_EQ(DepthCandidate(game, 6, Side::Home, 1500), 0);
  HomeLine(8).Energy = 1600;
  EXPECT_EQ(DepthCandidate(game, 6, Side::Home, 1500), 108);
  Home().Depth[6] = 0;
  EXPECT_EQ(DepthCandidate(game, 6, Side::Home, 0), 0);
}

TEST_F(Rules, SubstitutionSwapsTheBenchManInAndLogsIt) {
  game.WriteLog = true;
  HomeLine(2).Energy = 1000;
  SubstitutePlayer(game, 2, Side::Home, 1450);
  EXPECT_EQ(Home().Court[2].Id, 107);
  EXPECT_EQ(Home().Bench[2].Id, 102);
  EXPECT_EQ(Home().IsStarter[2], 0);
  ASSERT_EQ(game.LogCount, 1);
  EXPECT_EQ(game.GameLogLines[0], "Home U SUB - P107 in for P102");
  // The rested starter comes back once he is fresh again.
  HomeLine(2).Energy = 1700;
  RotatePlayer(game, Side::Home, 2, FloorCheck(game, SubPattern::Normal, Side::Home));
  EXPECT_EQ(Home().Court[2].Id, 102);
  EXPECT_EQ(Home().IsStarter[2], 1);
}

TEST_F(Rules, TheReserveQueueTurnsWhenNobodyOnTheChartIsFit) {
  // Ten men on the chart, two reserves, and everybody tired.
  for (int n = 11; n <= 15; ++n) Home().Depth[n] = Home().Roster[n - 10].Id;
  BuildReserve(Home());
  ASSERT_EQ(Home().ReserveCount, 3);
  for (int i = 1; i <= 12; ++i) HomeLine(i).Energy = 100;
  SubstitutePlayer(game, 3, Side::Home, 1450);
  // The head place was empty: the slot stays empty for now.
  EXPECT_EQ(Home().Court[3].Id, 0);
  EXPECT_EQ(Home().Reserve[0].Id, 111);
  EXPECT_EQ(Home().Reserve[1].Id, 112);
  EXPECT_EQ(Home().Reserve[3].Id, 103);
  // The next call brings the head of the queue in.
  SubstitutePlayer(game, 3, Side::Home, 1450);
  EXPECT_EQ(Home().Court[3].Id, 111);
  EXPECT_EQ(Home().Reserve[0].Id, 112);
}

TEST_F(Rules, RotationTakesOutFoulTroubleAndRestsLeadersInABlowOut) {
  HomeLine(4).Fouls = 3;
  RotatePlayer(game, Side::Home, 4, FloorCheck(game, SubPattern::Normal, Side::Home));
  EXPECT_EQ(Home().Court[4].Id, 109);

  game.Half = 2;
  game.Clock = 500;
  Home().Score = 80;
  game.Away().Score = 61;
  RotatePlayer(game, Side::Home, 5, FloorCheck(game, SubPattern::Normal, Side::Home));
  EXPECT_EQ(Home().Court[5].Id, 105);  // a lead of 19 keeps him in
  game.Away().Score = 60;
  RotatePlayer(game, Side::Home, 5, FloorCheck(game, SubPattern::Normal, Side::Home));
  EXPECT_EQ(Home().Court[5].Id, 110);
}

TEST_F(Rules, FloorCheckLinesFollowPatternPeriodAndSide) {
  const FloorCheckLine first = FloorCheck(game, SubPattern::More, Side::Home);
  EXPECT_EQ(first.MinEnergy, 1500);
  EXPECT_EQ(first.MaxFouls, 3);
  EXPECT_EQ(first.ReturnMargin, 200);
  EXPECT_EQ(first.RestLeaders, 0);
  game.Half = 2;
  game.Clock = 450;
  EXPECT_EQ(FloorCheck(game, SubPattern::Normal, Side::Home).MaxFouls, 5);
  EXPECT_EQ(FloorCheck(game, SubPattern::Normal, Side::Away).MaxFouls, 4);
  EXPECT_EQ(FloorCheck(game, SubPattern::Less, Side::Away).MinEnergy, 1000);
  EXPECT_EQ(FloorCheck(game, SubPattern::More, Side::Away).ReturnMargin, 100);
  game.Clock = 601;
  EXPECT_EQ(FloorCheck(game, SubPattern::Normal, Side::Home).MinEnergy, 1400);
  game.Half = 3;
  const FloorCheckLine overtime = FloorCheck(game, SubPattern::Less, Side::Home);
  EXPECT_EQ(overtime.MinEnergy, 900);
  EXPECT_EQ(overtime.RestLeaders, 1);
}

TEST_F(Rules, EnergyDrainsByTempoAndPressAndTheBenchRecovers) {
  Home().tactics.SetTempo("Up Beat");
  Home().tactics.SetPress("Full Court");
  game.Away().tactics.SetTempo("Slow Down");
  game.Away().tactics.SetPress("Half Court");
  HomeLine(6).Energy = 1990;
  HomeLine(7).Energy = 1500;
  game.Clock = 990;
  ApplyElapsedTime(game);
  EXPECT_EQ(HomeLine(1).Energy, 2000 - 15 - 10);  // 2.5 a second
  EXPECT_EQ(game.Away().Stats[1].Energy, 2000 - 10 - 5);
  EXPECT_EQ(HomeLine(1).SecondsPlayed, 10);
  EXPECT_EQ(Home().Team().SecondsPlayed, 50);
  EXPECT_EQ(HomeLine(6).Energy, 2000);  // capped at 2000
  EXPECT_EQ(HomeLine(7).Energy, 1525);
  EXPECT_EQ(game.LastClock, 990);
}

TEST_F(Rules, TiredRuleByPeriodAndClock) {
  EXPECT_TRUE(IsTired(game, 1399));
  EXPECT_FALSE(IsTired(game, 1400));
  game.Half = 2;
  game.Clock = 601;
  EXPECT_TRUE(IsTired(game, 1399));
  game.Clock = 600;
  EXPECT_FALSE(IsTired(game, 1100));
  EXPECT_TRUE(IsTired(game, 1099));
  game.Clock = 300;
  EXPECT_FALSE(IsTired(game, 1000));
  EXPECT_TRUE(IsTired(game, 999));
  game.Half = 4;
  game.Clock = 250;
  EXPECT_TRUE(IsTired(game, 999));
}

// The shot outcomes around the rolls 551 and 700: a miss and a make, an
// and-one from 20 feet, a block that voids the and-one, a fouled three that
// gets two shots, and a block without a foul.
TEST_F(Rules, ShotOutcomesAroundTheRolls551And700) {
  auto shoot = [&](int shooter, int distance, int fouler, int blocker, int roll) {
    game.Possession = Side::Home;
    game.BallPos = shooter;
    game.PossState = 0;
    game.Distance = distance;
    game.Fouler = fouler;
    game.Blocker = blocker;
    ResolveShot(game, roll);
    return HomeLine(shooter);
  };
  const GameStat miss = shoot(1, 10, 0, 0, 550);
  EXPECT_EQ(miss.ShotAttempts, 1);
  EXPECT_EQ(miss.Points, 0);
  const GameStat make = shoot(2, 10, 0, 0, 551);
  EXPECT_EQ(make.ShotsMade, 1);
  EXPECT_EQ(make.Points, 2);
  EXPECT_EQ(Home().Score, 2);
  EXPECT_EQ(game.Away().Stats[2].PlusMinus, -2);
  EXPECT_EQ(game.PossState, 2);

  const GameStat andOne = shoot(3, 20, 3, 0, 700);
  EXPECT_EQ(andOne.ShotAttempts, 1);
  EXPECT_EQ(andOne.ThreesMade, 1);
  EXPECT_EQ(andOne.FreeThrowAttempts, 1);
  EXPECT_EQ(andOne.Points, 3 + andOne.FreeThrowsMade);
  EXPECT_EQ(game.Away().Stats[3].Fouls, 1);
  EXPECT_EQ(game.Away().Fouls, 1);
  EXPECT_EQ(game.Fouler, 0);

  const GameStat blocked = shoot(4, 8, 2, 4, 700);
  EXPECT_EQ(blocked.ShotAttempts, 0);
  EXPECT_EQ(blocked.FreeThrowAttempts, 2);
  EXPECT_EQ(blocked.Points, blocked.FreeThrowsMade);
  const GameStat fouledThree = shoot(5, 20, 1, 0, 640);
  EXPECT_EQ(fouledThree.ShotAttempts, 0);
  EXPECT_EQ(fouledThree.ThreeAttempts, 0);
  EXPECT_EQ(fouledThree.FreeThrowAttempts, 2);

  const GameStat rejected = shoot(1, 6, 0, 3, 5);
  EXPECT_EQ(rejected.ShotAttempts, 2);
  EXPECT_EQ(rejected.Points, 0);
  EXPECT_EQ(game.Away().Stats[3].ShotBlocks, 1);
  EXPECT_EQ(game.Away().Team().ShotBlocks, 1);
}

TEST_F(Rules, AddStatKeepsPlusMinusAndTeamFouls) {
  AddStat(game, Stat::ShotMade, SideWordRole::Offense, 1);
  AddStat(game, Stat::ThreeMade, SideWordRole::Offense, 1);
  for (int i = 0; i < 3; ++i) AddStat(game, Stat::AllowPoint, SideWordRole::Defense, 1);
  EXPECT_EQ(HomeLine(1).Points, 3);
  EXPECT_EQ(HomeLine(1).PlusMinus, 3);
  EXPECT_EQ(Home().Team().Points, 3);
  EXPECT_EQ(Home().Team().PlusMinus, 0);
  EXPECT_EQ(game.Away().Stats[1].PlusMinus, -3);
  AddStat(game, Stat::Foul, SideWordRole::Offense, 1);  // a charge
  EXPECT_EQ(Home().Fouls, 1);
  EXPECT_EQ(game.Away().Fouls, 0);
}

// When no defender's foul value is above 0, PickFouler names nobody, yet
// the end-game cycle books its fouls all the same: to the team, towards the
// bonus, and to no man's line.
TEST_F(Rules, AFoulWithNoFoulerCountsForTheTeamOnly) {
  game.WriteLog = true;
  game.Half = 2;
  GameSide& defence = game.Away();
  for (int i = 1; i <= 12; ++i) {
    defence.Roster[i].Steal = 0;
    defence.Roster[i].DefAware = 100;
  }
  BuildFloor(game);
  EXPECT_EQ(PickFouler(game, 35, Side::Away), 0);
  FoulCycle(game, false);
  EXPECT_EQ(defence.Fouls, 7);  // the cycle ran on to the bonus
  EXPECT_EQ(defence.Team().Fouls, 7);
  EXPECT_EQ(defence.Unattributed.Fouls, 7);
  for (int i = 1; i <= 12; ++i) EXPECT_EQ(defence.Stats[i].Fouls, 0) << i;
  EXPECT_GE(Home().Team().FreeThrowAttempts, 1);
  // The foul's line names nobody.
  ASSERT_GT(game.LogCount, 0);
  EXPECT_NE(game.GameLogLines[0].find("Fouled By  "), std::string::npos) << game.GameLogLines[0];
}

TEST(PlayTexts, BandEdgesDifferFromVariantToVariant) {
  EXPECT_STREQ(PlayTableText(PlayVariant::Hits, 20, 12), "cashes in from downtown (");
  EXPECT_STREQ(PlayTableText(PlayVariant::Hits, 19, 1), "goes over the defender for a quick 2 (");
  EXPECT_STREQ(PlayTableText(PlayVariant::Hits, 10, 7), "floats in a soft jumper (");
  EXPECT_STREQ(PlayTableText(PlayVariant::Hits, 5, 4), "shows some flair with a two-handed jam! (");
  EXPECT_STREQ(PlayTableText(PlayVariant::HitsFoul, 9, 10),
               "double pumps and banks it in from the block! (");
  EXPECT_STREQ(PlayTableText(PlayVariant::HitsFoul, 10, 3),
               "still hits the 12-footer while falling down! (");
  EXPECT_STREQ(PlayTableText(PlayVariant::Miss, 10, 5), "misses the dunk! Oh, my!");
  EXPECT_STREQ(PlayTableText(PlayVariant::Miss, 11, 9), "is a little short on the fade away");
  EXPECT_STREQ(PlayTableText(PlayVariant::Pass2, 15, 7), " throws it to a well-guarded");
  EXPECT_STREQ(PlayTableText(PlayVariant::NonShootFoul, 15, 8),
               "needs his wallet back as he was Mugged By ");
}

// Each band's edges, both feet and roll: the slot just above each roll
// threshold and at it, for both ends of every distance band.
TEST(PassReceivers, EveryEdgeOfEveryBand) {
  struct Band {
    int nearEnd, farEnd;
    int over[4];
    int slot[5];
  };
  const Band bands[] = {
      {21, 99, {65, 30, 10, 5}, {1, 2, 3, 4, 5}},  {16, 20, {65, 40, 15, 5}, {2, 3, 1, 4, 5}},
      {11, 15, {75, 50, 35, 15}, {3, 2, 1, 4, 5}}, {7, 10, {75, 50, 30, 10}, {4, 3, 5, 2, 1}},
      {2, 6, {65, 35, 15, 5}, {5, 4, 3, 2, 1}},    {-3, 1, {70, 40, 20, 5}, {5, 4, 3, 2, 1}},
  };
  for (const Band& band : bands) {
    for (int r : {band.nearEnd, band.farEnd}) {
      EXPECT_EQ(PassReceiver(r, 100), band.slot[0]) << r;
      for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(PassReceiver(r, band.over[k] + 1), band.slot[k]) << r << " " << k;
        EXPECT_EQ(PassReceiver(r, band.over[k]), band.slot[k + 1]) << r << " " << k;
      }
      EXPECT_EQ(PassReceiver(r, 1), band.slot[4]) << r;
    }
  }
}

TEST(InjuryLength, TheTrainerShortensOrLengthens) {
  for (auto [weeks, trainer, expected] : std::vector<std::array<int, 3>>{
           {4, 25, 6}, {4, 26, 5}, {4, 51, 3}, {4, 70, 3}, {4, 71, 2}, {2, 90, 1}}) {
    EXPECT_EQ(InjuryWeeks(weeks, trainer), expected) << weeks << " " << trainer;
  }
}

TEST_F(Rules, DribbleDrivesGainAFootAStepAndPressureForcesMistakes) {
  auto mistakes = [&](const char* press) {
    game.Away().tactics.SetPress(press);
    int count = 0;
    for (int i = 0; i < 4000; ++i) {
      game.Distance = 35;
      game.Footwork = 0;
      game.Away().Fouls = 0;
      game.Clock = 1000;
      game.ShotClock = 35;
      const int d = DribbleMove(game, Home().Court[1], game.Away().Court[1]);
      if (d > 0) {
        EXPECT_LE(35 - d, 49);
        EXPECT_EQ(game.Footwork, 35 - d);
      } else {
        ++count;
      }
    }
    return count;
  };
  const int none = mistakes("None");
  const int full = mistakes("Full Court");
  EXPECT_GT(full, none);
}

}  // namespace
}  // namespace courtmere::testing
