#include "app/staff_post_screen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/staff_post.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

GridView* PostGrid(QWidget* parent, Post post, const char* name) {
  QStringList headings;
  for (const std::string& column : PostColumns(post)) headings << ToQString(column);
  return RowPickGrid(headings, parent, name);
}

void Fill(GridView* grid, const std::vector<PostRow>& men) {
  std::vector<GridRow> rows;
  std::vector<int> ids;
  for (const PostRow& r : men) {
    GridRow row;
    for (size_t i = 0; i < r.Cells.size(); ++i) {
      row.push_back(i == 1 ? GridCell::Whole(std::stoi(r.Cells[i])) : GridCell::Text(r.Cells[i]));
    }
    rows.push_back(std::move(row));
    ids.push_back(r.Id);
  }
  grid->Model()->SetRows(std::move(rows), std::move(ids));
}

int Chosen(GridView* grid) {
  const int row = grid->SelectedRow();
  return row < 0 ? 0 : grid->Model()->Key(row);
}

}  // namespace

StaffPostScreen::StaffPostScreen(Session& session, ScreenHost& host, Post post, bool hire,
                                 QWidget* parent)
    : Screen(session, host, parent),
      post_(post),
      hire_(hire),
      grid_(PostGrid(this, post, "grdStaff")) {
  setObjectName(post == Post::kScout ? "frmScout" : "frmTrainer");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid_, 1);
  if (hire_) {
    candidates_ = PostGrid(this, post, "grdCandidates");
    layout->addWidget(new QLabel("Interested in your program:", this));
    layout->addWidget(candidates_, 1);
    buttons->addWidget(AddButton("cmdFire", "Fire", [this] { Fire(); }));
    buttons->addWidget(AddButton("cmdHire", "Hire", [this] { Hire(); }));
  }
  buttons->addWidget(AddButton("cmdExit", "Exit", [this] { Exit(); }));
  layout->addLayout(buttons);
  resize(post == Post::kScout ? 720 : 420, hire_ ? 300 : 160);
  Refresh();
}

QString StaffPostScreen::Caption() const {
  return ToQString(session_.humanSchool +
                   (post_ == Post::kScout ? " Head Scout" : " Head Trainer"));
}

QString StaffPostScreen::Key() const {
  return QString("%1/%2").arg(objectName(), hire_ ? "hire" : "view");
}

void StaffPostScreen::Refresh() {
  const PostView view = LoadPostView(session_.Db(), post_, session_.humanSchool);
  Fill(grid_, view.Staff);
  if (candidates_) Fill(candidates_, view.Candidates);
}

void StaffPostScreen::Fire() {
  const int id = Chosen(grid_);
  if (id != 0 && FireStaff(session_, post_, id)) host_.StoreChanged();
}

void StaffPostScreen::Hire() {
  const int id = Chosen(candidates_);
  if (id != 0 && HireStaff(session_, post_, id)) host_.StoreChanged();
}

void StaffPostScreen::Exit() {
  if (hire_) {
    if (const auto why = StaffIncomplete(session_.Db(), post_, session_.humanSchool)) {
      session_.ui.Message(*why);
      return;
    }
  }
  CloseWindow();
}

}  // namespace courtmere::app
