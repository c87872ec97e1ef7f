// The options screen: it shows the session's values and writes what the user
// submits to the session and the store. And the ticker the option paces: it
// waits as asked, passes other schools' games during the auto-sim, and Skip
// ends its waiting until the next flow.
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <memory>

#include "app/options_dialog.h"
#include "app/score_ticker.h"
#include "app_dynasty.h"
#include "store/config.h"
#include "store/menu_gate.h"

namespace courtmere::app {

using testing::AppDynasty;

class OptionsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { dynasty_ = std::make_unique<AppDynasty>(); }
  void cleanup() { dynasty_.reset(); }

  void whatIsSubmittedComesBack() {
    {
      OptionsDialog dialog(dynasty_->session());
      QVERIFY(!dialog.findChild<QCheckBox*>("chkPBP")->isChecked());
      QCOMPARE(dialog.findChild<QComboBox*>("cmbSpeed")->currentText(), QString("5"));
      QCOMPARE(dialog.findChild<QComboBox*>("cmbSpeed")->count(), 11);
      QCOMPARE(dialog.findChild<QComboBox*>("cmbSpeed")->itemText(0), QString("0 - no pause"));
      dialog.findChild<QCheckBox*>("chkPBP")->setChecked(true);
      dialog.findChild<QCheckBox*>("chkSave")->setChecked(true);
      dialog.findChild<QCheckBox*>("chkBox")->setChecked(true);
      dialog.findChild<QComboBox*>("cmbSpeed")->setCurrentText("8");
      dialog.Submit();
    }
    QCOMPARE(dynasty_->ui().Messages().back(), std::string("Your Settings have been updated!"));
    const Config stored = LoadConfig(dynasty_->store());
    QCOMPARE(stored.PlayByPlay, 1);
    QCOMPARE(stored.Autosave, 1);
    QCOMPARE(stored.NumPlayers, 1);
    QCOMPARE(stored.SimSpeed, 8);
    QCOMPARE(dynasty_->session().config.SimSpeed, 8);

    OptionsDialog again(dynasty_->session());
    QVERIFY(again.findChild<QCheckBox*>("chkPBP")->isChecked());
    QVERIFY(again.findChild<QCheckBox*>("chkSave")->isChecked());
    QVERIFY(again.findChild<QCheckBox*>("chkBox")->isChecked());
    QCOMPARE(again.findChild<QComboBox*>("cmbSpeed")->currentText(), QString("8"));
  }

  void theTickerWaitsUnlessTheAutoSimOrSkipSaysNot() {
    ScoreTicker ticker([](const std::string&, const std::string&) {}, [] {});
    ticker.SetUserSchool(AppDynasty::kHuman);
    QElapsedTimer clock;
    ticker.GameResult("3. St. John's", 80, "Duke", 70);
    clock.start();
    ticker.Wait(0.3);
    QVERIFY(clock.elapsed() >= 250);
    QVERIFY(ticker.Lines()->item(0)->font().bold());

    ticker.SetAutoSim(true);
    ticker.GameResult("Duke", 80, "Clemson", 70);
    clock.restart();
    ticker.Wait(5);
    QVERIFY2(clock.elapsed() < 2500, "another school's game passes during the auto-sim");
    ticker.GameResult("Duke", 80, "St. John's", 70);
    clock.restart();
    ticker.Wait(0.3);
    QVERIFY(clock.elapsed() >= 250);
    ticker.SetAutoSim(false);

    // Skip during a pause ends it, and the rest of the flow does not wait.
    QTimer::singleShot(100, ticker.SkipButton(), &QPushButton::click);
    clock.restart();
    ticker.Wait(5);
    ticker.Wait(5);
    QVERIFY(clock.elapsed() < 2500);
    QVERIFY(!ticker.SkipButton()->isEnabled());
    ticker.Clear();
    QVERIFY(!ticker.Skipping());
    QVERIFY(ticker.SkipButton()->isEnabled());
  }

  void anOldSavesBoxScoreValueShowsUnchecked() {
    dynasty_->store().Exec("UPDATE Config SET NumPlayers = 5 WHERE IdConfig = 0");
    MenuGate(dynasty_->session());
    OptionsDialog dialog(dynasty_->session());
    QVERIFY(!dialog.findChild<QCheckBox*>("chkBox")->isChecked());
  }

 private:
  std::unique_ptr<AppDynasty> dynasty_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::OptionsTest)
#include "options_test.moc"
