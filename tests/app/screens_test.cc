// The screens over a small dynasty: what they show (names with apostrophes
// and accents intact), what a click on them opens, and the roster rules they
// call.
#include <QAction>
#include <QComboBox>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>
#include <memory>

#include "app/awards_screen.h"
#include "app/box_score_screen.h"
#include "app/game_log_screen.h"
#include "app/grid_model.h"
#include "app/inbox_dock.h"
#include "app/injuries_screen.h"
#include "app/intro_screen.h"
#include "app/leaders_screen.h"
#include "app/main_window.h"
#include "app/manage_roster_screen.h"
#include "app/player_card_screen.h"
#include "app/roster_screen.h"
#include "app/schedule_screen.h"
#include "app/standings_screen.h"
#include "app/team_info_screen.h"
#include "app/team_notes_screen.h"
#include "app/team_stats_screen.h"
#include "app/text_viewer.h"
#include "app_dynasty.h"
#include "screen_probes.h"
#include "screenshots.h"
#include "season/awards.h"
#include "store/inbox.h"

namespace courtmere::app {

using testing::AppDynasty;
using testing::Column;
using testing::Find;
using testing::Screenshot;

namespace {

QString Title(Screen* screen) {
  return qobject_cast<QMdiSubWindow*>(screen->parentWidget())->windowTitle();
}

}  // namespace

class ScreensTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    dynasty_ = std::make_unique<AppDynasty>();
    dynasty_->NameCoachRoles();
    window_ = std::make_unique<MainWindow>(dynasty_->session());
    window_->show();
  }
  void cleanup() {
    dynasty_->session().quitting = true;
    window_.reset();
    dynasty_.reset();
  }

  void theIntroOffersWhatExists() {
    IntroScreen* intro = window_->Intro();
    QVERIFY(intro);
    Screenshot(window_.get(), "intro");
    for (const char* label : {"lblNewSeason", "lblLoad", "lblOptions", "lblHelp", "lblExit"}) {
      QVERIFY2(intro->findChild<QPushButton*>(label)->isEnabled(), label);
    }
    QVERIFY(!window_->Entry("mnuFile")->isEnabled());
    window_->RunGate();
    QVERIFY(!window_->Intro());
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Contact Period)"));
    QCOMPARE(window_->Inbox()->windowTitle(), QString("St. John's Email Inbox"));
  }

  void theInboxShowsTheWeeksMessages() {
    AddInboxMessage(dynasty_->session(), "Assistant Coach", "Season Instructions",
                    "Welcome to St. John's.\nYour first week.");
    AddInboxMessage(dynasty_->session(), "Trainer", "Injury Update", "All is well.");
    window_->RunGate();
    GridView* inbox = window_->Inbox()->Grid();
    QCOMPARE(Column(inbox, 0), (QStringList{"Assistant Coach", "Trainer"}));
    QCOMPARE(Column(inbox, 1), (QStringList{"Season Instructions", "Injury Update"}));
    emit inbox->CellClicked(0, 1);
    QCOMPARE(window_->Inbox()->findChild<QPlainTextEdit*>()->toPlainText(),
             QString("Welcome to St. John's.\nYour first week."));
    Screenshot(window_.get(), "main_window");
  }

  void teamInfoShowsTheSchool() {
    window_->RunGate();
    window_->Entry("mnuManagementInfo")->trigger();
    auto* info = Find<TeamInfoScreen>(*window_);
    QVERIFY(info);
    const QStringList values = Column(info->Grid(), 1);
    QVERIFY(values.contains("St. John's"));
    QVERIFY(values.contains("2,270,976"));
    QVERIFY(values.contains("Pat O'Neil"));
    info->Schools()->setCurrentText(AppDynasty::kAccented);
    QVERIFY(Column(info->Grid(), 1).contains(QString::fromUtf8(AppDynasty::kAccented)));
    Screenshot(window_.get(), "team_info");
  }

  void theRosterKeepsARefusedChartOnScreen() {
    window_->RunGate();
    window_->Entry("mnuManagementRoster")->trigger();
    auto* roster = Find<RosterScreen>(*window_);
    QVERIFY(roster);
    QCOMPARE(Title(roster), QString("St. John's Roster"));
    QVERIFY(Column(roster->Grid(), 0).contains(QString::fromUtf8("José Núñez")));
    Screenshot(window_.get(), "roster");

    Store& store = dynasty_->store();
    const DepthChart stored = LoadDepthChart(store, AppDynasty::kHuman);
    QCOMPARE(roster->ChosenChart().ids, stored.ids);
    // The point guard also starts at shooting guard.
    QComboBox* sg = roster->ChartBox(1);
    sg->setCurrentIndex(sg->findData(stored.ids[0]));
    roster->SubmitChart();
    QCOMPARE(QString::fromStdString(dynasty_->ui().Messages().back()),
             QString("Your Depth Chart has the same player starting at two positions. Please "
                     "correct this and re-submit."));
    QCOMPARE(sg->currentData().toInt(), stored.ids[0]);
    QCOMPARE(LoadDepthChart(store, AppDynasty::kHuman).ids, stored.ids);

    // The point guards and the shooting guards trade places: a chart that passes.
    for (int string = 0; string < 3; ++string) {
      QComboBox* pg = roster->ChartBox(string * 5);
      QComboBox* sgs = roster->ChartBox(string * 5 + 1);
      pg->setCurrentIndex(pg->findData(stored.ids[string * 5 + 1]));
      sgs->setCurrentIndex(sgs->findData(stored.ids[string * 5]));
    }
    roster->SubmitChart();
    QCOMPARE(QString::fromStdString(dynasty_->ui().Messages().back()),
             QString("Your Depth Chart is now Updated."));
    const DepthChart now = LoadDepthChart(store, AppDynasty::kHuman);
    QCOMPARE(now.ids[0], stored.ids[1]);
    QCOMPARE(now.ids[1], stored.ids[0]);

    roster->findChild<QComboBox*>("cmbPress")->setCurrentText("Full Court");
    roster->SaveTactics();
    QCOMPARE(LoadTactics(store, AppDynasty::kHuman).Press, std::string("Full Court"));
  }

  void manageRosterOpensItsChangesOnlyAfterTraining() {
    window_->RunGate();
    window_->Entry("mnuManageRoster")->trigger();
    auto* manage = Find<ManageRosterScreen>(*window_);
    QVERIFY(manage);
    manage->Grid()->selectRow(0);
    QVERIFY(!manage->findChild<QPushButton*>("cmdCut")->isEnabled());

    dynasty_->SetCalendar("Post Training", 1);
    window_->StoreChanged();
    manage->Grid()->selectRow(0);
    QVERIFY(manage->findChild<QPushButton*>("cmdCut")->isEnabled());
    Screenshot(window_.get(), "manage_roster");
    const int before = static_cast<int>(manage->Grid()->Model()->rowCount());
    manage->Release();
    QCOMPARE(manage->Grid()->Model()->rowCount(), before - 1);
  }

  void theGameLogOpensLogsAndBoxScores() {
    const int played = dynasty_->PlayGame(AppDynasty::kHuman, "Duke", 2, "Thursday", false);
    dynasty_->PlayGame("Clemson", AppDynasty::kHuman, 3, "Saturday", true);
    dynasty_->ScheduleGame(AppDynasty::kAccented, AppDynasty::kHuman, 4, "Thursday");
    QVERIFY(played > 0);
    window_->RunGate();
    window_->Entry("mnuSeasonViewGameLogs")->trigger();
    auto* log = Find<GameLogScreen>(*window_);
    QVERIFY(log);
    GridView* grid = log->Grid();
    QCOMPARE(Column(grid, 3),
             (QStringList{"Duke", "Clemson", QString::fromUtf8(AppDynasty::kAccented)}));
    QVERIFY(Column(grid, 5)[0] == "Win" || Column(grid, 5)[0] == "Loss");
    QCOMPARE(Column(grid, 5)[2], QString(""));
    Screenshot(window_.get(), "game_log");

    emit grid->CellClicked(0, 1);
    auto* text = Find<TextViewer>(*window_);
    QVERIFY(text);
    QVERIFY(text->Text().contains("Duke"));
    Screenshot(window_.get(), "game_log_text");

    grid->selectRow(0);
    log->findChild<QPushButton*>("cmdBoxScore")->click();
    auto* box = Find<BoxScoreScreen>(*window_);
    QVERIFY(box);
    QCOMPARE(Title(box), QString("Duke at St. John's"));
    // The starters of the chart first, point guard to center; the others
    // after them, those who did not play marked DNP; the totals at the foot.
    GridModel* home = box->HomeGrid()->Model();
    const int totals = home->rowCount() - 1;
    QCOMPARE(home->Cell(totals, 0).text, QString("Totals"));
    QVERIFY(home->Cell(totals, 0).bold);
    const QStringList starters = {Abbr("PG1"), Abbr("SG1"), Abbr("SF1"), Abbr("PF1"), Abbr("C1")};
    QCOMPARE(Column(box->HomeGrid(), 0).mid(0, 5), starters);
    for (int row = 0; row < totals; ++row) {
      QVERIFY(!home->Cell(row, 0).text.startsWith("--"));
      if (home->Cell(row, 2).text == "DNP") QVERIFY(home->Cell(row, 18).text.isEmpty());
    }
    Screenshot(window_.get(), "box_score");

    // A name opens his card; the team's row does nothing.
    const QString name = box->HomeGrid()->Model()->Cell(0, 0).text;
    emit box->HomeGrid()->CellClicked(totals, 0);
    QVERIFY(!Find<PlayerCardScreen>(*window_));
    emit box->HomeGrid()->CellClicked(0, 0);
    auto* card = Find<PlayerCardScreen>(*window_);
    QVERIFY(card);
    QVERIFY(dynasty_->ui().Messages().empty());
    Screenshot(window_.get(), "player_card");

    // Close shuts the game log's own window, nothing more.
    log->findChild<QPushButton*>("cmdClose")->click();
    QCoreApplication::processEvents();
    QVERIFY(!Find<GameLogScreen>(*window_));
    QVERIFY(window_->isVisible());
    QVERIFY(dynasty_->ui().Questions().empty());
  }

  void anUnknownNameOnABoxScoreSaysSo() {
    dynasty_->PlayGame(AppDynasty::kHuman, "Duke", 2, "Thursday", false);
    const std::string box = *dynasty_->store().ScalarText("SELECT BoxScore FROM NonConfSchedule");
    dynasty_->store().Exec("UPDATE Player SET AbbrName = 'Somebody Else' WHERE Team = 'Duke'");
    window_->OpenBoxScore(box);
    auto* screen = Find<BoxScoreScreen>(*window_);
    emit screen->AwayGrid()->CellClicked(0, 0);
    QCOMPARE(QString::fromStdString(dynasty_->ui().Messages().back()),
             QString("Error displaying the player. The code is 1"));
    QVERIFY(!Find<PlayerCardScreen>(*window_));
  }

  void teamStatsShowTheSeasonSoFar() {
    dynasty_->PlayGame(AppDynasty::kHuman, "Duke", 2, "Thursday", false);
    window_->RunGate();
    window_->Entry("mnuManagementTeamStats")->trigger();
    auto* stats = Find<TeamStatsScreen>(*window_);
    QVERIFY(stats);
    const QStringList labels = Column(stats->Totals(), 0);
    QCOMPARE(labels.first(), QString("Record"));
    int games = 0;
    for (const QString& g : Column(stats->Players(), 3)) games += g.toInt();
    QVERIFY(games >= 5);
    Screenshot(window_.get(), "team_stats");
  }

  void standingsShowTheUserInBlueAndSort() {
    dynasty_->PlayGame(AppDynasty::kHuman, "Duke", 2, "Thursday", true);
    dynasty_->PlayGame("Clemson", AppDynasty::kAccented, 2, "Thursday", true);
    window_->RunGate();
    window_->Entry("mnuConferenceStandings")->trigger();
    auto* standings = Find<StandingsScreen>(*window_);
    QVERIFY(standings);
    QCOMPARE(standings->Tables().size(), size_t{1});
    GridView* table = standings->Tables()[0];
    QCOMPARE(table->Model()->rowCount(), 4);
    const QStringList names = Column(table, 0);
    QVERIFY(names.contains(QString::fromUtf8(AppDynasty::kAccented)));
    const int user = static_cast<int>(names.indexOf("St. John's"));
    QCOMPARE(
        table->Model()->data(table->Model()->index(user, 0), Qt::ForegroundRole).value<QColor>(),
        QColor(0, 0, 205));
    QVERIFY(!table->Model()
                 ->data(table->Model()->index((user + 1) % 4, 0), Qt::ForegroundRole)
                 .isValid());
    // Winners stand above losers; a click on "Conf Losses" puts the losers first.
    QCOMPARE(Column(table, 2).mid(0, 2), (QStringList{"0", "0"}));
    QCOMPARE(Column(table, 1).mid(0, 2), (QStringList{"1", "1"}));
    table->sortByColumn(2, Qt::DescendingOrder);
    QCOMPARE(table->model()->index(0, 2).data().toString(), QString("1"));
    QCOMPARE(Column(table, 5).at(0), QString("1.000"));
    Screenshot(window_.get(), "standings");

    window_->Entry("mnuNationalStandings")->trigger();
    QCOMPARE(window_->Screens().size(), 2);  // the nation's standings stand apart
  }

  void theScheduleListsGamesAndOpensPlayedOnes() {
    const int played = dynasty_->PlayGame("Duke", AppDynasty::kHuman, 2, "Saturday", false);
    dynasty_->ScheduleGame(AppDynasty::kHuman, AppDynasty::kAccented, 4, "Thursday");
    QVERIFY(played > 0);
    window_->RunGate();
    window_->Entry("mnuConferenceSchedule")->trigger();
    auto* schedule = Find<ScheduleScreen>(*window_);
    QVERIFY(schedule);
    QCOMPARE(Title(schedule), QString("St. John's Schedule"));
    GridView* grid = schedule->Grid();
    QCOMPARE(Column(grid, 3), (QStringList{"Duke", QString::fromUtf8(AppDynasty::kAccented)}));
    QCOMPARE(Column(grid, 2), (QStringList{"Away", "Home"}));
    QVERIFY(Column(grid, 5)[0].startsWith("W ") || Column(grid, 5)[0].startsWith("L "));
    QCOMPARE(Column(grid, 5)[1], QString(""));
    Screenshot(window_.get(), "schedule");
    emit grid->CellClicked(1, 0);
    QVERIFY2(!Find<BoxScoreScreen>(*window_), "a game not played has no box score");
    emit grid->CellClicked(0, 0);
    auto* box = Find<BoxScoreScreen>(*window_);
    QVERIFY(box);
    QCOMPARE(Title(box), QString("St. John's at Duke"));
    schedule->Schools()->setCurrentText(QString::fromUtf8(AppDynasty::kAccented));
    QCOMPARE(Title(schedule), QString::fromUtf8(AppDynasty::kAccented) + " Schedule");
    QCOMPARE(Column(grid, 3), QStringList{"St. John's"});
  }

  void leadersAndInjuriesShowTheSeason() {
    dynasty_->PlayGame(AppDynasty::kHuman, "Duke", 2, "Thursday", true);
    dynasty_->store().Exec(
        "UPDATE Player SET Health = 'Sprained Ankle', TimeInjured = 2 WHERE Name = ?",
        "José Núñez");
    window_->RunGate();
    window_->Entry("mnuConferenceLeaders")->trigger();
    auto* leaders = Find<LeadersScreen>(*window_);
    QVERIFY(leaders);
    const QStringList schools = Column(leaders->Grid(), 3);
    QVERIFY(!schools.isEmpty());
    for (const QString& school : schools) QVERIFY(school == "St. John's" || school == "Duke");
    QCOMPARE(Column(leaders->Grid(), 0).first(), QString("1"));
    QCOMPARE(leaders->Grid()->Model()->headerData(5, Qt::Horizontal, Qt::DisplayRole).toString(),
             QString("PPG"));
    Screenshot(window_.get(), "leaders");
    emit leaders->Grid()->CellClicked(0, 1);
    QVERIFY(Find<PlayerCardScreen>(*window_));

    window_->Entry("mnuNationalInjuries")->trigger();
    auto* injuries = Find<InjuriesScreen>(*window_);
    QVERIFY(injuries);
    // The game itself may have hurt someone else.
    const int row =
        static_cast<int>(Column(injuries->Grid(), 0).indexOf(QString::fromUtf8("José Núñez")));
    QVERIFY(row >= 0);
    QCOMPARE(Column(injuries->Grid(), 3)[row], QString("Sprained Ankle"));
    QCOMPARE(Column(injuries->Grid(), 4)[row], QString("2"));
  }

  void theAwardScreensShowTheHonoursPicked() {
    dynasty_->PlayGame(AppDynasty::kHuman, "Duke", 2, "Thursday", true);
    dynasty_->SetCalendar("Season", 2);
    PickPlayerOfWeek(dynasty_->session());
    PickConferenceTeam(dynasty_->session(), AppDynasty::kConference, "All");
    PickNationalTeams(dynasty_->session());
    const QString weekly = QString::fromStdString(
        dynasty_->store()
            .ScalarText("SELECT Player.Name FROM AwardWinners JOIN Player ON Player.Id = "
                        "AwardWinners.PlayerId WHERE Type = 'week' AND WeekNo = 2")
            .value_or(""));
    QVERIFY(!weekly.isEmpty());

    // The national and conference honours wait for the season's last weeks.
    window_->RunGate();
    QVERIFY(!window_->Entry("mnuHeadlinesAllAmerica")->isEnabled());
    dynasty_->SetCalendar("Season", 16);
    window_->RunGate();

    window_->Entry("mnuHeadlinePlayer")->trigger();
    auto* week = Find<AwardsScreen>(*window_);
    QVERIFY(week);
    QCOMPARE(week->objectName(), QString("frmPlayerWeek"));
    QCOMPARE(Column(week->Grid(), 0), QStringList{"2"});
    QCOMPARE(Column(week->Grid(), 2), QStringList{weekly});
    Screenshot(window_.get(), "player_of_week");
    emit week->Grid()->CellClicked(0, 2);
    QVERIFY(Find<PlayerCardScreen>(*window_));

    window_->Entry("mnuHeadlinesAllAmerica")->trigger();
    AwardsScreen* national = nullptr;
    for (Screen* screen : window_->Screens()) {
      if (screen->objectName() == "frmAATeam") national = qobject_cast<AwardsScreen*>(screen);
    }
    QVERIFY(national);
    const QString first = QString::fromStdString(
        dynasty_->store()
            .ScalarText("SELECT Player.Name FROM AwardWinners JOIN Player ON Player.Id = "
                        "AwardWinners.PlayerId WHERE Type = 'FirstAA' ORDER BY WeekNo, "
                        "AwardWinners.Id LIMIT 1")
            .value_or(""));
    QVERIFY(!first.isEmpty());
    const int team = national->Lists()->findText("First Team", Qt::MatchContains);
    QVERIFY(team >= 0);
    national->Lists()->setCurrentIndex(team);
    QCOMPARE(national->Grid()->Model()->rowCount(), 5);
    QCOMPARE(Column(national->Grid(), 0), (QStringList{"PG", "SG", "SF", "PF", "C"}));
    QCOMPARE(Column(national->Grid(), 1).first(), first);
    // A school's name opens its page.
    const QString school = Column(national->Grid(), 2).first();
    emit national->Grid()->CellClicked(0, 2);
    auto* page = Find<TeamInfoScreen>(*window_);
    QVERIFY(page);
    QCOMPARE(page->Schools()->currentText(), school);
    Screenshot(window_.get(), "all_america");

    window_->Entry("mnuHeadlineConf")->trigger();
    AwardsScreen* conference = nullptr;
    for (Screen* screen : window_->Screens()) {
      if (screen->objectName() == "frmACTeam") conference = qobject_cast<AwardsScreen*>(screen);
    }
    QVERIFY(conference);
    QCOMPARE(conference->Conferences()->currentText(), QString(AppDynasty::kConference));
    QVERIFY(conference->Lists()->count() >= 2);
    QCOMPARE(conference->Grid()->Model()->rowCount(), 5);
    for (const QString& school : Column(conference->Grid(), 2)) {
      QVERIFY(school == "St. John's" || school == "Duke" || school == "Clemson" ||
              school == QString::fromUtf8(AppDynasty::kAccented));
    }
  }

  void teamNotesListTheSeasonsLettersNewestFirst() {
    dynasty_->SetCalendar("Season", 2);
    BringInboxUpTo(dynasty_->session(), 2);
    AddInboxMessage(dynasty_->session(), "Athletic Director", "A word from the AD",
                    "Win at home, coach.");
    dynasty_->store().Exec("INSERT INTO Messages (Type, Week, Message) VALUES (?, ?, ?)", "Injury",
                           3, "José Núñez sprained an ankle");
    dynasty_->SetCalendar("Season", 3);
    window_->RunGate();
    window_->Entry("mnuNewsTeamNotes")->trigger();
    auto* notes = Find<TeamNotesScreen>(*window_);
    QVERIFY(notes);
    QCOMPARE(Column(notes->Grid(), 0), (QStringList{"3", "2"}));
    QCOMPARE(
        Column(notes->Grid(), 2),
        (QStringList{QString::fromUtf8("José Núñez sprained an ankle"), "A word from the AD"}));
    QVERIFY(notes->Text()->toPlainText().isEmpty());
    emit notes->Grid()->CellClicked(1, 2);
    QCOMPARE(notes->Text()->toPlainText(), QString("Win at home, coach."));
    Screenshot(window_.get(), "team_notes");
  }

 private:
  // The AbbrName of the user's man in a place of the depth chart.
  QString Abbr(const char* place) {
    return QString::fromStdString(*dynasty_->store().ScalarText(
        std::string("SELECT AbbrName FROM Player WHERE Id = (SELECT ") + place +
            " FROM Team WHERE SchoolName = ?)",
        AppDynasty::kHuman));
  }

  std::unique_ptr<AppDynasty> dynasty_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::ScreensTest)
#include "screens_test.moc"
