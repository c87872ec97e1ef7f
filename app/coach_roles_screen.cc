#include "app/coach_roles_screen.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "store/session.h"

namespace courtmere::app {

CoachRolesScreen::CoachRolesScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent), lines_(new QGridLayout) {
  setObjectName("frmCoachRoles");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(AddButton("cmdSubmit", "Submit", [this] { Submit(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(lines_);
  layout->addStretch(1);
  layout->addLayout(buttons);
  resize(460, 220);
  Refresh();
}

QString CoachRolesScreen::Caption() const {
  return ToQString(session_.humanSchool + " Coaching Roles");
}

void CoachRolesScreen::Refresh() {
  roles_ = LoadCoachRoles(session_.Db(), session_.humanSchool);
  Build();
  Show();
}

void CoachRolesScreen::Build() {
  while (QLayoutItem* item = lines_->takeAt(0)) {
    // Later: the label may be the sender of the click in hand.
    if (QWidget* widget = item->widget()) {
      widget->hide();
      widget->deleteLater();
    }
    delete item;
  }
  offence_.clear();
  defence_.clear();
  lines_->addWidget(new QLabel("<b>Coach</b>", this), 0, 0);
  lines_->addWidget(new QLabel("<b>Offense</b>", this), 0, 1);
  lines_->addWidget(new QLabel("<b>Defense</b>", this), 0, 2);
  for (size_t i = 0; i < roles_.Lines.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    lines_->addWidget(new QLabel(ToQString(roles_.Lines[i].Name), this), row, 0);
    offence_.push_back(RoleList("cmbOffense", i, true));
    defence_.push_back(RoleList("cmbDefense", i, false));
    lines_->addWidget(offence_.back(), row, 1);
    lines_->addWidget(defence_.back(), row, 2);
  }
  lines_->setColumnStretch(0, 1);
}

QComboBox* CoachRolesScreen::RoleList(const char* name, size_t line, bool offence) {
  auto* list = new QComboBox(this);
  list->setObjectName(QString("%1%2").arg(name).arg(line + 1));
  list->addItems({"0", "1"});
  connect(list, &QComboBox::currentIndexChanged, this, [this, line, offence](int value) {
    if (showing_) return;
    if (offence) {
      ChooseOffence(roles_, line, value);
    } else {
      ChooseDefence(roles_, line, value);
    }
    Show();
  });
  return list;
}

void CoachRolesScreen::Show() {
  showing_ = true;
  for (size_t i = 0; i < roles_.Lines.size(); ++i) {
    offence_[i]->setCurrentIndex(roles_.Lines[i].Off);
    defence_[i]->setCurrentIndex(roles_.Lines[i].Def);
  }
  showing_ = false;
}

// Design decision: a refused submit keeps the screen open with the user's
// choices, so that he can put them right and submit again.
void CoachRolesScreen::Submit() {
  if (!SubmitCoachRoles(session_, roles_)) return;
  host_.StoreChanged();
  CloseWindow();
}

}  // namespace courtmere::app
