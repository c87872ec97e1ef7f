#include "app/player_career_view.h"

#include <QChart>
#include <QChartView>
#include <QHeaderView>
#include <QLineSeries>
#include <QPen>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>

#include "app/grid_model.h"
#include "screens/display_format.h"
#include "screens/player_career.h"

namespace courtmere::app {

namespace {

GridRow YearRow(const CareerYear& y) {
  auto decimal = [](double v) { return GridCell::Number(v, FormatOneDecimal(v)); };
  auto percent = [](double v) { return GridCell::Number(v, FormatPercent(v)); };
  return {GridCell::Whole(y.year),
          decimal(y.ppg),
          decimal(y.rpg),
          decimal(y.apg),
          decimal(y.spg),
          decimal(y.bpg),
          decimal(y.mpg),
          percent(y.fgPercent),
          percent(y.threePercent),
          percent(y.ftPercent),
          GridCell::Number(y.overall, FormatOneDecimal(y.overall))};
}

// One line of the chart: a rating by year.
struct Rating {
  const char* name;
  double (*value)(const CareerYear&);
};

constexpr Rating kRatings[] = {
    {"Overall", [](const CareerYear& y) { return y.overall; }},
    {"Shooting", [](const CareerYear& y) { return static_cast<double>(y.jumpshot); }},
    {"Inside scoring", [](const CareerYear& y) { return static_cast<double>(y.inScoring); }},
    {"Handling", [](const CareerYear& y) { return static_cast<double>(y.handling); }},
    {"Passing", [](const CareerYear& y) { return static_cast<double>(y.passing); }},
    {"Perimeter defense", [](const CareerYear& y) { return static_cast<double>(y.perrDefense); }},
};

}  // namespace

PlayerCareerView::PlayerCareerView(Store& store, int playerId, QWidget* parent)
    : QWidget(parent),
      store_(store),
      playerId_(playerId),
      years_(new GridView(new GridModel({"Year", "PPG", "RPG", "APG", "SPG", "BPG", "MPG", "FG%",
                                         "3P%", "FT%", "Overall"},
                                        this),
                          false, this)),
      chart_(new QChartView(this)) {
  setObjectName("vwPlayerCareer");
  years_->setObjectName("grdCareerYears");
  chart_->setObjectName("chtPlayerCareer");
  chart_->setRenderHint(QPainter::Antialiasing);
  chart_->setMinimumHeight(200);
  years_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  years_->setSelectionMode(QAbstractItemView::NoSelection);
  years_->setFixedHeight(years_->verticalHeader()->defaultSectionSize() * 5 + 6);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(years_);
  layout->addWidget(chart_, 1);
  Refresh();
}

void PlayerCareerView::Refresh() {
  const std::optional<PlayerCareer> career = ReadPlayerCareer(store_, playerId_);
  std::vector<GridRow> rows;
  auto* chart = new QChart;
  int first = 0, last = 0;
  double low = 100, high = 0;
  if (career) {
    for (const CareerYear& y : career->years) rows.push_back(YearRow(y));
    for (const Rating& r : kRatings) {
      auto* line = new QLineSeries(chart);
      line->setName(r.name);
      for (const CareerYear& y : career->years) {
        line->append(y.year, r.value(y));
        low = std::min(low, r.value(y));
        high = std::max(high, r.value(y));
      }
      line->setPointsVisible(true);
      chart->addSeries(line);
      // Overall stands out from the ratings it is made of.
      if (&r == &kRatings[0]) line->setPen(QPen(Qt::black, 3));
    }
    if (!career->years.empty()) {
      first = career->years.front().year;
      last = career->years.back().year;
    }
  }
  years_->Model()->SetRows(std::move(rows));
  auto* years = new QValueAxis(chart);
  years->setRange(first - 1, std::max(first, last) + 1);
  years->setTickCount(std::min(std::max(last - first + 3, 2), 8));
  years->setLabelFormat("%d");
  auto* ratings = new QValueAxis(chart);
  ratings->setRange(std::max(0.0, std::min(low, high) - 5),
                    std::min(100.0, std::max(high, low) + 5));
  ratings->setLabelFormat("%d");
  ratings->setTitleText("Rating");
  chart->addAxis(years, Qt::AlignBottom);
  chart->addAxis(ratings, Qt::AlignLeft);
  for (QAbstractSeries* s : chart->series()) {
    s->attachAxis(years);
    s->attachAxis(ratings);
  }
  chart->legend()->setAlignment(Qt::AlignRight);
  chart->setMargins(QMargins(4, 4, 4, 4));
  if (!career || career->years.empty()) {
    chart->setTitle("His ratings are drawn by year from the end of his first season on");
  }
  QChart* old = chart_->chart();
  chart_->setChart(chart);
  delete old;
}

int PlayerCareerView::ChartPoints() const {
  int points = 0;
  for (QAbstractSeries* s : chart_->chart()->series()) {
    points += static_cast<int>(static_cast<QLineSeries*>(s)->count());
  }
  return points;
}

}  // namespace courtmere::app
