#include "app/home_screen.h"

#include <QChart>
#include <QChartView>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLegend>
#include <QLineSeries>
#include <QRegularExpression>
#include <QValueAxis>
#include <algorithm>

#include "store/session.h"

namespace courtmere::app {

namespace {

void Clear(QLayout* layout) {
  while (QLayoutItem* item = layout->takeAt(0)) {
    // Later: the label may be the sender of the click in hand.
    if (QWidget* widget = item->widget()) {
      widget->hide();
      widget->deleteLater();
    }
    delete item;
  }
}

QString Escaped(const std::string& text) {
  return ToQString(text).toHtmlEscaped();
}

QString GameLine(const HomeGame& g) {
  const QString where = g.Site == "Home" ? "vs." : g.Site == "Away" ? "at" : "vs.";
  QString line =
      QString("Week %1, %2: %3 %4").arg(g.Week).arg(ToQString(g.Day), where, Escaped(g.Opponent));
  if (g.Site == "Neutral") line += " (neutral)";
  return line;
}

}  // namespace

HomeScreen::HomeScreen(Session& session, ScreenHost& host, std::function<void(const char*)> run,
                       std::function<bool(const char*)> usable,
                       std::function<RecruitingPeriod()> period, QWidget* parent)
    : Screen(session, host, parent),
      run_(std::move(run)),
      usable_(std::move(usable)),
      period_(std::move(period)),
      title_(new QLabel(this)),
      calendar_(new QLabel(this)),
      standing_(new QFormLayout),
      chart_(new QChartView(this)),
      games_(new QVBoxLayout),
      letters_(new QVBoxLayout),
      todo_(new QVBoxLayout) {
  setObjectName("frmHome");
  setAutoFillBackground(true);
  title_->setObjectName("lblSchool");
  QFont big = title_->font();
  big.setPointSize(big.pointSize() + 8);
  big.setBold(true);
  title_->setFont(big);
  chart_->setObjectName("chtRanks");
  chart_->setMinimumSize(320, 200);
  chart_->setRenderHint(QPainter::Antialiasing);
  auto* standing = new QVBoxLayout;
  standing->addLayout(standing_);
  standing->addWidget(chart_, 1);
  auto* grid = new QGridLayout(this);
  grid->addWidget(title_, 0, 0, 1, 2);
  grid->addWidget(calendar_, 1, 0, 1, 2);
  grid->addWidget(Panel("Where we stand", standing), 2, 0, 2, 1);
  grid->addWidget(Panel("What to do next", todo_), 2, 1);
  grid->addWidget(Panel("Games", games_), 3, 1);
  grid->addWidget(Panel("Newest letters", letters_), 4, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(3, 1);
  resize(1100, 700);
  Refresh();
}

QWidget* HomeScreen::Panel(const QString& title, QLayout* content) {
  auto* frame = new QFrame(this);
  frame->setFrameShape(QFrame::StyledPanel);
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(new QLabel("<b>" + title + "</b>", frame));
  layout->addLayout(content, 1);
  return frame;
}

void HomeScreen::Refresh() {
  home_ = LoadHome(session_, period_());
  title_->setText(Escaped(home_.School));
  QStringList line;
  if (!home_.Coach.empty()) line << "Coach " + Escaped(home_.Coach);
  line << Escaped(home_.Calendar);
  if (!home_.Period.empty()) line << "Recruiting: " + Escaped(home_.Period);
  calendar_->setText(line.join("  ·  "));
  ShowStanding();
  ShowChart();
  ShowGames();
  ShowLetters();
  ShowTodo();
}

void HomeScreen::ShowStanding() {
  while (standing_->rowCount() > 0) standing_->removeRow(0);
  const auto add = [this](const char* label, const std::string& value) {
    auto* shown = new QLabel(value.empty() ? QString("—") : Escaped(value), this);
    shown->setObjectName(QString("lbl") + label);
    standing_->addRow(QString(label) + ":", shown);
  };
  add("Record", home_.Record);
  add("Conference", home_.ConferenceRecord);
  add("Place", home_.ConferencePlace);
  add("Poll", home_.PollRank);
  add("CRI", home_.CriRank);
}

QString HomeScreen::Value(const QString& label) const {
  auto* shown = findChild<QLabel*>("lbl" + label);
  return shown ? shown->text() : QString();
}

// Both ranks by week on one chart, the best rank at the top.
void HomeScreen::ShowChart() {
  auto* chart = new QChart;
  auto* poll = new QLineSeries(chart);
  auto* cri = new QLineSeries(chart);
  poll->setName("Poll rank");
  cri->setName("CRI rank");
  int worst = 25;
  for (const RankPoint& p : home_.Ranks) {
    if (p.Poll > 0) poll->append(p.Week, p.Poll);
    if (p.Cri > 0) cri->append(p.Week, p.Cri);
    worst = std::max({worst, p.Poll, p.Cri});
  }
  chart->addSeries(poll);
  chart->addSeries(cri);
  auto* weeks = new QValueAxis(chart);
  weeks->setRange(1, 16);
  weeks->setTickCount(6);
  weeks->setLabelFormat("%d");
  weeks->setTitleText("Week");
  auto* ranks = new QValueAxis(chart);
  ranks->setRange(1, worst);
  ranks->applyNiceNumbers();
  ranks->setMin(1);
  ranks->setReverse(true);
  ranks->setLabelFormat("%d");
  chart->addAxis(weeks, Qt::AlignBottom);
  chart->addAxis(ranks, Qt::AlignLeft);
  for (QLineSeries* s : {poll, cri}) {
    s->attachAxis(weeks);
    s->attachAxis(ranks);
    s->setPointsVisible(true);
  }
  chart->legend()->setAlignment(Qt::AlignBottom);
  chart->setMargins(QMargins(4, 4, 4, 4));
  if (home_.Ranks.empty()) chart->setTitle("The ranks are drawn from the first week's poll on");
  QChart* old = chart_->chart();
  chart_->setChart(chart);
  delete old;
}

int HomeScreen::ChartPoints() const {
  int points = 0;
  for (QAbstractSeries* s : chart_->chart()->series()) {
    points += static_cast<int>(static_cast<QLineSeries*>(s)->count());
  }
  return points;
}

void HomeScreen::ShowGames() {
  Clear(games_);
  const auto add = [this](const QString& text) {
    auto* label = new QLabel(text, this);
    label->setWordWrap(true);
    connect(label, &QLabel::linkActivated, this, [this](const QString& link) { OpenLink(link); });
    games_->addWidget(label);
  };
  add("<i>Next game</i>");
  add(home_.Next ? GameLine(*home_.Next) : QString("No game on the schedule"));
  add("<i>Last results</i>");
  if (home_.Last.empty()) add("No game played yet");
  for (const HomeGame& g : home_.Last) {
    const QString result = Escaped(g.Result);
    add(GameLine(g) + " — " +
        (g.BoxScore.empty() ? result
                            : QString("<a href=\"box:%1\">%2</a>")
                                  .arg(ToQString(g.BoxScore).toHtmlEscaped(), result)));
  }
  games_->addStretch(1);
}

void HomeScreen::ShowLetters() {
  Clear(letters_);
  if (home_.Letters.empty()) letters_->addWidget(new QLabel("No letters yet", this));
  for (const HomeLetter& l : home_.Letters) {
    letters_->addWidget(new QLabel(
        QString("Week %1 — <b>%2</b>: %3").arg(l.Week).arg(Escaped(l.From), Escaped(l.Subject)),
        this));
  }
}

// Only the tasks the user can take now: one whose entry is closed, or whose
// screen is not built, is left out.
void HomeScreen::ShowTodo() {
  Clear(todo_);
  todoEntries_.clear();
  todoLabels_.clear();
  for (const TodoItem& item : home_.Todo) {
    if (!usable_(item.Entry.c_str())) continue;
    auto* label = new QLabel(
        QString("• <a href=\"%1\">%2</a>").arg(ToQString(item.Entry), Escaped(item.Text)), this);
    label->setWordWrap(true);
    connect(label, &QLabel::linkActivated, this, [this](const QString& link) { OpenLink(link); });
    todo_->addWidget(label);
    todoEntries_ << ToQString(item.Entry);
    todoLabels_ << label;
  }
  if (todoEntries_.isEmpty()) todo_->addWidget(new QLabel("Nothing waits for you now.", this));
  todo_->addStretch(1);
}

QStringList HomeScreen::TodoTexts() const {
  QStringList texts;
  for (const QLabel* label : todoLabels_) {
    QString text = label->text();
    text.remove(QRegularExpression("<[^>]*>"));
    texts << text.mid(2);
  }
  return texts;
}

void HomeScreen::Follow(const QString& entry) {
  OpenLink(entry);
}

void HomeScreen::OpenLink(const QString& link) {
  if (link.startsWith("box:")) {
    host_.OpenBoxScore(ToStdString(link.mid(4)));
    return;
  }
  const std::string entry = ToStdString(link);
  if (usable_(entry.c_str())) run_(entry.c_str());
}

}  // namespace courtmere::app
