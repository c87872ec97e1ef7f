// The bracket screens' data over a played postseason: every round in its
// place, seeds beside the names, the winners bold with their scores, the
// first weekend at its sites, and the champion once the final is in.
#include "screens/bracket_view.h"

#include <gtest/gtest.h>

#include "league/national_tourneys.h"
#include "league/postseason_fixture.h"

namespace courtmere {
namespace {

using testing::PostseasonFixture;

int Games(const BracketSection& section) {
  int games = 0;
  for (const BracketRound& round : section.rounds) games += static_cast<int>(round.games.size());
  return games;
}

// Every played game has one bold side with the higher score.
void ExpectWinnersBold(const BracketView& view) {
  for (const BracketSection& section : view.sections) {
    for (const BracketRound& round : section.rounds) {
      for (const BracketMatch& m : round.games) {
        if (m.home.points == 0) continue;
        EXPECT_NE(m.home.bold, m.away.bold) << round.title;
        EXPECT_EQ(m.home.bold, m.home.points > m.away.points) << round.title;
      }
    }
  }
}

TEST(BracketView, AConferenceBracketBeforeAndAfterItsTournament) {
  PostseasonFixture p;
  const testing::LeagueRow league = p.Leagues().front();
  EXPECT_TRUE(ConfBracketView(p.store(), league.conference).sections.empty());
  p.SetupConferenceTourneys();
  BracketView before = ConfBracketView(p.store(), league.conference);
  EXPECT_EQ(before.title, league.conference + " Conference Tournament");
  ASSERT_EQ(before.sections.size(), 1u);
  const std::vector<BracketRound>& rounds = before.sections[0].rounds;
  // A field of 8 plays nobody on Thursday and starts with Friday's round.
  EXPECT_EQ(rounds.front().title, "First round");
  const BracketRound& friday = rounds.end()[-3];
  EXPECT_EQ(friday.title, rounds.size() == 4 ? "Second round" : "First round");
  EXPECT_EQ(friday.games.front().home.seed, 1);
  EXPECT_TRUE(before.champion.empty());
  EXPECT_TRUE(before.sections[0].rounds.back().games.front().home.school.empty());

  for (const char* day : {"Thursday", "Friday", "Saturday", "Sunday"}) p.PlayConferenceDay(day);
  const BracketView after = ConfBracketView(p.store(), league.conference);
  const int field = static_cast<int>(
      p.store()
          .ScalarInt("SELECT count(*) FROM Team WHERE Conference = ?", league.conference)
          .value());
  EXPECT_EQ(Games(after.sections[0]), field - 1);
  ExpectWinnersBold(after);
  const BracketMatch& final = after.sections[0].rounds.back().games.front();
  EXPECT_EQ(after.champion, final.home.bold ? final.home.school : final.away.school);
  EXPECT_GT(final.home.seed, 0);
  EXPECT_GT(final.away.seed, 0);
}

TEST(BracketView, TheNctAndTheActPlayedToTheirChampions) {
  PostseasonFixture p;
  p.RunConferenceTourneys();
  EXPECT_TRUE(NctBracketView(p.store()).sections.empty());
  p.RunNationalTourneys();
  const BracketView nct = NctBracketView(p.store());
  ASSERT_EQ(nct.sections.size(), 5u);
  for (size_t r = 0; r < 4; ++r) EXPECT_EQ(Games(nct.sections[r]), 15) << nct.sections[r].title;
  EXPECT_EQ(Games(nct.sections[4]), 3);
  EXPECT_EQ(nct.champion, NctChampion(p.store()).value());
  ExpectWinnersBold(nct);
  const BracketMatch& opener = nct.sections[0].rounds.front().games.front();
  EXPECT_EQ(opener.home.seed, 1);
  EXPECT_EQ(opener.away.seed, 16);
  EXPECT_FALSE(opener.site.empty());
  EXPECT_FALSE(nct.sections[0].rounds.back().games.front().site.empty());
  EXPECT_EQ(nct.subtitle.rfind("Final Four at ", 0), 0u);

  const BracketView act = ActBracketView(p.store());
  ASSERT_EQ(act.sections.size(), 5u);
  for (size_t r = 0; r < 4; ++r) EXPECT_EQ(Games(act.sections[r]), 7);
  EXPECT_EQ(act.sections[0].rounds.front().games.front().away.seed, 8);
  EXPECT_TRUE(act.sections[0].rounds.front().games.front().site.empty());
  EXPECT_FALSE(act.champion.empty());
  ExpectWinnersBold(act);
}

TEST(BracketView, APreseasonBracketShowsItsOpenSidesUntilTheyArePlayed) {
  PostseasonFixture p;
  const BracketView view = PreseasonBracketView(p.store(), "Hawaii Classic");
  ASSERT_EQ(view.sections.size(), 1u);
  ASSERT_EQ(view.sections[0].rounds.size(), 3u);
  EXPECT_EQ(view.sections[0].rounds[0].games.size(), 4u);
  EXPECT_EQ(view.sections[0].rounds[0].games[0].home.seed, 1);
  EXPECT_EQ(view.sections[0].rounds[0].games[0].away.seed, 8);
  EXPECT_EQ(view.sections[0].rounds[1].games[0].home.pairing, "1-8");
  EXPECT_EQ(view.sections[0].rounds[2].games[0].away.pairing, "2-3");
  EXPECT_TRUE(view.champion.empty());
  EXPECT_TRUE(PreseasonBracketView(p.store(), "Nowhere Cup").sections.empty());
}

}  // namespace
}  // namespace courtmere
