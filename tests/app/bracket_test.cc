// The brackets as they are drawn: each connector joins the games the slot
// tables join, read as the seeds that can reach a game (a second-round game
// of an NCT region holds 1, 16, 8 and 9, never 6, 11, 3 and 14), the lines
// start at the game they leave and end at the side they feed, no two
// connectors cross, and a conference bracket fits a 900-pixel window.
#include <QScrollArea>
#include <QtTest>
#include <set>

#include "app/bracket_screen.h"
#include "league/conf_tourney.h"
#include "league/postseason_fixture.h"

namespace courtmere::app {
namespace {

using Seeds = std::set<int>;

// The seeds that can reach a game: its sides' own and those of the games
// that feed it.
Seeds SeedsOf(const BracketSection& section, int round, int game) {
  const BracketMatch& m =
      section.rounds[static_cast<size_t>(round)].games[static_cast<size_t>(game)];
  Seeds seeds;
  for (const BracketSide* side : {&m.home, &m.away}) {
    if (side->seed > 0) seeds.insert(side->seed);
  }
  for (const BracketConnector& c : section.connectors) {
    if (c.toRound != round || c.toGame != game) continue;
    const Seeds fed = SeedsOf(section, c.fromRound, c.fromGame);
    seeds.insert(fed.begin(), fed.end());
  }
  return seeds;
}

// The seed sets of a round's games, in any order.
std::set<Seeds> RoundSeeds(const BracketSection& section, int round) {
  std::set<Seeds> sets;
  for (size_t g = 0; g < section.rounds[static_cast<size_t>(round)].games.size(); ++g) {
    sets.insert(SeedsOf(section, round, static_cast<int>(g)));
  }
  return sets;
}

// Lines from the right edge of the game they leave to the side they feed,
// the home side fed from above the away side, and every fed game midway.
void CheckDrawing(BracketCanvas& canvas, int s) {
  const BracketSection& section = canvas.Bracket().sections[static_cast<size_t>(s)];
  for (const BracketConnector& c : section.connectors) {
    const QRect from = canvas.GameBox(s, c.fromRound, c.fromGame);
    const QRect to = canvas.GameBox(s, c.toRound, c.toGame);
    const QPolygon path = canvas.ConnectorPath(s, c);
    QCOMPARE(path.first().x(), from.right() + 1);
    QVERIFY(path.first().y() > from.top() && path.first().y() < from.bottom());
    QCOMPARE(path.last().x(), to.left());
    const int half = to.top() + to.height() / 2;
    QVERIFY(c.toHome ? path.last().y() < half : path.last().y() > half);
    for (const BracketConnector& other : section.connectors) {
      if (other.toRound != c.toRound || other.toGame != c.toGame || other.toHome == c.toHome) {
        continue;
      }
      const QRect sibling = canvas.GameBox(s, other.fromRound, other.fromGame);
      QVERIFY((from.top() < sibling.top()) == c.toHome);
      QVERIFY(to.center().y() >= std::min(from.center().y(), sibling.center().y()));
      QVERIFY(to.center().y() <= std::max(from.center().y(), sibling.center().y()));
    }
  }
}

}  // namespace

class BracketTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    postseason_ = std::make_unique<testing::PostseasonFixture>();
    postseason_->RunConferenceTourneys();
    postseason_->RunNationalTourneys({17, "Tuesday"});
  }
  void cleanupTestCase() { postseason_.reset(); }

  void anNctRegionJoinsItsGamesByTheSlotTable() {
    const BracketView view = NctBracketView(postseason_->store());
    const BracketSection& region = view.sections.front();
    QCOMPARE(region.rounds.size(), size_t{4});
    QCOMPARE(region.rounds[0].games.size(), size_t{8});
    QCOMPARE(region.rounds[0].when, std::string("Thursday and Friday, week 17"));
    QCOMPARE(RoundSeeds(region, 1),
             (std::set<Seeds>{{1, 16, 8, 9}, {5, 12, 4, 13}, {6, 11, 3, 14}, {7, 10, 2, 15}}));
    QCOMPARE(RoundSeeds(region, 2),
             (std::set<Seeds>{{1, 16, 8, 9, 7, 10, 2, 15}, {5, 12, 4, 13, 6, 11, 3, 14}}));
    QCOMPARE(region.connectors.size(), size_t{14});
    const BracketSection& finals = view.sections.back();
    QCOMPARE(finals.connectors.size(), size_t{2});
    BracketCanvas canvas;
    canvas.SetBracket(view);
    canvas.resize(canvas.sizeHint());
    for (int s = 0; s < static_cast<int>(view.sections.size()); ++s) CheckDrawing(canvas, s);
  }

  void anActRegionPairsOneAndEightWithTwoAndSeven() {
    const BracketView view = ActBracketView(postseason_->store());
    const BracketSection& region = view.sections.front();
    QCOMPARE(region.rounds.size(), size_t{3});
    QCOMPARE(RoundSeeds(region, 1), (std::set<Seeds>{{1, 8, 2, 7}, {4, 5, 3, 6}}));
    QCOMPARE(RoundSeeds(region, 2), (std::set<Seeds>{{1, 2, 3, 4, 5, 6, 7, 8}}));
    BracketCanvas canvas;
    canvas.SetBracket(view);
    canvas.resize(canvas.sizeHint());
    CheckDrawing(canvas, 0);
  }

  void thePreseasonPairsOneEightWithFourFive() {
    const BracketView view = PreseasonBracketView(postseason_->store(), "Hawaii Classic");
    const BracketSection& field = view.sections.front();
    QCOMPARE(RoundSeeds(field, 1), (std::set<Seeds>{{1, 8, 4, 5}, {2, 7, 3, 6}}));
    QCOMPARE(field.connectors.size(), size_t{6});
    BracketCanvas canvas;
    canvas.SetBracket(view);
    canvas.resize(canvas.sizeHint());
    CheckDrawing(canvas, 0);
  }

  // With 14 teams seeds 1 and 2 wait for Friday; the final column stands
  // whole in a window 900 pixels wide.
  void aFourteenTeamConferenceFitsAndJoinsItsByes() {
    std::string conference;
    for (const testing::LeagueRow& league : postseason_->Leagues()) {
      if (ConfTourneyField(postseason_->store(), league.conference) == 14) {
        conference = league.conference;
      }
    }
    QVERIFY(!conference.empty());
    const BracketView view = ConfBracketView(postseason_->store(), conference);
    const BracketSection& bracket = view.sections.front();
    QCOMPARE(bracket.rounds.size(), size_t{4});
    QCOMPARE(RoundSeeds(bracket, 1),
             (std::set<Seeds>{{1, 8, 9}, {4, 13, 5, 12}, {2, 7, 10}, {3, 14, 6, 11}}));
    QCOMPARE(RoundSeeds(bracket, 2),
             (std::set<Seeds>{{1, 8, 9, 4, 13, 5, 12}, {2, 7, 10, 3, 14, 6, 11}}));

    QScrollArea window;
    window.setWidgetResizable(true);
    auto* canvas = new BracketCanvas;
    window.setWidget(canvas);
    canvas->SetBracket(view);
    window.resize(900 - 40, 700);  // the screen's frame and margins
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    CheckDrawing(*canvas, 0);
    const QRect final = canvas->GameBox(0, 3, 0);
    QVERIFY(final.right() < window.viewport()->width());
    QVERIFY(canvas->width() <= window.viewport()->width());
  }

 private:
  std::unique_ptr<testing::PostseasonFixture> postseason_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::BracketTest)
#include "bracket_test.moc"
