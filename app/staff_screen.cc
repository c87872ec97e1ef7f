#include "app/staff_screen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/coach_roles_screen.h"
#include "app/grid_model.h"
#include "career/staff_market.h"
#include "screens/coaching_staff.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QStringList Headings() {
  QStringList headings;
  for (const char* column : kStaffColumns) headings << column;
  return headings;
}

GridView* StaffGrid(QWidget* parent, const char* name) {
  return RowPickGrid(Headings(), parent, name);
}

void Fill(GridView* grid, const std::vector<StaffRow>& staff) {
  std::vector<GridRow> rows;
  std::vector<int> ids;
  for (const StaffRow& r : staff) {
    GridRow row;
    for (size_t i = 0; i < r.Cells.size(); ++i) {
      const bool number = i == 1 || i >= 11;
      row.push_back(number ? GridCell::Whole(std::stoi(r.Cells[i])) : GridCell::Text(r.Cells[i]));
    }
    rows.push_back(std::move(row));
    ids.push_back(r.CoachId);
  }
  grid->Model()->SetRows(std::move(rows), std::move(ids));
}

// The Id of the chosen line; 0 for none.
int Chosen(GridView* grid) {
  const int row = grid->SelectedRow();
  return row < 0 ? 0 : grid->Model()->Key(row);
}

}  // namespace

StaffScreen::StaffScreen(Session& session, ScreenHost& host, bool hire, QWidget* parent)
    : Screen(session, host, parent),
      hire_(hire),
      grid_(StaffGrid(this, "grdStaff")),
      roles_(AddButton("cmdRoles", "Change Roles", [this] { ChangeRoles(); })) {
  setObjectName("frmStaff");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid_, 1);
  if (hire_) {
    candidates_ = StaffGrid(this, "grdCandidates");
    layout->addWidget(new QLabel("Coaches interested in your program:", this));
    layout->addWidget(candidates_, 1);
    buttons->addWidget(AddButton("cmdFire", "Fire", [this] { Fire(); }));
    buttons->addWidget(AddButton("cmdHire", "Hire", [this] { Hire(); }));
  }
  buttons->addWidget(roles_);
  buttons->addWidget(AddButton("cmdExit", "Exit", [this] { Exit(); }));
  layout->addLayout(buttons);
  resize(860, hire_ ? 380 : 220);
  Refresh();
}

QString StaffScreen::Caption() const {
  return ToQString(session_.humanSchool + " Coaching Staff");
}

QString StaffScreen::Key() const {
  return hire_ ? "StaffScreen/hire" : "StaffScreen";
}

void StaffScreen::Refresh() {
  Fill(grid_, LoadCoachingStaff(session_.Db(), session_.humanSchool).Rows);
  if (candidates_) Fill(candidates_, LoadCoachCandidates(session_.Db(), session_.humanSchool));
}

void StaffScreen::ChangeRoles() {
  host_.OpenScreen(new CoachRolesScreen(session_, host_));
}

void StaffScreen::Fire() {
  const int id = Chosen(grid_);
  if (id != 0 && FireStaff(session_, Post::kCoach, id)) host_.StoreChanged();
}

void StaffScreen::Hire() {
  const int id = Chosen(candidates_);
  if (id != 0 && HireStaff(session_, Post::kCoach, id)) host_.StoreChanged();
}

void StaffScreen::Exit() {
  if (hire_) {
    if (const auto why = StaffIncomplete(session_.Db(), Post::kCoach, session_.humanSchool)) {
      session_.ui.Message(*why);
      return;
    }
  }
  CloseWindow();
}

}  // namespace courtmere::app
