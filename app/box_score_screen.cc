#include "app/box_score_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "engine/box_score.h"

namespace courtmere::app {
namespace {

const QStringList kHeadings = {"Name",   "Pos",   "Min", "ShtsM", "Shots", "3sM",
                               "3s",     "FTM",   "FT",  "Ast",   "TO",    "OffReb",
                               "DefReb", "ShotB", "Stl", "Fls",   "+/-",   "Pts"};

// The rows of the box that name players: the team's dashes and its total
// come after them.
constexpr int kPlayerRows = 12;

std::vector<GridRow> GridRows(const BoxGrid& grid) {
  std::vector<GridRow> rows;
  for (int r = 1; r <= BoxGrid::kRows; ++r) {
    GridRow row;
    for (int f = 0; f < BoxGrid::kFields; ++f) {
      GridCell cell = GridCell::Text(grid.Rows[r][f]);
      cell.number = f >= 2;
      row.push_back(cell);
    }
    rows.push_back(std::move(row));
  }
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
  tables->addWidget(awayHeading_);
  tables->addWidget(awayGrid_);
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(page);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll);
  connect(homeGrid_, &GridView::CellClicked, this,
          [this](int row, int column) { NameClicked(header_.HomeTeam, homeGrid_, row, column); });
  connect(awayGrid_, &GridView::CellClicked, this,
          [this](int row, int column) { NameClicked(header_.AwayTeam, awayGrid_, row, column); });
  Refresh();
  resize(720, 820);
}

GridView* BoxScoreScreen::AddSide(const QString& name, QLabel*& heading) {
  heading = new QLabel(this);
  heading->setStyleSheet("font-weight: bold; font-size: 12pt;");
  auto* grid = new GridView(new GridModel(kHeadings, this), false, this);
  grid->setObjectName(name);
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid->setFixedHeight(grid->verticalHeader()->defaultSectionSize() * BoxGrid::kRows +
                       grid->horizontalHeader()->sizeHint().height() + 4);
  return grid;
}

QString BoxScoreScreen::Caption() const {
  return ToQString(header_.AwayTeam + " at " + header_.HomeTeam);
}

QString BoxScoreScreen::Key() const {
  return "BoxScore:" + ToQString(file_.string());
}

void BoxScoreScreen::Refresh() {
  header_ = ReadBoxScoreHeader(file_);
  homeHeading_->setText(ToQString(header_.HomeTeam + "  " + header_.HomeScore));
  awayHeading_->setText(ToQString(header_.AwayTeam + "  " + header_.AwayScore));
  std::array<BoxGrid, 2> grids{};
  try {
    grids = LoadBoxGrids(file_);
  } catch (const std::exception&) {
    // A box file that went missing shows empty grids.
  }
  homeGrid_->Model()->SetRows(GridRows(grids[0]));
  awayGrid_->Model()->SetRows(GridRows(grids[1]));
}

void BoxScoreScreen::NameClicked(const std::string& school, GridView* grid, int row, int column) {
  if (column != 0 || row >= kPlayerRows) return;
  const std::string name = ToStdString(grid->Model()->Cell(row, 0).text);
  if (const auto id = BoxScorePlayer(session_, school, name)) host_.OpenPlayerCard(*id);
}

}  // namespace courtmere::app
