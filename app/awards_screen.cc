#include "app/awards_screen.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/scope.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

const char* ObjectName(AwardsScreen::Kind kind) {
  switch (kind) {
    case AwardsScreen::Kind::kPlayerOfWeek:
      return "frmPlayerWeek";
    case AwardsScreen::Kind::kNational:
      return "frmAATeam";
    case AwardsScreen::Kind::kConference:
      return "frmACTeam";
  }
  return "frmAATeam";
}

GridCell Fixed1(double value) {
  return GridCell::Number(value, QString::number(value, 'f', 1).toStdString());
}

// The week of a player of the week stands first; the teams are read by
// position, the figures in the order the honours keep them.
QStringList Headings(AwardsScreen::Kind kind) {
  QStringList headings = {"Pos", "Player", "School", "PPG", "APG", "RPG", "SPG", "TOPG", "BPG"};
  if (kind == AwardsScreen::Kind::kPlayerOfWeek) headings.prepend("Week");
  return headings;
}

}  // namespace

AwardsScreen::AwardsScreen(Session& session, ScreenHost& host, Kind kind, QWidget* parent)
    : Screen(session, host, parent),
      kind_(kind),
      lists_(new QComboBox(this)),
      grid_(new GridView(new GridModel(Headings(kind), this), false, this)) {
  setObjectName(ObjectName(kind));
  lists_->setObjectName("cmbAward");
  grid_->setObjectName("grdAward");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(PlayerColumn(), QHeaderView::Stretch);
  connect(lists_, &QComboBox::currentIndexChanged, this, [this] { ShowList(); });
  connect(grid_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == PlayerColumn()) host_.OpenPlayerCard(grid_->Model()->Key(row));
    if (column == PlayerColumn() + 1) {
      host_.OpenTeam(ToStdString(grid_->Model()->Cell(row, column).text));
    }
  });
  auto* choices = new QHBoxLayout;
  if (kind_ == Kind::kConference) {
    conferences_ = ConferenceList(session, this);
    connect(conferences_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    choices->addWidget(conferences_);
  }
  choices->addWidget(lists_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choices);
  layout->addWidget(grid_, 1);
  resize(760, 600);
  Refresh();
}

int AwardsScreen::PlayerColumn() const {
  return kind_ == Kind::kPlayerOfWeek ? 2 : 1;
}

QString AwardsScreen::Caption() const {
  switch (kind_) {
    case Kind::kPlayerOfWeek:
      return "Player of the Week";
    case Kind::kNational:
      return "All America Team";
    case Kind::kConference:
      return "Conference Awards";
  }
  return "";
}

QString AwardsScreen::Key() const {
  return ObjectName(kind_);
}

void AwardsScreen::Refresh() {
  switch (kind_) {
    case Kind::kPlayerOfWeek:
      shown_ = {PlayersOfWeek(session_.Db(), session_.humanSchool)};
      break;
    case Kind::kNational:
      shown_ = NationalAwards(session_.Db(), session_.humanSchool);
      break;
    case Kind::kConference:
      shown_ = ConferenceAwards(session_.Db(), session_.humanSchool,
                                ToStdString(conferences_->currentText()));
      break;
  }
  const QString before = lists_->currentText();
  const QSignalBlocker block(lists_);
  lists_->clear();
  for (const AwardList& list : shown_) lists_->addItem(ToQString(list.Title));
  const int again = lists_->findText(before);
  lists_->setCurrentIndex(again >= 0 ? again : 0);
  ShowList();
}

void AwardsScreen::ShowList() {
  std::vector<GridRow> rows;
  std::vector<int> ids;
  const int index = lists_->currentIndex();
  if (index >= 0 && index < static_cast<int>(shown_.size())) {
    for (const AwardRow& r : shown_[index].Rows) {
      GridRow row = {GridCell::Text(r.Position),
                     GridCell::Text(r.Name),
                     GridCell::Text(r.Team),
                     Fixed1(r.PPG),
                     Fixed1(r.APG),
                     Fixed1(r.RPG),
                     Fixed1(r.SPG),
                     Fixed1(r.TOPG),
                     Fixed1(r.BPG)};
      if (kind_ == Kind::kPlayerOfWeek) row.insert(row.begin(), GridCell::Whole(r.WeekNo));
      if (r.User) {
        for (GridCell& cell : row) cell.color = kUserBlue;
      }
      rows.push_back(std::move(row));
      ids.push_back(r.PlayerId);
    }
  }
  grid_->Model()->SetRows(std::move(rows), std::move(ids));
}

}  // namespace courtmere::app
