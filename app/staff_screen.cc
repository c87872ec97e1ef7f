#include "app/staff_screen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/coach_roles_screen.h"
#include "app/grid_model.h"
#include "screens/coaching_staff.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QStringList Headings() {
  QStringList headings;
  for (const char* column : kStaffColumns) headings << column;
  return headings;
}

}  // namespace

StaffScreen::StaffScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      grid_(new GridView(new GridModel(Headings(), this), false, this)),
      roles_(AddButton("cmdRoles", "Change Roles", [this] { ChangeRoles(); })) {
  setObjectName("frmStaff");
  grid_->setObjectName("grdStaff");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(roles_);
  buttons->addWidget(AddButton("cmdExit", "Exit", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid_, 1);
  layout->addLayout(buttons);
  resize(860, 220);
  Refresh();
}

QString StaffScreen::Caption() const {
  return ToQString(session_.humanSchool + " Coaching Staff");
}

void StaffScreen::Refresh() {
  std::vector<GridRow> rows;
  std::vector<int> ids;
  for (const StaffRow& r : LoadCoachingStaff(session_.Db(), session_.humanSchool).Rows) {
    GridRow row;
    for (size_t i = 0; i < r.Cells.size(); ++i) {
      const bool number = i == 1 || i >= 11;
      row.push_back(number ? GridCell::Whole(std::stoi(r.Cells[i])) : GridCell::Text(r.Cells[i]));
    }
    rows.push_back(std::move(row));
    ids.push_back(r.CoachId);
  }
  grid_->Model()->SetRows(std::move(rows), std::move(ids));
}

void StaffScreen::ChangeRoles() {
  host_.OpenScreen(new CoachRolesScreen(session_, host_));
}

}  // namespace courtmere::app
