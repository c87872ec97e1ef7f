#include "app/recruit_signings_screen.h"

#include <fmt/format.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/recruit_signings.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

GridCell RankCell(int rank) {
  return GridCell::Number(SigningRow::SortRank(rank), rank > 0 ? std::to_string(rank) : "");
}

}  // namespace

RecruitSigningsScreen::RecruitSigningsScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      grid_(new GridView(new GridModel({"Name", "Height", "Pos.", "Hometown", "HighSchool",
                                        "Choice", "Pos Rank", "Top 50"},
                                       this),
                         true, this)),
      classes_(new GridView(new GridModel({"Class Rank", "School", "Freshmen", "Points"}, this),
                            true, this)),
      notice_(new QLabel(this)) {
  setObjectName("frmRecruitSignings");
  grid_->setObjectName("grdSignings");
  classes_->setObjectName("grdClasses");
  for (GridView* grid : {grid_, classes_}) {
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
  auto* title = new QLabel(kSigningsTitle, this);
  title->setStyleSheet("font-weight: bold;");
  auto* classTitle = new QLabel("Recruiting Classes", this);
  classTitle->setStyleSheet("font-weight: bold;");
  auto* left = new QVBoxLayout;
  left->addWidget(title);
  left->addWidget(grid_, 1);
  left->addWidget(notice_);
  auto* right = new QVBoxLayout;
  right->addWidget(classTitle);
  right->addWidget(classes_, 1);
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(left, 3);
  layout->addLayout(right, 1);
  resize(1260, 540);
  Refresh();
}

void RecruitSigningsScreen::Refresh() {
  std::vector<GridRow> rows;
  for (const SigningRow& r : RecruitSignings(session_.Db())) {
    GridRow row{GridCell::Text(r.Name),       GridCell::Text(r.Height),
                GridCell::Text(r.Position),   GridCell::Text(r.HomeTown),
                GridCell::Text(r.HighSchool), GridCell::Text(r.Choice),
                RankCell(r.PosRank),          RankCell(r.Top50Rank)};
    if (r.Choice == session_.humanSchool) row[5].color = kUserBlue;
    rows.push_back(std::move(row));
  }
  notice_->setText(rows.empty() ? "No recruit has chosen a school yet." : "");
  grid_->Model()->SetRows(std::move(rows));
  std::vector<GridRow> classes;
  for (const ClassRow& c : RecruitingClasses(session_.Db())) {
    GridRow row{RankCell(c.Rank), GridCell::Text(c.School), GridCell::Whole(c.Freshmen),
                GridCell::Number(c.Points, fmt::format("{:.2f}", c.Points))};
    if (c.User) row[1].color = kUserBlue;
    classes.push_back(std::move(row));
  }
  classes_->Model()->SetRows(std::move(classes));
}

}  // namespace courtmere::app
