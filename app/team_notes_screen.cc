#include "app/team_notes_screen.h"

#include <QHeaderView>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "store/session.h"

namespace courtmere::app {

TeamNotesScreen::TeamNotesScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      grid_(new GridView(new GridModel({"Week", "From", "Subject"}, this), false, this)),
      text_(new QPlainTextEdit(this)) {
  setObjectName("frmNews");
  grid_->setObjectName("grdNotes");
  text_->setObjectName("txtNote");
  text_->setReadOnly(true);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int) { ShowNote(row); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid_, 3);
  layout->addWidget(text_, 2);
  resize(700, 620);
  Refresh();
}

void TeamNotesScreen::Refresh() {
  notes_ = TeamNotes(session_.Db());
  std::vector<GridRow> rows;
  std::vector<int> keys;
  for (size_t i = 0; i < notes_.size(); ++i) {
    const TeamNote& n = notes_[i];
    rows.push_back({GridCell::Whole(n.Week), GridCell::Text(n.From), GridCell::Text(n.Subject)});
    keys.push_back(static_cast<int>(i));
  }
  grid_->Model()->SetRows(std::move(rows), std::move(keys));
  text_->clear();
}

void TeamNotesScreen::ShowNote(int row) {
  const int index = grid_->Model()->Key(row);
  if (index < 0 || index >= static_cast<int>(notes_.size())) return;
  text_->setPlainText(ToQString(notes_[index].Text));
}

}  // namespace courtmere::app
