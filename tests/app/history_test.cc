// The history of a season on the desktop: a season played with Sim Day and
// ended from Progress > End Season, then every record and history screen
// opened from its menu entry, the two charts drawn from the season's
// figures, and the reports written from the Output menu.
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>
#include <filesystem>
#include <memory>

#include "app/history_lists_screen.h"
#include "app/main_window.h"
#include "app/play_steps.h"
#include "app/player_card_screen.h"
#include "app/player_career_view.h"
#include "app/records_screen.h"
#include "app/school_history_screen.h"
#include "app/sim_games_screen.h"
#include "cpu/computer_roster.h"
#include "league/dynasty_fixture.h"
#include "league/start_season.h"
#include "screen_probes.h"
#include "screenshots.h"
#include "season/season_session.h"
#include "started_season.h"
#include "store/menu_gate.h"

namespace courtmere::app {

using testing::Column;
using testing::Find;
using testing::Screenshot;

class HistoryTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    dynasty_ = testing::StartedSeason();
    Session& session = dynasty_->session();
    // The season's figures in memory, as a load of the started season has them.
    ResumeSeason(session);
    window_ = testing::ShowMainWindow(session);
    ChooseQuickestTicker(session, *window_);
    LetComputerSetLineup(*window_, dynasty_->ui());
    window_->CloseScreens();
    window_->RunCommand("mnuSeasonSimGames");
    auto* games = Find<SimGamesScreen>(*window_);
    QVERIFY(games);
    for (int step = 0; session.config.Stage == kStageSeason && step < 400; ++step) {
      if (games->SimButton()->isEnabled()) {
        SimDayAsUser(*window_, dynasty_->ui(), *games);
      } else {
        games->NextDay();
      }
    }
    QCOMPARE(QString::fromStdString(session.config.Stage), QString("Season Over"));
    window_->CloseScreens();
    SettleEvents();
    window_->RunCommand("mnuProgressEnd");
    QCOMPARE(QString::fromStdString(session.config.Stage), QString("End Season"));
  }
  void cleanupTestCase() {
    dynasty_->session().quitting = true;
    window_.reset();
    dynasty_.reset();
  }

  void recordBooks() {
    auto* records = Open<RecordsScreen>("mnuNationalRecords");
    QVERIFY(records);
    QCOMPARE(records->Grid()->Model()->rowCount(), 15);
    QCOMPARE(Column(records->Grid(), 0).first(), QString("PPG"));
    QVERIFY(Column(records->Grid(), 1).last().endsWith("%"));
    records->Type()->setCurrentText("Career");
    QCOMPARE(records->Grid()->Model()->rowCount(), 10);
    auto* own = Open<RecordsScreen>("mnuManageRecord");
    QVERIFY(own);
    QCOMPARE(own->List()->currentText(), QString(testing::kUserSchool));
    QVERIFY(Column(own->Grid(), 4).contains(QString(testing::kUserSchool)));
    auto* conference = Open<RecordsScreen>("MnuConferenceRecord");
    QVERIFY(conference);
    QCOMPARE(conference->Grid()->Model()->rowCount(), 15);
    Screenshot(conference, "conference_records");
  }

  void schoolHistoryWithItsChart() {
    auto* history = Open<SchoolHistoryScreen>("mnuHistorySchool");
    QVERIFY(history);
    QCOMPARE(history->Seasons()->Model()->rowCount(), 1);
    QVERIFY(history->Totals()->text().contains("All-time record"));
    QVERIFY(history->ChartPoints() >= 1);
    history->School()->setCurrentIndex(0);
    QCOMPARE(history->Seasons()->Model()->rowCount(), 1);
    Screenshot(history, "school_history");
  }

  void coachHistoryAndTopCoaches() {
    auto* coach = Open<HistoryListScreen>("mnuHistoryCoach");
    QVERIFY(coach);
    QCOMPARE(coach->Grid()->Model()->rowCount(), 1);
    QVERIFY(!Column(coach->Grid(), 10).first().isEmpty());
    QVERIFY(coach->Title()->text().contains("D&#39;Angelo") ||
            coach->Title()->text().contains("D'Angelo"));
    auto* top = Open<HistoryListScreen>("mnuHeadlinesCoaches");
    QVERIFY(top);
    QCOMPARE(top->Grid()->Model()->rowCount(), 10);
    auto* nct = Open<HistoryListScreen>("mnuHistoryNCT");
    QVERIFY(nct);
    QCOMPARE(nct->Grid()->Model()->rowCount(), 1);
  }

  void playerCardWithHisCareer() {
    window_->CloseScreens();
    SettleEvents();
    const auto id = dynasty_->store().ScalarInt(
        "SELECT p.Id FROM Player AS p, PlayerStats AS s WHERE s.Id = p.Id AND p.Team = ? AND "
        "s.Games > 0 LIMIT 1",
        std::string(testing::kUserSchool));
    QVERIFY(id);
    window_->OpenPlayerCard(static_cast<int>(*id));
    auto* card = Find<PlayerCardScreen>(*window_);
    QVERIFY(card);
    auto* career = card->findChild<PlayerCareerView*>();
    QVERIFY(career);
    QCOMPARE(career->Years()->Model()->rowCount(), 1);
    QCOMPARE(career->ChartPoints(), 6);
    card->findChild<QTabWidget*>("tabPlayerCard")->setCurrentIndex(1);
    Screenshot(card, "player_career");
  }

  void reportsFromTheOutputMenu() {
    const std::filesystem::path reports = dynasty_->folder() / "reports";
    window_->RunCommand("mnuOutputDraftJSB");
    window_->RunCommand("mnuOutputDraftFBB");
    const std::string year = std::to_string(dynasty_->session().config.CurrYear);
    QVERIFY(std::filesystem::exists(reports / ("JSBdraftpool" + year + ".csv")));
    QVERIFY(std::filesystem::exists(reports / ("FBBdraftpool" + year + ".txt")));
    QVERIFY(dynasty_->ui().Messages().back().starts_with("The draft pool has been saved"));
    // The draft's list waits for the draft: the entry is closed.
    QVERIFY(!window_->Entry("mnuOutputMochDraft")->isEnabled());
  }

 private:
  template <class T>
  T* Open(const char* entry) {
    window_->CloseScreens();
    SettleEvents();
    if (!window_->Entry(entry)->isEnabled()) return nullptr;
    window_->RunCommand(entry);
    return Find<T>(*window_);
  }

  std::unique_ptr<testing::DynastyFixture> dynasty_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::HistoryTest)
#include "history_test.moc"
