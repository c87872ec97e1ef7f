#include "app/score_ticker.h"

#include <QEventLoop>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "app/screen.h"
#include "league/seeded_name.h"
#include "platform/ui.h"

namespace courtmere::app {

ScoreTicker::ScoreTicker(std::function<void(const std::string&, const std::string&)> openBracket,
                         std::function<void()> openTestScores, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      openBracket_(std::move(openBracket)),
      openTestScores_(std::move(openTestScores)),
      lines_(new QListWidget(this)),
      skip_(new QPushButton("Skip", this)) {
  setObjectName("frmMessageGames");
  setWindowTitle(ToQString(kProgramTitle) + " - Scores");
  setModal(false);
  lines_->setObjectName("lstScores");
  skip_->setObjectName("cmdSkip");
  skip_->setToolTip("Play the rest of the games without pausing between them");
  connect(skip_, &QPushButton::clicked, this, &ScoreTicker::Skip);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lines_);
  layout->addWidget(skip_, 0, Qt::AlignRight);
  resize(380, 300);
}

QString ScoreTicker::ResultLine(const std::string& winner, int winnerScore,
                                const std::string& loser, int loserScore) {
  return QString("%1 %2, %3 %4")
      .arg(ToQString(winner))
      .arg(winnerScore)
      .arg(ToQString(loser))
      .arg(loserScore);
}

void ScoreTicker::Clear() {
  lines_->clear();
  skipping_ = false;
  skip_->setEnabled(true);
}

void ScoreTicker::Skip() {
  skipping_ = true;
  skip_->setEnabled(false);
  if (waiting_ != nullptr) waiting_->quit();
}

// A name on the ticker carries the poll rank before the school ("3. Duke").
bool ScoreTicker::IsUserSchool(const std::string& shown) const {
  return !userSchool_.empty() && SeededName::Parse(shown).school == userSchool_;
}

// The newest result stands on top.
void ScoreTicker::GameResult(const std::string& winner, int winnerScore, const std::string& loser,
                             int loserScore) {
  lines_->insertItem(0, ResultLine(winner, winnerScore, loser, loserScore));
  lastWasUsers_ = IsUserSchool(winner) || IsUserSchool(loser);
  if (lastWasUsers_) {
    QFont font = lines_->item(0)->font();
    font.setBold(true);
    lines_->item(0)->setFont(font);
  }
  if (!isVisible()) {
    if (parentWidget()) move(parentWidget()->geometry().topRight() - QPoint(width() + 24, -80));
    show();
  }
}

// Design decision: the auto-sim hands the season to the computer, and a
// pause after each of its 1,500 games would keep the player waiting a
// quarter of an hour; so while it runs the ticker pauses only on the user's
// own games, as long as the option asks, and lets the others pass. A day the
// user plays himself pauses after every game.
void ScoreTicker::Wait(double seconds) {
  if (skipping_ || (autoSim_ && !lastWasUsers_)) return;
  QEventLoop loop;
  waiting_ = &loop;
  QTimer::singleShot(static_cast<int>(seconds * 1000), &loop, &QEventLoop::quit);
  loop.exec();
  waiting_ = nullptr;
}

void ScoreTicker::ShowPreseasonBracket(const std::string& tournament) {
  openBracket_("Preseason", tournament);
}

void ScoreTicker::ShowConferenceBracket(const std::string& conference) {
  openBracket_("Conference", conference);
}

}  // namespace courtmere::app
