#include "app/bracket_screen.h"

#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "app/scope.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

constexpr int kMargin = 16;
constexpr int kBoxWidth = 210;
constexpr int kColumnGap = 40;
constexpr int kLine = 18;               // one side of a game
constexpr int kGameHeight = 3 * kLine;  // two sides and the site
constexpr int kGameGap = 14;
constexpr int kRoundHeading = 2 * kLine;
constexpr int kSectionHeading = 26;

QString SideText(const BracketSide& side) {
  if (side.school.empty()) return ToQString(side.pairing);
  QString text = ToQString(side.school);
  if (side.seed > 0) text = QString("%1. %2").arg(side.seed).arg(text);
  return text;
}

void DrawSide(QPainter& paint, const QRect& line, const BracketSide& side) {
  QFont font = paint.font();
  font.setBold(side.bold);
  paint.setFont(font);
  paint.drawText(line.adjusted(4, 0, -34, 0), Qt::AlignVCenter | Qt::AlignLeft,
                 paint.fontMetrics().elidedText(SideText(side), Qt::ElideRight, line.width() - 40));
  if (side.points > 0) {
    paint.drawText(line.adjusted(0, 0, -4, 0), Qt::AlignVCenter | Qt::AlignRight,
                   QString::number(side.points));
  }
  font.setBold(false);
  paint.setFont(font);
}

void DrawGame(QPainter& paint, const QPoint& at, const BracketMatch& game) {
  const QRect home(at.x(), at.y(), kBoxWidth, kLine);
  const QRect away(at.x(), at.y() + kLine, kBoxWidth, kLine);
  paint.setPen(QColor(120, 120, 120));
  paint.setBrush(QColor(252, 252, 246));
  paint.drawRect(home.united(away));
  paint.drawLine(away.topLeft(), away.topRight());
  paint.setPen(Qt::black);
  DrawSide(paint, home, game.home);
  DrawSide(paint, away, game.away);
  if (!game.site.empty()) {
    QFont font = paint.font();
    font.setItalic(true);
    paint.setFont(font);
    paint.setPen(QColor(90, 90, 90));
    paint.drawText(QRect(at.x(), at.y() + 2 * kLine, kBoxWidth, kLine),
                   Qt::AlignVCenter | Qt::AlignLeft, ToQString(game.site));
    font.setItalic(false);
    paint.setFont(font);
    paint.setPen(Qt::black);
  }
}

// The top of game `i` of a round of `count` games: the games share the
// section's height evenly, so a round of half as many games stands between
// the pairs it follows.
int GameTop(int top, int height, int i, int count) {
  const double slot = static_cast<double>(height) / count;
  return top + static_cast<int>(slot * (i + 0.5)) - kLine;
}

size_t MostGames(const BracketSection& section) {
  size_t most = 1;
  for (const BracketRound& round : section.rounds) most = std::max(most, round.games.size());
  return most;
}

}  // namespace

BracketCanvas::BracketCanvas(QWidget* parent) : QWidget(parent) {
  setObjectName("picBracket");
  setAutoFillBackground(true);
  QPalette palette = this->palette();
  palette.setColor(QPalette::Window, Qt::white);
  setPalette(palette);
}

void BracketCanvas::SetBracket(BracketView view) {
  view_ = std::move(view);
  setMinimumSize(sizeHint());
  resize(sizeHint());
  update();
}

int BracketCanvas::SectionHeight(const BracketSection& section) const {
  return kSectionHeading + kRoundHeading +
         static_cast<int>(MostGames(section)) * (kGameHeight + kGameGap);
}

QSize BracketCanvas::sizeHint() const {
  size_t rounds = 1;
  int height = 2 * kMargin + kSectionHeading;  // the champion's line
  for (const BracketSection& section : view_.sections) {
    rounds = std::max(rounds, section.rounds.size());
    height += SectionHeight(section);
  }
  const int width = 2 * kMargin + static_cast<int>(rounds) * (kBoxWidth + kColumnGap);
  return {width, height};
}

void BracketCanvas::paintEvent(QPaintEvent*) {
  QPainter paint(this);
  paint.setRenderHint(QPainter::Antialiasing, false);
  int top = kMargin;
  for (const BracketSection& section : view_.sections) {
    QFont font = paint.font();
    font.setBold(true);
    paint.setFont(font);
    paint.drawText(QRect(kMargin, top, width(), kSectionHeading), Qt::AlignLeft | Qt::AlignVCenter,
                   ToQString(section.title));
    font.setBold(false);
    paint.setFont(font);
    const int gamesTop = top + kSectionHeading + kRoundHeading;
    const int gamesHeight = SectionHeight(section) - kSectionHeading - kRoundHeading;
    for (size_t r = 0; r < section.rounds.size(); ++r) {
      const BracketRound& round = section.rounds[r];
      const int x = kMargin + static_cast<int>(r) * (kBoxWidth + kColumnGap);
      paint.drawText(QRect(x, top + kSectionHeading, kBoxWidth, kRoundHeading),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     ToQString(round.title) + "\n" + ToQString(round.when));
      const int count = static_cast<int>(round.games.size());
      const bool halves = r + 1 < section.rounds.size() &&
                          2 * section.rounds[r + 1].games.size() == round.games.size();
      for (int i = 0; i < count; ++i) {
        const int y = GameTop(gamesTop, gamesHeight, i, count);
        DrawGame(paint, QPoint(x, y), round.games[i]);
        if (!halves) continue;
        // The winners of games 2k and 2k+1 meet in game k of the next round.
        const int next = GameTop(gamesTop, gamesHeight, i / 2, count / 2) + kLine;
        const int middle = x + kBoxWidth + kColumnGap / 2;
        paint.setPen(QColor(120, 120, 120));
        paint.drawLine(x + kBoxWidth, y + kLine, middle, y + kLine);
        paint.drawLine(middle, y + kLine, middle, next);
        paint.drawLine(middle, next, x + kBoxWidth + kColumnGap, next);
        paint.setPen(Qt::black);
      }
    }
    top += SectionHeight(section);
  }
  if (!view_.champion.empty()) {
    QFont font = paint.font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    paint.setFont(font);
    paint.drawText(QRect(kMargin, top, width(), kSectionHeading), Qt::AlignLeft | Qt::AlignVCenter,
                   "Champion: " + ToQString(view_.champion));
  }
}

BracketScreen::BracketScreen(Session& session, ScreenHost& host, Kind kind, std::string name,
                             QWidget* parent)
    : Screen(session, host, parent),
      kind_(kind),
      name_(std::move(name)),
      title_(new QLabel(this)),
      empty_(new QLabel("The tournament has not been set up yet.", this)),
      canvas_(new BracketCanvas(this)) {
  setObjectName("frmBracket");
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  title_->setWordWrap(true);
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(canvas_);
  auto* layout = new QVBoxLayout(this);
  if (kind_ == Kind::kConference) {
    conferences_ = ConferenceList(session, this);
    if (!name_.empty()) conferences_->setCurrentText(ToQString(name_));
    connect(conferences_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    layout->addWidget(conferences_);
  }
  layout->addWidget(title_);
  layout->addWidget(empty_);
  layout->addWidget(scroll, 1);
  resize(kind_ == Kind::kNct || kind_ == Kind::kAct ? 1120 : 900, 720);
  Refresh();
}

QString BracketScreen::Caption() const {
  switch (kind_) {
    case Kind::kConference:
      return "Conference Tournament";
    case Kind::kNct:
      return "NCT";
    case Kind::kAct:
      return "ACT";
    case Kind::kPreseason:
      return ToQString(name_);
  }
  return {};
}

QString BracketScreen::Key() const {
  return QString("frmBracket%1%2").arg(static_cast<int>(kind_)).arg(ToQString(name_));
}

BracketView BracketScreen::Read() const {
  Store& store = session_.Db();
  switch (kind_) {
    case Kind::kConference:
      return ConfBracketView(store, ToStdString(conferences_->currentText()));
    case Kind::kNct:
      return NctBracketView(store);
    case Kind::kAct:
      return ActBracketView(store);
    case Kind::kPreseason:
      return PreseasonBracketView(store, name_);
  }
  return {};
}

void BracketScreen::Refresh() {
  BracketView view = Read();
  QString title = ToQString(view.title);
  if (!view.subtitle.empty()) title += " - " + ToQString(view.subtitle);
  title_->setText(title);
  empty_->setVisible(view.sections.empty());
  canvas_->SetBracket(std::move(view));
}

}  // namespace courtmere::app
