// The recruiting screens as the user drives them on a started season: Add
// from a regional list, the ranking with its refusal, and on the team
// recruiting screen in the Contact period of week 2 a bid, the week's
// second Visit refused in a message box with nothing written, Clear
// Decision, Offer and Rescind, Remove; and the caption naming the period.
#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QtTest>
#include <memory>

#include "app/main_window.h"
#include "app/play_steps.h"
#include "app/recruit_board_screen.h"
#include "app/recruit_card_view.h"
#include "app/recruit_list_screen.h"
#include "app/recruit_rank_screen.h"
#include "cpu/computer_roster.h"
#include "league/dynasty_fixture.h"
#include "league/start_season.h"
#include "screen_probes.h"
#include "screenshots.h"
#include "season/day_step.h"
#include "season/season_run.h"
#include "started_season.h"
#include "store/menu_gate.h"

namespace courtmere::app {

using testing::Column;
using testing::DumpStore;
using testing::Find;
using testing::Screenshot;

namespace {

void Settle() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

}  // namespace

class RecruitingTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    dynasty_ = testing::StartedSeason();
    Session& session = dynasty_->session();
    window_ = testing::ShowMainWindow(session);
  }
  void cleanupTestCase() {
    dynasty_->session().quitting = true;
    window_.reset();
    dynasty_.reset();
  }

  void addFromTheRegionalList() {
    for (const char* entry :
         {"mnuRecruitViewTeam", "mnuRecruitViewRecruitsEast", "mnuRecruitInterested",
          "mnuRecruitMagazine50", "mnuRecruitMagazineC"}) {
      QVERIFY2(window_->Entry(entry)->isEnabled(), entry);
    }
    window_->Entry("mnuRecruitViewRecruitsEast")->trigger();
    auto* list = Find<RecruitListScreen>(*window_);
    QVERIFY(list);
    QVERIFY(list->Grid()->Model()->rowCount() >= 6);
    for (int row = 0; row < 2; ++row) {
      list->Grid()->selectRow(row);
      ids_.push_back(list->Grid()->Model()->Key(list->Grid()->SelectedRow()));
      list->AddSelected();
      QVERIFY(ui().Messages().back().find("has been added to your list of recruits.") !=
              std::string::npos);
    }
    emit list->Grid()->CellClicked(0, 1);
    QCOMPARE(list->Card()->PlayerId(), list->Grid()->Model()->Key(0));
    Screenshot(window_.get(), "recruits_east");
    // The list narrows to a position.
    list->PositionFilter()->setCurrentIndex(1);
    for (const QString& pos : Column(list->Grid(), 2)) QCOMPARE(pos, QString("PG"));
    window_->CloseScreens();
  }

  void rankingRefusesEqualRanks() {
    window_->Entry("mnuRecruitViewTeam")->trigger();
    auto* board = Find<RecruitBoardScreen>(*window_);
    QVERIFY(board);
    QCOMPARE(board->Grid()->Model()->rowCount(), 2);
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Dead Period)"));
    QVERIFY(!board->Actions()->isEnabled());  // week 1 is a Dead period
    board->findChild<QPushButton*>("cmdRank")->click();
    auto* rank = Find<RecruitRankScreen>(*window_);
    QVERIFY(rank);
    rank->RankOf(ids_[0])->setCurrentIndex(1);
    rank->RankOf(ids_[1])->setCurrentIndex(1);
    const std::string before = DumpStore(store());
    rank->Submit();
    QCOMPARE(ui().Messages().back(),
             std::string("Please use a different ranking for each player."));
    QVERIFY(DumpStore(store()) == before);
    rank->RankOf(ids_[0])->setCurrentIndex(2);
    rank->Submit();
    Settle();
    QCOMPARE(Column(board->Grid(), 10), (QStringList{"1", "2"}));
    QCOMPARE(board->Grid()->Model()->Key(0), ids_[1]);
    window_->CloseScreens();
  }

  void bidClearOfferRescindInTheContactPeriod() {
    // The user asks the score ticker for no pause between games.
    ChooseQuickestTicker(session(), *window_);
    SeasonRun& run = window_->Season();
    while (session().config.CurrWeek < 2) {
      SetTeamLineup(session(), session().humanSchool, 0);
      QVERIFY(SimDay(run) == DayOutcome::kPlayed);
      SettleWeekFive(session());
    }
    window_->RunGate();
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Contact Period)"));
    window_->Entry("mnuRecruitViewTeam")->trigger();
    auto* board = Find<RecruitBoardScreen>(*window_);
    QVERIFY(board);
    QCOMPARE(board->Actions()->count(), 4);
    const int points = Points();
    QVERIFY(points >= 30);

    board->SelectRecruit(ids_[0]);
    QCOMPARE(board->Card()->PlayerId(), ids_[0]);
    board->Actions()->setCurrentText("Visit");
    QCOMPARE(board->Bids()->currentText(), QString("30"));
    Click(board, "cmdBid");
    QCOMPARE(Points(), points - 30);
    QCOMPARE(Cell(board, ids_[0], 6), QString("Visit"));

    board->SelectRecruit(ids_[1]);
    board->Actions()->setCurrentText("Visit");
    const std::string before = DumpStore(store());
    Click(board, "cmdBid");
    QCOMPARE(ui().Messages().back(),
             std::string("You have already made the decision to use your allotted number of Player "
                         "Visits this week. Make another selection."));
    QVERIFY(DumpStore(store()) == before);
    Screenshot(window_.get(), "team_recruiting");

    board->SelectRecruit(ids_[0]);
    ui().QueueAnswer(true);
    Click(board, "cmdClear");
    QCOMPARE(Points(), points);
    QCOMPARE(Cell(board, ids_[0], 6), QString("none"));

    ui().QueueAnswer(true);
    Click(board, "cmdOffer");
    QCOMPARE(Cell(board, ids_[0], 9), QString("Yes"));
    ui().QueueAnswer(false);  // No to the question: nothing changes
    Click(board, "cmdRescind");
    QCOMPARE(Cell(board, ids_[0], 9), QString("Yes"));
    ui().QueueAnswer(true);
    Click(board, "cmdRescind");
    QCOMPARE(Cell(board, ids_[0], 9), QString("No"));

    board->SelectRecruit(ids_[1]);
    ui().QueueAnswer(true);
    Click(board, "cmdRemove");
    QCOMPARE(board->Grid()->Model()->rowCount(), 1);
  }

 private:
  Session& session() { return dynasty_->session(); }
  Store& store() { return session().Db(); }
  ScriptedUi& ui() { return dynasty_->ui(); }
  int Points() {
    return static_cast<int>(*store().ScalarInt("SELECT PointsAvail FROM TeamRecruit WHERE Team = ?",
                                               session().humanSchool));
  }
  static void Click(RecruitBoardScreen* board, const char* button) {
    board->findChild<QPushButton*>(button)->click();
    Settle();
  }
  static QString Cell(RecruitBoardScreen* board, int playerId, int column) {
    GridModel* model = board->Grid()->Model();
    for (int row = 0; row < model->rowCount(); ++row) {
      if (model->Key(row) == playerId) return model->Cell(row, column).text;
    }
    return {};
  }

  std::unique_ptr<testing::DynastyFixture> dynasty_;
  std::unique_ptr<MainWindow> window_;
  std::vector<int> ids_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::RecruitingTest)
#include "recruiting_test.moc"
