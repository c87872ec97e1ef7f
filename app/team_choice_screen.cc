#include "app/team_choice_screen.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "app/grid_model.h"
#include "app/pair_grid.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

QString Current(const QListWidget* list) {
  const QListWidgetItem* item = list->currentItem();
  return item ? item->text() : QString();
}

}  // namespace

TeamChoiceScreen::TeamChoiceScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      choice_(session),
      conferences_(new QListWidget(this)),
      schools_(new QListWidget(this)),
      grid_(NewPairGrid(this)),
      optDefault_(new QRadioButton("Default", this)),
      optRandom_(new QRadioButton("Randomize", this)),
      coach_(new QLineEdit(this)) {
  setObjectName("frmTeamSelect");
  conferences_->setObjectName("lstConference");
  schools_->setObjectName("lstTeam");
  grid_->setObjectName("grdTeam");
  optDefault_->setObjectName("OptDefault");
  optRandom_->setObjectName("OptRandom");
  coach_->setObjectName("txtCoach");
  coach_->setPlaceholderText("Your name");
  optRandom_->setChecked(true);
  for (const std::string& name : choice_.Conferences()) conferences_->addItem(ToQString(name));
  connect(conferences_, &QListWidget::currentRowChanged, this, [this] { ShowSchools(); });
  connect(schools_, &QListWidget::currentRowChanged, this, [this] { ShowGrid(); });

  auto* prestige = new QGroupBox("School prestige", this);
  auto* prestigeLayout = new QHBoxLayout(prestige);
  prestigeLayout->addWidget(optRandom_);
  prestigeLayout->addWidget(optDefault_);
  prestigeLayout->addWidget(AddButton("cmdPrestige", "Set Prestige", [this] { ChangePrestige(); }));

  auto* grid = new QGridLayout;
  grid->addWidget(new QLabel("Conference:", this), 0, 0);
  grid->addWidget(new QLabel("School:", this), 0, 1);
  grid->addWidget(conferences_, 1, 0);
  grid->addWidget(schools_, 1, 1);
  grid->addWidget(grid_, 1, 2);
  grid->addWidget(prestige, 2, 0, 1, 2);
  auto* name = new QHBoxLayout;
  name->addWidget(new QLabel("Coach's name:", this));
  name->addWidget(coach_, 1);
  grid->addLayout(name, 3, 0, 1, 2);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(AddButton("cmdStart", "Start", [this] { Start(); }));
  buttons->addWidget(AddButton("cmdCancel", "Cancel", [this] { CloseWindow(); }));
  grid->addLayout(buttons, 3, 2);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  resize(900, 520);
  if (conferences_->count() > 0) conferences_->setCurrentRow(0);
}

void TeamChoiceScreen::ShowSchools() {
  schools_->clear();
  for (const std::string& name : choice_.Schools(ToStdString(Current(conferences_)))) {
    schools_->addItem(ToQString(name));
  }
  ShowGrid();
}

void TeamChoiceScreen::ShowGrid() {
  const std::string school = ToStdString(Current(schools_));
  ShowPairs(grid_, school.empty() ? LabelValues{} : choice_.Grid(school));
}

void TeamChoiceScreen::ChangePrestige() {
  if (choice_.PrestigeButton(optDefault_->isChecked())) ShowGrid();
}

// The set-up is a long flow: the menus stay closed meanwhile, and the gate
// opens those of the new dynasty after it.
void TeamChoiceScreen::Start() {
  const std::string school = ToStdString(Current(schools_));
  const std::string name = ToStdString(coach_->text().trimmed());
  bool started = false;
  host_.RunFlow([&] {
    started = choice_.Start(school, name);
    session_.ui.HideProgress();
  });
  if (started) CloseWindow();
}

}  // namespace courtmere::app
