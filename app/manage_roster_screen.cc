#include "app/manage_roster_screen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/roster_grid.h"
#include "people/player.h"
#include "store/session.h"

namespace courtmere::app {

ManageRosterScreen::ManageRosterScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      school_(session.humanSchool),
      grid_(new GridView(new GridModel(RosterHeadings(), this), true, this)) {
  setObjectName("frmManageRoster");
  grid_->setObjectName("MSFlexManage");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  connect(grid_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { UpdateButtons(); });
  auto* buttons = new QHBoxLayout;
  cut_ = AddButton("cmdCut", "Release", &ManageRosterScreen::Release);
  redshirt_ = AddButton("cmdRedshirt", "Redshirt", &ManageRosterScreen::Redshirt);
  activate_ = AddButton("cmdActivate", "Activate", &ManageRosterScreen::Activate);
  switch_ = AddButton("cmdSwitch", "Switch Position", &ManageRosterScreen::Switch);
  for (QPushButton* button : {cut_, redshirt_, activate_, switch_}) buttons->addWidget(button);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid_);
  layout->addLayout(buttons);
  resize(900, 520);
  Refresh();
}

QPushButton* ManageRosterScreen::AddButton(const char* name, const QString& text,
                                           void (ManageRosterScreen::*action)()) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, action);
  return button;
}

QString ManageRosterScreen::Caption() const {
  return "Manage Roster - " + ToQString(school_);
}

void ManageRosterScreen::Refresh() {
  roster_ = TeamRoster(session_.Db(), school_);
  grid_->Model()->SetRows(RosterGridRows(roster_), RosterIds(roster_));
  UpdateButtons();
}

const RosterRow* ManageRosterScreen::Selected() const {
  const int row = grid_->SelectedRow();
  return row >= 0 && row < static_cast<int>(roster_.size()) ? &roster_[row] : nullptr;
}

void ManageRosterScreen::UpdateButtons() {
  const bool open = RosterChangesOpen(session_);
  const RosterRow* player = Selected();
  cut_->setEnabled(open && player);
  redshirt_->setEnabled(open && player);
  switch_->setEnabled(open && player);
  activate_->setEnabled(player && player->Redshirt == 1);
}

void ManageRosterScreen::Release() {
  if (const RosterRow* p = Selected(); p && ReleasePlayer(session_, p->Id)) host_.StoreChanged();
}

void ManageRosterScreen::Redshirt() {
  if (const RosterRow* p = Selected(); p && RedshirtPlayer(session_, p->Id)) host_.StoreChanged();
}

void ManageRosterScreen::Activate() {
  if (const RosterRow* p = Selected(); p && ActivatePlayer(session_, p->Id)) host_.StoreChanged();
}

void ManageRosterScreen::Switch() {
  const RosterRow* p = Selected();
  if (!p) return;
  QStringList positions;
  for (int position = kPG; position <= kC; ++position) positions << PositionName(position);
  bool chosen = false;
  const QString choice =
      QInputDialog::getItem(this, "Switch Position", ToQString("New position for " + p->Name),
                            positions, std::max(0, p->Position - 1), false, &chosen);
  if (!chosen) return;
  const int position = static_cast<int>(positions.indexOf(choice)) + 1;
  if (SwitchPosition(session_, p->Id, position)) host_.StoreChanged();
}

}  // namespace courtmere::app
