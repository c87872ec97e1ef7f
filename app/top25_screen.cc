#include "app/top25_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/top25.h"
#include "store/session.h"

namespace courtmere::app {

Top25Screen::Top25Screen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      title_(new QLabel(this)),
      grid_(new GridView(new GridModel({"Rank", "Team", "Record", "Points", "Previous"}, this),
                         true, this)),
      votes_(new QLabel(this)) {
  setObjectName("frmTop25");
  grid_->setObjectName("grdTop25");
  votes_->setObjectName("lblVotes");
  votes_->setWordWrap(true);
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == 1) host_.OpenTeam(ToStdString(grid_->Model()->Cell(row, 1).text));
  });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title_);
  layout->addWidget(grid_, 1);
  layout->addWidget(new QLabel("Others receiving votes:", this));
  layout->addWidget(votes_);
  resize(560, 720);
  Refresh();
}

void Top25Screen::Refresh() {
  const Top25 poll = ShowTop25(session_.Db(), session_.humanSchool);
  title_->setText(ToQString(poll.Title));
  std::vector<GridRow> rows;
  for (const Top25Row& r : poll.Rows) {
    GridRow row = {GridCell::Whole(r.Rank), GridCell::Text(r.Team), GridCell::Text(r.Record),
                   GridCell::Whole(r.Points),
                   r.Previous > 0 ? GridCell::Whole(r.Previous) : GridCell::Text("")};
    if (r.User) {
      for (GridCell& cell : row) cell.color = kUserBlue;
    }
    rows.push_back(std::move(row));
  }
  grid_->Model()->SetRows(std::move(rows));
  votes_->setText(ToQString(poll.Votes));
}

}  // namespace courtmere::app
