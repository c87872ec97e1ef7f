#include "app/bracket_screen.h"

#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "app/scope.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

constexpr int kMargin = 16;
// A column is as wide as the window allows between these two; below the
// narrowest the picture scrolls.
constexpr int kNarrowestBox = 160;
constexpr int kWidestBox = 230;
constexpr int kColumnGap = 32;
constexpr int kLine = 18;               // one side of a game
constexpr int kGameHeight = 3 * kLine;  // two sides and the site
constexpr int kGameGap = 14;
constexpr int kRowHeight = kGameHeight + kGameGap;
constexpr int kRoundHeading = 2 * kLine;
constexpr int kSectionHeading = 26;
const QColor kConnectorColor(120, 120, 120);

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

void DrawGame(QPainter& paint, const QRect& box, const BracketMatch& game) {
  const QRect home(box.x(), box.y(), box.width(), kLine);
  const QRect away(box.x(), box.y() + kLine, box.width(), kLine);
  paint.setPen(QColor(120, 120, 120));
  paint.setBrush(QColor(252, 252, 246));
  paint.drawRect(box);
  paint.drawLine(away.topLeft(), away.topRight());
  paint.setPen(Qt::black);
  DrawSide(paint, home, game.home);
  DrawSide(paint, away, game.away);
  if (!game.site.empty()) {
    QFont font = paint.font();
    font.setItalic(true);
    paint.setFont(font);
    paint.setPen(QColor(90, 90, 90));
    const QRect site(box.x(), box.bottom() + 1, box.width(), kLine);
    paint.drawText(
        site, Qt::AlignVCenter | Qt::AlignLeft,
        paint.fontMetrics().elidedText(ToQString(game.site), Qt::ElideRight, site.width()));
    font.setItalic(false);
    paint.setFont(font);
    paint.setPen(Qt::black);
  }
}

size_t MostRounds(const BracketView& view) {
  size_t most = 1;
  for (const BracketSection& section : view.sections) most = std::max(most, section.rounds.size());
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
  layouts_.clear();
  for (const BracketSection& section : view_.sections) layouts_.push_back(LayOut(section));
  setMinimumSize(minimumSizeHint());
  updateGeometry();
  update();
}

// A bracket of one part has no heading of its own above its rounds.
int BracketCanvas::HeadingHeight(size_t section) const {
  return view_.sections[section].title.empty() ? 0 : kSectionHeading;
}

int BracketCanvas::SectionHeight(size_t section) const {
  return HeadingHeight(section) + kRoundHeading + layouts_[section].rowCount * kRowHeight;
}

int BracketCanvas::SectionTop(size_t section) const {
  int top = kMargin;
  for (size_t s = 0; s < section; ++s) top += SectionHeight(s);
  return top;
}

int BracketCanvas::Height() const {
  return SectionTop(layouts_.size()) + kSectionHeading + kMargin;  // the champion's line
}

int BracketCanvas::WidthFor(int box) const {
  const int rounds = static_cast<int>(MostRounds(view_));
  return 2 * kMargin + rounds * box + (rounds - 1) * kColumnGap;
}

QSize BracketCanvas::minimumSizeHint() const {
  return {WidthFor(kNarrowestBox), Height()};
}

QSize BracketCanvas::sizeHint() const {
  return {WidthFor(kWidestBox), Height()};
}

int BracketCanvas::BoxWidth() const {
  const int rounds = static_cast<int>(MostRounds(view_));
  const int fits = (width() - 2 * kMargin - (rounds - 1) * kColumnGap) / rounds;
  return std::clamp(fits, kNarrowestBox, kWidestBox);
}

QRect BracketCanvas::GameBox(int section, int round, int game) const {
  const auto s = static_cast<size_t>(section);
  const double row = layouts_[s].rows[static_cast<size_t>(round)][static_cast<size_t>(game)];
  const int top =
      SectionTop(s) + HeadingHeight(s) + kRoundHeading + static_cast<int>(row * kRowHeight);
  return {kMargin + round * (BoxWidth() + kColumnGap), top, BoxWidth(), 2 * kLine};
}

QPolygon BracketCanvas::ConnectorPath(int section, const BracketConnector& c) const {
  const QRect from = GameBox(section, c.fromRound, c.fromGame);
  const QRect to = GameBox(section, c.toRound, c.toGame);
  const QPoint start(from.right() + 1, from.top() + kLine);
  const QPoint end(to.left(), to.top() + (c.toHome ? kLine / 2 : kLine + kLine / 2));
  const int middle = start.x() + kColumnGap / 2;
  return QPolygon({start, {middle, start.y()}, {middle, end.y()}, end});
}

std::string BracketCanvas::SchoolAt(const QPoint& point) const {
  for (size_t s = 0; s < view_.sections.size(); ++s) {
    const std::vector<BracketRound>& rounds = view_.sections[s].rounds;
    for (size_t r = 0; r < rounds.size(); ++r) {
      for (size_t g = 0; g < rounds[r].games.size(); ++g) {
        const QRect box = GameBox(static_cast<int>(s), static_cast<int>(r), static_cast<int>(g));
        if (!box.contains(point)) continue;
        const BracketMatch& game = rounds[r].games[g];
        return point.y() < box.top() + kLine ? game.home.school : game.away.school;
      }
    }
  }
  return {};
}

void BracketCanvas::mousePressEvent(QMouseEvent* event) {
  const std::string school = SchoolAt(event->position().toPoint());
  if (!school.empty()) emit SchoolClicked(school);
}

void BracketCanvas::paintEvent(QPaintEvent*) {
  QPainter paint(this);
  paint.setRenderHint(QPainter::Antialiasing, false);
  for (size_t s = 0; s < view_.sections.size(); ++s) {
    const BracketSection& section = view_.sections[s];
    const int top = SectionTop(s);
    QFont font = paint.font();
    font.setBold(true);
    paint.setFont(font);
    paint.drawText(QRect(kMargin, top, width(), kSectionHeading), Qt::AlignLeft | Qt::AlignVCenter,
                   ToQString(section.title));
    font.setBold(false);
    paint.setFont(font);
    paint.setPen(kConnectorColor);
    for (const BracketConnector& c : section.connectors) {
      paint.drawPolyline(ConnectorPath(static_cast<int>(s), c));
    }
    paint.setPen(Qt::black);
    for (size_t r = 0; r < section.rounds.size(); ++r) {
      const BracketRound& round = section.rounds[r];
      const int x = kMargin + static_cast<int>(r) * (BoxWidth() + kColumnGap);
      paint.drawText(QRect(x, top + HeadingHeight(s), BoxWidth() + kColumnGap, kRoundHeading),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     ToQString(round.title) + "\n" + ToQString(round.when));
      for (size_t g = 0; g < round.games.size(); ++g) {
        DrawGame(paint, GameBox(static_cast<int>(s), static_cast<int>(r), static_cast<int>(g)),
                 round.games[g]);
      }
    }
  }
  if (!view_.champion.empty()) {
    QFont font = paint.font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    paint.setFont(font);
    paint.drawText(QRect(kMargin, SectionTop(layouts_.size()), width(), kSectionHeading),
                   Qt::AlignLeft | Qt::AlignVCenter, "Champion: " + ToQString(view_.champion));
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
  // The columns widen with the window and the picture scrolls only when
  // even the narrowest columns do not fit.
  auto* scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
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
  connect(canvas_, &BracketCanvas::SchoolClicked, this,
          [this](const std::string& school) { host_.OpenTeam(school); });
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
