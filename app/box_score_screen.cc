#include "app/box_score_screen.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

const QStringList kHeadings = {"Player", "Pos", "Min", "FG",  "FG%", "3PT", "3P%",
                               "FT",     "FT%", "Off", "Def", "Reb", "Ast", "TO",
                               "Stl",    "Blk", "PF",  "+/-", "Pts"};

const QColor kDnpGrey(130, 130, 130);

GridCell Made(int made, int attempts) {
  GridCell cell = GridCell::Text(std::to_string(made) + "-" + std::to_string(attempts));
  cell.number = true;
  return cell;
}

GridCell Percent(int made, int attempts) {
  GridCell cell = GridCell::Text(ShootingPercent(made, attempts));
  cell.number = true;
  return cell;
}

QString Signed(int value) {
  return value > 0 ? QString("+%1").arg(value) : QString::number(value);
}

GridRow Figures(const BoxLine& l) {
  GridRow row = {GridCell::Text(l.Name),          GridCell::Text(l.Position),
                 GridCell::Whole(l.Minutes),      Made(l.ShotsMade, l.Shots),
                 Percent(l.ShotsMade, l.Shots),   Made(l.ThreesMade, l.Threes),
                 Percent(l.ThreesMade, l.Threes), Made(l.FTMade, l.FreeThrows),
                 Percent(l.FTMade, l.FreeThrows), GridCell::Whole(l.OffRebounds),
                 GridCell::Whole(l.DefRebounds),  GridCell::Whole(l.OffRebounds + l.DefRebounds),
                 GridCell::Whole(l.Assists),      GridCell::Whole(l.Turnovers),
                 GridCell::Whole(l.Steals),       GridCell::Whole(l.Blocks),
                 GridCell::Whole(l.Fouls),        GridCell::Whole(l.PlusMinus),
                 GridCell::Whole(l.Points)};
  row[17].text = Signed(l.PlusMinus);
  return row;
}

// A man who did not play: his name, position and "DNP", in grey.
GridRow DidNotPlay(const BoxLine& l) {
  GridRow row(static_cast<size_t>(kHeadings.size()), GridCell::Text(""));
  row[0] = GridCell::Text(l.Name);
  row[1] = GridCell::Text(l.Position);
  row[2] = GridCell::Text("DNP");
  for (GridCell& cell : row) cell.color = kDnpGrey;
  return row;
}

std::vector<GridRow> Rows(const BoxTable& table) {
  std::vector<GridRow> rows;
  for (const BoxLine& line : table.Players) {
    rows.push_back(line.Dnp() ? DidNotPlay(line) : Figures(line));
  }
  GridRow totals = Figures(table.Totals);
  totals[0].text = "Totals";
  totals[2].text.clear();  // the team's minutes are the five places' sum
  for (GridCell& cell : totals) cell.bold = true;
  rows.push_back(std::move(totals));
  return rows;
}

}  // namespace

BoxScoreScreen::BoxScoreScreen(Session& session, ScreenHost& host, std::filesystem::path file,
                               QWidget* parent)
    : Screen(session, host, parent), file_(std::move(file)) {
  setObjectName("frmBoxScore");
  // Both tables stand at their full height, one above the other; the screen
  // scrolls when the window is lower than the two.
  auto* page = new QWidget;
  homeGrid_ = AddSide("MSFlexHomeBox", homeHeading_);
  awayGrid_ = AddSide("MSFlexAwayBox", awayHeading_);
  auto* tables = new QVBoxLayout(page);
  tables->addWidget(homeHeading_);
  tables->addWidget(homeGrid_);
  tables->addSpacing(10);
  tables->addWidget(awayHeading_);
  tables->addWidget(awayGrid_);
  tables->addStretch(1);
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(page);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll);
  connect(homeGrid_, &GridView::CellClicked, this,
          [this](int row, int column) { NameClicked(0, row, column); });
  connect(awayGrid_, &GridView::CellClicked, this,
          [this](int row, int column) { NameClicked(1, row, column); });
  Refresh();
  FitToScreen(*page);
}

GridView* BoxScoreScreen::AddSide(const QString& name, QLabel*& heading) {
  heading = new QLabel(this);
  heading->setStyleSheet("font-weight: bold; font-size: 12pt;");
  heading->setTextFormat(Qt::RichText);
  connect(heading, &QLabel::linkActivated, this,
          [this](const QString& school) { host_.OpenTeam(ToStdString(school)); });
  auto* grid = new GridView(new GridModel(kHeadings, this), false, this);
  grid->setObjectName(name);
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  return grid;
}

// Each table as high as its rows, and the window as large as both tables
// need, within the screen.
void BoxScoreScreen::FitTable(GridView* grid) {
  const int rows = grid->Model()->rowCount();
  grid->setFixedHeight(grid->verticalHeader()->defaultSectionSize() * rows +
                       grid->horizontalHeader()->sizeHint().height() + 2 * grid->frameWidth());
}

void BoxScoreScreen::FitToScreen(QWidget& page) {
  page.adjustSize();
  QSize wanted = page.sizeHint() + QSize(24, 8);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    wanted = wanted.boundedTo(screen->availableSize());
  }
  resize(wanted);
}

QString BoxScoreScreen::Caption() const {
  return ToQString(tables_[1].School + " at " + tables_[0].School);
}

QString BoxScoreScreen::Key() const {
  return "BoxScore:" + ToQString(file_.string());
}

void BoxScoreScreen::Refresh() {
  tables_ = ReadBoxTables(session_.Db(), file_);
  const std::array<QLabel*, 2> headings = {homeHeading_, awayHeading_};
  const std::array<GridView*, 2> grids = {homeGrid_, awayGrid_};
  for (size_t side = 0; side < 2; ++side) {
    const QString school = ToQString(tables_[side].School);
    headings[side]->setText(
        QString("<a href=\"%1\">%2</a>&nbsp;&nbsp;%3")
            .arg(school.toHtmlEscaped(), school.toHtmlEscaped(), ToQString(tables_[side].Score)));
    grids[side]->Model()->SetRows(Rows(tables_[side]));
    FitTable(grids[side]);
  }
}

void BoxScoreScreen::NameClicked(size_t side, int row, int column) {
  const BoxTable& table = tables_[side];
  if (column != 0 || row >= static_cast<int>(table.Players.size())) return;
  if (const auto id = BoxScorePlayer(session_, table.School, table.Players[row].Name)) {
    host_.OpenPlayerCard(*id);
  }
}

}  // namespace courtmere::app
