// The live game window, driven offscreen as a user would: Sim Day with
// "Coach this game" ticked, the fastest speed, a timeout, a substitution
// on the lineup tab at the timeout, a change of defence, and Exit at the
// end; and closing the window in the middle of a game. Each game is
// recorded once, as any other.
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <memory>

#include "app/live_game_window.h"
#include "app/main_window.h"
#include "app/play_steps.h"
#include "app/sim_games_screen.h"
#include "app/sub_patterns_screen.h"
#include "app_dynasty.h"
#include "screen_probes.h"
#include "screenshots.h"
#include "store/session.h"

namespace courtmere::app {

using testing::AppDynasty;
using testing::Find;
using testing::Screenshot;

class LiveGameTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    dynasty_ = std::make_unique<AppDynasty>();
    dynasty_->NameCoachRoles();
    dynasty_->ScheduleGame(AppDynasty::kHuman, "Duke", 3, dynasty_->session().config.CurrDay);
    gameNo_ = dynasty_->session().config.MaxGameNo;
    // As the schedule writes a game of a conference's team.
    dynasty_->store().Exec("UPDATE NonConfSchedule SET HomeConf = ? WHERE GameNo = ?",
                           AppDynasty::kConference, gameNo_);
    window_ = std::make_unique<MainWindow>(dynasty_->session());
    window_->show();
    window_->RunGate();
    window_->RunCommand("mnuSeasonSimGames");
    games_ = Find<SimGamesScreen>(*window_);
    QVERIFY(games_);
    QVERIFY(!games_->CoachGame()->isHidden());
    QVERIFY(games_->CoachGame()->isEnabled());
    games_->CoachGame()->setChecked(true);
  }
  void cleanup() {
    delete timer_;
    timer_ = nullptr;
    dynasty_->session().quitting = true;
    window_.reset();
    dynasty_.reset();
  }

  void aWholeGameIsCoachedAtTheFastestSpeed() {
    LiveGameWindow* live = window_->LiveWindow();
    QVERIFY(live);
    int timeoutsAtTheTimeout = -1;
    int subbedIn = 0;
    bool subbed = false;
    bool zoneSeen = false;
    bool exited = false;
    Drive([&](Game& game) {
      GameSide& user = UserTeam(game);
      const QString last = live->PlayByPlay()->count() > 0
                               ? live->PlayByPlay()->item(live->PlayByPlay()->count() - 1)->text()
                               : QString();
      if (last == "Please Click Exit to resume simming games") {
        exited = true;
        live->ExitButton()->click();
        return;
      }
      live->Speed()->setValue(0);
      if (timeoutsAtTheTimeout < 0 && last.endsWith("TIMEOUT***") && game.Resume == 0) {
        timeoutsAtTheTimeout = user.TimeoutsLeft;
        Screenshot(live, "live_game_timeout");
        // At the timeout: a bench man in for the point guard, on the lineup tab.
        live->Tabs()->setCurrentIndex(1);
        QComboBox* guard = live->StarterBox(1);
        for (int i = 1; i < guard->count() && subbedIn == 0; ++i) {
          const int id = guard->itemData(i).toInt();
          if (!user.OnCourt(id)) {
            guard->setCurrentIndex(i);
            subbedIn = id;
          }
        }
        live->UpdateButton()->click();
        subbed = user.Court[1].Id == subbedIn;
        live->Tabs()->setCurrentIndex(0);
      }
      if (game.Half == 1 && game.Clock < 900 && game.UserTimeoutAsked == 0 &&
          timeoutsAtTheTimeout < 0 && live->TimeoutButton()->isEnabled()) {
        live->TimeoutButton()->click();
      }
      if (game.Half == 2 && game.Clock < 1000 && live->Defence()->currentText() != "Zone") {
        live->Defence()->setCurrentText("Zone");
      }
      zoneSeen = zoneSeen || (game.Half == 2 && user.tactics.Defense() == "Zone");
      GoOn(live, game);
    });
    QVERIFY(SimDayAsUser(*window_, dynasty_->ui(), *games_));
    QCOMPARE(timeoutsAtTheTimeout, 2);
    QVERIFY2(subbed, "the bench man stood in the point guard's slot after Update");
    QVERIFY(zoneSeen);
    QVERIFY(exited);
    QVERIFY(live->isHidden());
    const auto& messages = dynasty_->ui().Messages();
    QVERIFY(std::find(messages.begin(), messages.end(),
                      "Your team will call timeout at the next opportunity") != messages.end());
    QVERIFY(std::find(messages.begin(), messages.end(), "Your lineup is now updated.") !=
            messages.end());
    ExpectRecordedOnce();
  }

  void closingTheWindowLeavesTheGameToTheComputer() {
    LiveGameWindow* live = window_->LiveWindow();
    bool closed = false;
    Drive([&](Game& game) {
      live->Speed()->setValue(0);
      if (game.Half == 1 && game.Clock < 600 && !closed) {
        closed = true;
        live->close();
        return;
      }
      GoOn(live, game);
    });
    QVERIFY(SimDayAsUser(*window_, dynasty_->ui(), *games_));
    QVERIFY(closed);
    QVERIFY(live->isHidden());
    ExpectRecordedOnce();
  }

  // Outside a game: the patterns screen from Today's Games; Submit asks and
  // saves.
  void patternsAreSetBeforeAGame() {
    games_->findChild<QPushButton*>("cmdSubPatterns")->click();
    auto* patterns = Find<SubPatternsScreen>(*window_);
    QVERIFY(patterns);
    QTableWidget* table = patterns->Table();
    QVERIFY(table->rowCount() > 0);
    auto* box = qobject_cast<QComboBox*>(table->cellWidget(0, table->columnCount() - 1));
    QCOMPARE(box->currentText(), QString("Normal"));
    box->setCurrentText("More");
    patterns->Submit();
    QCOMPARE(QString::fromStdString(dynasty_->ui().Messages().back()),
             QString("Your substitution patterns have been saved."));
    QCOMPARE(dynasty_->store()
                 .ScalarInt("SELECT count(*) FROM Player WHERE Team = ? AND SubPattern = 'More'",
                            AppDynasty::kHuman)
                 .value_or(0),
             int64_t{1});
  }

 private:
  // Acts on the running game each time the window handles events.
  void Drive(std::function<void(Game&)> step) {
    delete timer_;
    timer_ = new QTimer(this);
    QTimer* timer = timer_;
    connect(timer, &QTimer::timeout, this, [this, step] {
      LiveGameWindow* live = window_->LiveWindow();
      if (live != nullptr && live->Running() != nullptr) step(*live->Running());
    });
    timer->start(1);
  }

  // Back to the game tab (a forced substitution is seen) and Start when
  // the game is paused.
  static void GoOn(LiveGameWindow* live, Game& game) {
    if (game.SubForced == 1) live->Tabs()->setCurrentIndex(0);
    if (game.Resume == 0) live->StartButton()->click();
  }

  void ExpectRecordedOnce() {
    Store& store = dynasty_->store();
    QCOMPARE(store.ScalarInt("SELECT count(*) FROM NonConfSchedule WHERE GameNo = ?", gameNo_)
                 .value_or(0),
             int64_t{1});
    QVERIFY(store.ScalarInt("SELECT HomeScore FROM NonConfSchedule WHERE GameNo = ?", gameNo_)
                .value_or(0) > 0);
    QCOMPARE(store
                 .ScalarInt("SELECT TotalWins + TotalLosses FROM TeamStats WHERE SchoolName = ?",
                            AppDynasty::kHuman)
                 .value_or(-1),
             int64_t{1});
  }

  std::unique_ptr<AppDynasty> dynasty_;
  std::unique_ptr<MainWindow> window_;
  SimGamesScreen* games_ = nullptr;
  int gameNo_ = 0;
  QTimer* timer_ = nullptr;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::LiveGameTest)
#include "live_game_test.moc"
