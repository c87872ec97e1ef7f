#include "app/nct_bubble_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/display_format.h"
#include "screens/nct_bubble.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QString Names(const std::array<std::string, 4>& schools) {
  QStringList names;
  for (const std::string& s : schools) {
    if (!s.empty()) names << ToQString(s).toHtmlEscaped();
  }
  return names.isEmpty() ? QString("—") : names.join(", ");
}

}  // namespace

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
    summary_->setText(QString("<b>The field is chosen.</b> Last four in: %1. First four out: %2.")
                          .arg(Names(b.LastIn), Names(b.FirstOut)));
    return;
  }
  summary_->setText(
      QString("%1 at-large places after %2 automatic bids%3. Score: CRI value × 100 + poll "
              "points. The line falls after place %1.")
          .arg(b.AtLarge)
          .arg(b.Bids)
          .arg(b.Projected ? " (each conference's best school by score stands in for its "
                             "champion until the tournaments are played)"
                           : ""));
}

}  // namespace courtmere::app
