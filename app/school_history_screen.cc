#include "app/school_history_screen.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineSeries>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>

#include "app/grid_model.h"
#include "screens/display_format.h"
#include "screens/record_list.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

GridRow SeasonRow(const SchoolSeason& s) {
  auto orNa = [](const std::string& t) { return GridCell::Text(t.empty() ? "NA" : t); };
  return {GridCell::Whole(s.year),
          GridCell::Whole(s.wins),
          GridCell::Whole(s.losses),
          GridCell::Whole(s.confWins),
          GridCell::Whole(s.confLosses),
          s.pollRank > 0 ? GridCell::Whole(s.pollRank) : GridCell::Text("NR"),
          GridCell::Text(s.confChamp ? "Yes" : "No"),
          orNa(s.nctRecord),
          orNa(s.actRecord),
          GridCell::Text(s.summary)};
}

QString TotalsText(const SchoolTotals& t) {
  return QString(
             "<b>All-time record:</b> %1 &nbsp; <b>Conference titles:</b> %2<br>"
             "<b>NCT:</b> %3 appearances, %4-%5, %6 Final Fours, %7 championships<br>"
             "<b>ACT:</b> %8 appearances, %9-%10, %11 Final Fours, %12 championships")
      .arg(ToQString(AllTimeRecord(t)))
      .arg(t.confChamps)
      .arg(t.nctApps)
      .arg(t.nctWins)
      .arg(t.nctLosses)
      .arg(t.nctFinalFours)
      .arg(t.nctChamps)
      .arg(t.actApps)
      .arg(t.actWins)
      .arg(t.actLosses)
      .arg(t.actFinalFours)
      .arg(t.actChamps);
}

}  // namespace

SchoolHistoryScreen::SchoolHistoryScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      school_(new QComboBox(this)),
      seasons_(new GridView(new GridModel({"Year", "W", "L", "Conf W", "Conf L", "Final Poll",
                                           "Conf Champ", "NCT W/L", "ACT W/L", "Season Summary"},
                                          this),
                            true, this)),
      totals_(new QLabel(this)),
      alumni_(new GridView(
          new GridModel({"Left", "Name", "Pos", "PPG", "RPG", "APG", "NBA Draft"}, this), true,
          this)),
      chart_(new QChartView(this)) {
  setObjectName("frmSchoolHistory");
  school_->setObjectName("cmbSchool");
  seasons_->setObjectName("grdSeasons");
  alumni_->setObjectName("grdAlumni");
  totals_->setObjectName("lblTotals");
  chart_->setObjectName("chtSchoolHistory");
  totals_->setTextFormat(Qt::RichText);
  chart_->setRenderHint(QPainter::Antialiasing);
  chart_->setMinimumHeight(260);
  seasons_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  seasons_->horizontalHeader()->setStretchLastSection(true);
  alumni_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  alumni_->horizontalHeader()->setStretchLastSection(true);
  auto* tabs = new QTabWidget(this);
  tabs->setObjectName("tabHistory");
  auto* years = new QWidget(this);
  auto* yearsLayout = new QVBoxLayout(years);
  yearsLayout->addWidget(totals_);
  yearsLayout->addWidget(seasons_, 1);
  yearsLayout->addWidget(chart_, 1);
  tabs->addTab(years, "Year by Year");
  tabs->addTab(alumni_, "Alumni");
  auto* top = new QHBoxLayout;
  top->addWidget(new QLabel("School:", this));
  top->addWidget(school_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(tabs, 1);
  connect(school_, &QComboBox::currentIndexChanged, this, [this] { ShowSchool(); });
  resize(860, 720);
  Refresh();
}

void SchoolHistoryScreen::Refresh() {
  const QString chosen = school_->currentText();
  {
    QSignalBlocker block(school_);
    school_->clear();
    for (const std::string& s : RecordBookSchools(session_.Db())) school_->addItem(ToQString(s));
    school_->setCurrentText(chosen.isEmpty() ? ToQString(session_.humanSchool) : chosen);
  }
  ShowSchool();
}

void SchoolHistoryScreen::ShowSchool() {
  history_ = ReadSchoolHistory(session_.Db(), ToStdString(school_->currentText()));
  std::vector<GridRow> rows;
  for (const SchoolSeason& s : history_.seasons) rows.push_back(SeasonRow(s));
  seasons_->Model()->SetRows(std::move(rows));
  totals_->setText(TotalsText(history_.totals));
  std::vector<GridRow> alumni;
  for (const Alumnus& a : history_.alumni) {
    auto decimal = [](double v) { return GridCell::Number(v, FormatOneDecimal(v)); };
    alumni.push_back({GridCell::Whole(a.yearLeft), GridCell::Text(a.name),
                      GridCell::Text(a.position), decimal(a.ppg), decimal(a.rpg), decimal(a.apg),
                      GridCell::Text(a.draft)});
  }
  alumni_->Model()->SetRows(std::move(alumni));
  ShowChart();
}

// Wins on the left axis, the final poll rank on the right with the best
// rank at the top, both by year.
void SchoolHistoryScreen::ShowChart() {
  auto* chart = new QChart;
  auto* wins = new QLineSeries(chart);
  auto* rank = new QLineSeries(chart);
  wins->setName("Wins");
  rank->setName("Final poll rank");
  int first = 0, last = 0, most = 10, worst = 25;
  for (const SchoolSeason& s : history_.seasons) {
    wins->append(s.year, s.wins);
    if (s.pollRank > 0) rank->append(s.year, s.pollRank);
    first = first == 0 ? s.year : first;
    last = s.year;
    most = std::max(most, s.wins);
    worst = std::max(worst, s.pollRank);
  }
  chart->addSeries(wins);
  chart->addSeries(rank);
  auto* years = new QValueAxis(chart);
  years->setRange(first - 1, std::max(last, first) + 1);
  years->setTickCount(std::min(std::max(last - first + 3, 2), 12));
  years->setLabelFormat("%d");
  years->setTitleText("Year");
  auto* winAxis = new QValueAxis(chart);
  winAxis->setRange(0, most + 2);
  winAxis->setLabelFormat("%d");
  winAxis->setTitleText("Wins");
  auto* rankAxis = new QValueAxis(chart);
  rankAxis->setRange(1, worst);
  rankAxis->setReverse(true);
  rankAxis->setLabelFormat("%d");
  rankAxis->setTitleText("Poll rank");
  chart->addAxis(years, Qt::AlignBottom);
  chart->addAxis(winAxis, Qt::AlignLeft);
  chart->addAxis(rankAxis, Qt::AlignRight);
  wins->attachAxis(years);
  wins->attachAxis(winAxis);
  rank->attachAxis(years);
  rank->attachAxis(rankAxis);
  for (QLineSeries* s : {wins, rank}) s->setPointsVisible(true);
  chart->legend()->setAlignment(Qt::AlignBottom);
  chart->setMargins(QMargins(4, 4, 4, 4));
  if (history_.seasons.empty())
    chart->setTitle("The chart is drawn from the first season's end on");
  QChart* old = chart_->chart();
  chart_->setChart(chart);
  delete old;
}

int SchoolHistoryScreen::ChartPoints() const {
  int points = 0;
  for (QAbstractSeries* s : chart_->chart()->series()) {
    points += static_cast<int>(static_cast<QLineSeries*>(s)->count());
  }
  return points;
}

}  // namespace courtmere::app
