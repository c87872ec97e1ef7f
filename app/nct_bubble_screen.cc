#include "app/nct_bubble_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/display_format.h"
#include "screens/nct_bubble.h"
#include "store/session.h"

namespace courtmere::app {

NctBubbleScreen::NctBubbleScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      summary_(new QLabel(this)),
      grid_(new GridView(
          new GridModel({"Place", "School", "Conference", "Poll", "Score", "Status"}, this), false,
          this)) {
  setObjectName("frmNCTHistory");
  grid_->setObjectName("grdBubble");
  summary_->setObjectName("lblBubble");
  summary_->setWordWrap(true);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(summary_);
  layout->addWidget(grid_, 1);
  resize(720, 560);
  Refresh();
}

void NctBubbleScreen::Refresh() {
  const NctBubble b = ShowNctBubble(session_.Db(), session_.humanSchool, session_.config.CurrYear);
  std::vector<GridRow> rows;
  for (const BubbleRow& r : b.Rows) {
    GridRow row = {GridCell::Whole(r.Place),
                   GridCell::Text(r.School),
                   GridCell::Text(r.Conference),
                   r.PollRank > 0 ? GridCell::Whole(r.PollRank) : GridCell::Text(""),
                   GridCell::Number(r.Score, FormatOneDecimal(r.Score)),
                   GridCell::Text(r.In ? "In" : "Out")};
    if (r.User) {
      for (GridCell& cell : row) cell.color = kUserBlue;
    }
    rows.push_back(std::move(row));
  }
  grid_->Model()->SetRows(std::move(rows));
  if (b.Selected) {
    summary_->setText(
        "<b>The field is chosen.</b> The last four in and the first four out of the at-large "
        "places, as the selection ranked them.");
    return;
  }
  summary_->setText(
      QString("%1 at-large places after %2 automatic bids%3. Score: CRI value × 100 + poll "
              "points. The line falls after place %1.")
          .arg(b.AtLarge)
          .arg(b.Bids)
          .arg(b.Projected ? " (a conference still to crown its champion is represented by its "
                             "best school by score)"
                           : ""));
}

}  // namespace courtmere::app
