#include "app/score_ticker.h"

#include <QEventLoop>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "app/screen.h"
#include "platform/ui.h"

namespace courtmere::app {

ScoreTicker::ScoreTicker(std::function<void(const std::string&, const std::string&)> openBracket,
                         QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      openBracket_(std::move(openBracket)),
      lines_(new QListWidget(this)) {
  setObjectName("frmMessageGames");
  setWindowTitle(ToQString(kProgramTitle) + " - Scores");
  setModal(false);
  lines_->setObjectName("lstScores");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lines_);
  resize(380, 260);
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
}

// The newest result stands on top.
void ScoreTicker::GameResult(const std::string& winner, int winnerScore, const std::string& loser,
                             int loserScore) {
  lines_->insertItem(0, ResultLine(winner, winnerScore, loser, loserScore));
  if (!isVisible()) {
    if (parentWidget()) move(parentWidget()->geometry().topRight() - QPoint(width() + 24, -80));
    show();
  }
}

void ScoreTicker::Wait(double seconds) {
  QEventLoop loop;
  QTimer::singleShot(static_cast<int>(seconds * 1000), &loop, &QEventLoop::quit);
  loop.exec();
}

void ScoreTicker::ShowPreseasonBracket(const std::string& tournament) {
  openBracket_("Preseason", tournament);
}

void ScoreTicker::ShowConferenceBracket(const std::string& conference) {
  openBracket_("Conference", conference);
}

}  // namespace courtmere::app
