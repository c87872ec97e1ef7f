#include "app/recruit_board_screen.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/recruit_browser_screen.h"
#include "app/recruit_card_view.h"
#include "app/recruit_operation.h"
#include "app/recruit_rank_screen.h"
#include "recruiting/recruit_ranking.h"
#include "screens/recruit_actions.h"
#include "screens/recruit_board.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QStringList Headings(const std::string& topBid) {
  QStringList headings;
  for (const char* column : kRecruitBoardColumns) {
    headings << (std::string_view(column) == "Top Bid" ? ToQString(topBid) : QString(column));
  }
  return headings;
}

QColor ColourOf(RecruitRowColour colour) {
  switch (colour) {
    case RecruitRowColour::kBlue:
      return kUserBlue;
    case RecruitRowColour::kGreen:
      return QColor(0, 128, 0);
    case RecruitRowColour::kRed:
      return QColor(192, 0, 0);
    case RecruitRowColour::kPlain:
      break;
  }
  return {};
}

GridRow BoardRow(const RecruitBoardRow& r) {
  GridRow row = {GridCell::Text(r.Name),
                 GridCell::Text(r.Pos),
                 GridCell::Whole(r.Calls),
                 GridCell::Whole(r.Assistant),
                 GridCell::Whole(r.Visits),
                 GridCell::Whole(r.CampusVisits),
                 GridCell::Text(r.Decision),
                 GridCell::Whole(r.Points),
                 GridCell::Text(r.TopBid),
                 GridCell::Text(r.Scholarship ? "Yes" : "No"),
                 r.Rank > 0 ? GridCell::Whole(r.Rank) : GridCell::Text("")};
  for (GridCell& cell : row) cell.color = ColourOf(r.Colour);
  return row;
}

// One scroll for each scholarship he may offer, filled for each offer made.
QString Scrolls(int allowance, int offered) {
  QString text = "Scholarships: ";
  for (int i = 0; i < std::max(allowance, offered); ++i)
    text += i < offered ? "\u25A0 " : "\u25A1 ";
  return text + QString("(%1 of %2 offered)").arg(offered).arg(allowance);
}

}  // namespace

RecruitBoardScreen::RecruitBoardScreen(Session& session, ScreenHost& host, PeriodSource period,
                                       QWidget* parent)
    : Screen(session, host, parent),
      period_(std::move(period)),
      title_(new QLabel(this)),
      periodLabel_(new QLabel(this)),
      points_(new QLabel(this)),
      scrolls_(new QLabel(this)),
      grid_(new GridView(new GridModel(Headings("Top Bid"), this), true, this)),
      actions_(new QComboBox(this)),
      bids_(new QComboBox(this)),
      card_(new RecruitCardView(this)) {
  setObjectName("frmTeamRecruit");
  grid_->setObjectName("grdRecruits");
  actions_->setObjectName("cmbAction");
  bids_->setObjectName("cmbBid");
  points_->setObjectName("lblPoints");
  scrolls_->setObjectName("lblScholarships");
  periodLabel_->setObjectName("lblPeriod");
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  connect(grid_, &GridView::CellClicked, this,
          [this](int row, int) { card_->ShowRecruit(session_, grid_->Model()->Key(row)); });
  connect(actions_, &QComboBox::currentTextChanged, this, [this] { FillBids(); });

  auto* header = new QHBoxLayout;
  header->addWidget(periodLabel_);
  header->addWidget(points_);
  header->addWidget(scrolls_, 1);
  auto* bidRow = new QHBoxLayout;
  bidRow->addWidget(new QLabel("Action:", this));
  bidRow->addWidget(actions_);
  bidRow->addWidget(new QLabel("Points:", this));
  bidRow->addWidget(bids_);
  bidRow->addWidget(AddButton("cmdBid", "Bid", [this] { Bid(); }));
  bidRow->addWidget(AddButton("cmdClear", "Clear Decision", [this] { Operate(AskClearDecision); }));
  bidRow->addStretch(1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(
      AddButton("cmdOffer", "Offer Scholarship", [this] { Operate(AskOfferScholarship); }));
  buttons->addWidget(
      AddButton("cmdRescind", "Rescind Scholarship", [this] { Operate(AskRescindScholarship); }));
  buttons->addWidget(AddButton("cmdRemove", "Remove", [this] { Operate(AskRemoveRecruit); }));
  buttons->addWidget(AddButton("cmdRank", "Rank Recruits", [this] {
    host_.OpenScreen(new RecruitRankScreen(session_, host_));
  }));
  buttons->addWidget(AddButton("cmdBrowse", "Browse Recruits", [this] {
    host_.OpenScreen(new RecruitBrowserScreen(session_, host_));
  }));
  buttons->addStretch(1);
  buttons->addWidget(AddButton("cmdClose", "Close", [this] {
    if (MayLeave()) CloseWindow();
  }));
  auto* left = new QVBoxLayout;
  left->addWidget(title_);
  left->addLayout(header);
  left->addWidget(grid_, 1);
  left->addLayout(bidRow);
  left->addLayout(buttons);
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(left, 1);
  layout->addWidget(card_);
  resize(1290, 600);
  Refresh();
}

void RecruitBoardScreen::Refresh() {
  const RecruitBoard board = LoadRecruitBoard(session_, period_());
  title_->setText(ToQString(board.Title));
  periodLabel_->setText(QString("Week %1, %2")
                            .arg(board.Week)
                            .arg(board.PeriodText.empty() ? QString("no recruiting period")
                                                          : ToQString(board.PeriodText)));
  pointsLeft_ = board.PointsAvail;
  points_->setText(QString("Points left: %1").arg(board.PointsAvail));
  scrolls_->setText(Scrolls(board.Allowance, board.Offered));
  grid_->Model()->SetHeadings(Headings(board.TopBidHeading));
  // The recruit worked on stays selected across the operation's refresh.
  const int selected = SelectedRecruit();
  std::vector<GridRow> rows;
  std::vector<int> keys;
  for (const RecruitBoardRow& r : board.Rows) {
    rows.push_back(BoardRow(r));
    keys.push_back(r.PlayerID);
  }
  grid_->Model()->SetRows(std::move(rows), std::move(keys));
  if (selected != 0) SelectRecruit(selected);
  const QString action = actions_->currentText();
  actions_->blockSignals(true);
  actions_->clear();
  for (const std::string& a : board.Actions) actions_->addItem(ToQString(a));
  if (const int at = actions_->findText(action); at >= 0) actions_->setCurrentIndex(at);
  actions_->blockSignals(false);
  actions_->setEnabled(!board.Actions.empty());
  FillBids();
  for (const char* name : {"cmdOffer", "cmdRescind"}) {
    findChild<QPushButton*>(name)->setEnabled(board.ScholarshipsOpen);
  }
  if (card_->PlayerId() != 0) card_->ShowRecruit(session_, card_->PlayerId());
}

void RecruitBoardScreen::FillBids() {
  bids_->clear();
  const std::string action = ToStdString(actions_->currentText());
  if (action.empty()) {
    bids_->setEnabled(false);
    return;
  }
  const BidChoices choices = BidChoicesFor(action, pointsLeft_);
  for (int points = 0; points <= choices.Highest; ++points) bids_->addItem(QString::number(points));
  bids_->setCurrentIndex(choices.Selected);
  bids_->setEnabled(true);
}

void RecruitBoardScreen::SelectRecruit(int playerId) {
  for (int view = 0; view < grid_->model()->rowCount(); ++view) {
    const int row = grid_->ModelRow(grid_->model()->index(view, 0));
    if (grid_->Model()->Key(row) != playerId) continue;
    grid_->selectRow(view);
    card_->ShowRecruit(session_, playerId);
  }
}

int RecruitBoardScreen::SelectedRecruit() const {
  const int row = grid_->SelectedRow();
  return row < 0 ? 0 : grid_->Model()->Key(row);
}

void RecruitBoardScreen::Bid() {
  const int playerId = SelectedRecruit();
  if (playerId == 0) {
    session_.ui.Message("Please select a recruit first.");
    return;
  }
  if (pointsLeft_ <= 0) {
    session_.ui.Message(kNoPointsLeft);
    return;
  }
  if (bids_->currentIndex() < 0) {
    session_.ui.Message("Please select a point value before making a bid.");
    return;
  }
  const std::string action = ToStdString(actions_->currentText());
  const int bid = bids_->currentText().toInt();
  const RecruitingPeriod period = period_();
  RunRecruitOperation(session_, host_,
                      [&](Session& s) { return BidOnRecruit(s, period, playerId, action, bid); });
}

void RecruitBoardScreen::Operate(const std::function<RecruitReply(Session&, int)>& operation) {
  const int playerId = SelectedRecruit();
  if (playerId == 0) {
    session_.ui.Message("Please select a recruit first.");
    return;
  }
  RunRecruitOperation(session_, host_, [&](Session& s) { return operation(s, playerId); });
}

bool RecruitBoardScreen::MayLeave() {
  if (!session_.StoreOpen() || !RanksMissing(session_)) return true;
  session_.ui.Message(kRankBeforeExit);
  return false;
}

void RecruitBoardScreen::closeEvent(QCloseEvent* event) {
  // Only the user's own closing is refused; the program closes every screen
  // before a load or a new dynasty.
  if (event->spontaneous() && !MayLeave()) {
    event->ignore();
    return;
  }
  Screen::closeEvent(event);
}

}  // namespace courtmere::app
