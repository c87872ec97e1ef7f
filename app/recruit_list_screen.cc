#include "app/recruit_list_screen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/recruit_card_view.h"
#include "app/recruit_operation.h"
#include "screens/recruit_actions.h"
#include "screens/recruit_lists.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QStringList Headings() {
  QStringList headings;
  for (const char* column : kRecruitListColumns) headings << column;
  return headings;
}

GridRow ListRow(const RecruitListRow& r) {
  GridRow row = {GridCell::Whole(r.Id),      GridCell::Text(r.Name),
                 GridCell::Text(r.Pos),      GridCell::Text(r.Height),
                 GridCell::Text(r.HomeTown), GridCell::Text(r.RecruitType),
                 GridCell::Whole(r.PosRank), GridCell::Whole(r.Top50Rank)};
  for (const std::string& grade : r.Grades) row.push_back(GridCell::Text(grade));
  row.push_back(GridCell::Text(r.Schools));
  row.push_back(GridCell::Text(r.Status));
  // The user's own recruits stand out in blue.
  if (r.Listed) {
    for (GridCell& cell : row) cell.color = kUserBlue;
  }
  return row;
}

}  // namespace

RecruitListScreen::RecruitListScreen(Session& session, ScreenHost& host, Kind kind,
                                     std::string region, int position, QWidget* parent)
    : Screen(session, host, parent),
      kind_(kind),
      region_(std::move(region)),
      position_(position),
      title_(new QLabel(this)),
      slot_(new QComboBox(this)),
      positionFilter_(new QComboBox(this)),
      uncommitted_(new QCheckBox("Uncommitted only", this)),
      grid_(new GridView(new GridModel(Headings(), this), true, this)),
      card_(new RecruitCardView(this)) {
  setObjectName(kind == Kind::kRegion || kind == Kind::kInterested ? "frmRecRegion"
                                                                   : "frmViewRecruit");
  grid_->setObjectName("grdRecruitList");
  slot_->setObjectName("cmbTeamSlot");
  positionFilter_->setObjectName("cmbPosition");
  uncommitted_->setObjectName("chkUncommitted");
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  for (const char* slot : {"Team1", "Team2", "Team3"}) slot_->addItem(slot);
  slot_->setVisible(kind == Kind::kInterested);
  positionFilter_->addItem("All positions");
  for (const char* pos : {"PG", "SG", "SF", "PF", "C"}) positionFilter_->addItem(pos);
  positionFilter_->setVisible(kind != Kind::kPosition);
  connect(slot_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  connect(positionFilter_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  connect(uncommitted_, &QCheckBox::toggled, this, [this] { Refresh(); });
  connect(grid_, &GridView::CellClicked, this,
          [this](int row, int) { card_->ShowRecruit(session_, grid_->Model()->Key(row)); });
  auto* filters = new QHBoxLayout;
  filters->addWidget(slot_);
  filters->addWidget(positionFilter_);
  filters->addWidget(uncommitted_);
  filters->addStretch(1);
  filters->addWidget(AddButton("cmdAdd", "Add to My Recruits", [this] { AddSelected(); }));
  filters->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* left = new QVBoxLayout;
  left->addWidget(title_);
  left->addLayout(filters);
  left->addWidget(grid_, 1);
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(left, 1);
  layout->addWidget(card_);
  resize(1280, 640);
  Refresh();
}

QString RecruitListScreen::Caption() const {
  switch (kind_) {
    case Kind::kRegion:
      return "Regional Recruits";
    case Kind::kInterested:
      return "Interested Recruits";
    case Kind::kPosition:
    case Kind::kTop50:
      break;
  }
  return "Magazine Rankings";
}

QString RecruitListScreen::Key() const {
  return QString("RecruitList %1 %2 %3")
      .arg(static_cast<int>(kind_))
      .arg(ToQString(region_))
      .arg(position_);
}

void RecruitListScreen::Refresh() {
  RecruitList list;
  switch (kind_) {
    case Kind::kRegion:
      list = RegionRecruits(session_, region_);
      break;
    case Kind::kInterested:
      list = InterestedRecruits(session_, slot_->currentIndex() + 1);
      break;
    case Kind::kPosition:
      list = PositionRecruits(session_, position_);
      break;
    case Kind::kTop50:
      list = Top50Recruits(session_);
      break;
  }
  title_->setText(ToQString(list.Title));
  const QString position =
      positionFilter_->currentIndex() > 0 ? positionFilter_->currentText() : "";
  const int selectedRow = grid_->SelectedRow();
  const int selected = selectedRow < 0 ? 0 : grid_->Model()->Key(selectedRow);
  std::vector<GridRow> rows;
  std::vector<int> keys;
  for (const RecruitListRow& r : list.Rows) {
    if (!position.isEmpty() && ToQString(r.Pos) != position) continue;
    if (uncommitted_->isChecked() && !r.Status.empty()) continue;
    rows.push_back(ListRow(r));
    keys.push_back(r.Id);
  }
  grid_->Model()->SetRows(std::move(rows), std::move(keys));
  // The recruit just added stays selected.
  for (int view = 0; selected != 0 && view < grid_->model()->rowCount(); ++view) {
    if (grid_->Model()->Key(grid_->ModelRow(grid_->model()->index(view, 0))) == selected) {
      grid_->selectRow(view);
    }
  }
  if (card_->PlayerId() != 0) card_->ShowRecruit(session_, card_->PlayerId());
}

void RecruitListScreen::AddSelected() {
  const int row = grid_->SelectedRow();
  if (row < 0) {
    session_.ui.Message("Please select a recruit first.");
    return;
  }
  const int playerId = grid_->Model()->Key(row);
  RunRecruitOperation(session_, host_,
                      [playerId](Session& s) { return AskAddRecruit(s, playerId); });
}

}  // namespace courtmere::app
