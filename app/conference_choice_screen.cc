#include "app/conference_choice_screen.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "app/grid_model.h"
#include "app/pair_grid.h"
#include "app/team_choice_screen.h"

namespace courtmere::app {
namespace {

QLabel* Heading(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setStyleSheet("font-weight: bold;");
  return label;
}

QString Current(const QListWidget* list) {
  const QListWidgetItem* item = list->currentItem();
  return item ? item->text() : QString();
}

}  // namespace

ConferenceChoiceScreen::ConferenceChoiceScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      choice_(session),
      conferences_(new QListWidget(this)),
      schools_(new QListWidget(this)),
      chosen_(new QListWidget(this)),
      snapshot_(NewPairGrid(this)) {
  setObjectName("frmLeagueSelect");
  conferences_->setObjectName("lstConference");
  schools_->setObjectName("lstTeam");
  chosen_->setObjectName("lstChosen");
  snapshot_->setObjectName("grdSnapshot");
  for (const std::string& name : choice_.Conferences()) conferences_->addItem(ToQString(name));
  connect(conferences_, &QListWidget::currentRowChanged, this, [this] { ShowSchools(); });
  connect(schools_, &QListWidget::currentRowChanged, this, [this] { ShowSnapshot(); });

  auto* title = new QLabel(ConferenceChoice::kTitle, this);
  title->setStyleSheet("font-size: 18pt; font-weight: bold;");
  title->setAlignment(Qt::AlignCenter);
  auto* grid = new QGridLayout;
  grid->addWidget(Heading("Choose Conference:", this), 0, 0);
  grid->addWidget(Heading("Choose Team:", this), 0, 1);
  grid->addWidget(Heading("Team Snapshot:", this), 0, 2);
  grid->addWidget(conferences_, 1, 0);
  grid->addWidget(schools_, 1, 1);
  grid->addWidget(snapshot_, 1, 2);
  grid->addWidget(Heading("Your three conferences:", this), 2, 0);
  grid->addWidget(chosen_, 3, 0, 1, 2);
  auto* slotButtons = new QVBoxLayout;
  slotButtons->addWidget(AddButton("cmdAdd", "Add Conference", [this] { AddConference(); }));
  slotButtons->addWidget(
      AddButton("cmdRemove", "Remove Conference", [this] { RemoveConference(); }));
  slotButtons->addStretch();
  grid->addLayout(slotButtons, 3, 2);
  grid->setRowStretch(1, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(AddButton("cmdContinue", "Continue", [this] { Continue(); }));
  buttons->addWidget(AddButton("cmdCancel", "Cancel", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title);
  layout->addLayout(grid);
  layout->addLayout(buttons);
  ShowChosen();
  chosen_->setFixedHeight(chosen_->sizeHintForRow(0) * 3 + 2 * chosen_->frameWidth() + 4);
  resize(900, 560);
  if (conferences_->count() > 0) conferences_->setCurrentRow(0);
}

void ConferenceChoiceScreen::ShowSchools() {
  schools_->clear();
  for (const std::string& name : choice_.Schools(ToStdString(Current(conferences_)))) {
    schools_->addItem(ToQString(name));
  }
  if (schools_->count() > 0) schools_->setCurrentRow(0);
  ShowSnapshot();
}

void ConferenceChoiceScreen::ShowSnapshot() {
  const std::string school = ToStdString(Current(schools_));
  if (school.empty()) {
    ShowPairs(snapshot_, {});
    return;
  }
  const SchoolSnapshot s = choice_.Snapshot(school);
  ShowPairs(snapshot_, {{"School:", school},
                        {"Location:", s.Location},
                        {"State:", s.State},
                        {"Population:", s.Population},
                        {"Arena Cap.:", s.ArenaCapacity},
                        {"Colors:", s.Colors},
                        {"Prestige:", s.Prestige},
                        {"Expectations:", s.Expectations}});
}

// Three lines, one a slot; a free slot reads "(open)".
void ConferenceChoiceScreen::ShowChosen() {
  const int row = chosen_->currentRow();
  chosen_->clear();
  for (const std::string& name : choice_.Chosen()) {
    chosen_->addItem(name.empty() ? QString("(open)") : ToQString(name));
  }
  chosen_->setCurrentRow(row);
}

void ConferenceChoiceScreen::AddConference() {
  const QString conference = Current(conferences_);
  if (conference.isEmpty()) return;
  if (choice_.Add(ToStdString(conference))) ShowChosen();
}

void ConferenceChoiceScreen::RemoveConference() {
  if (choice_.Remove(chosen_->currentRow())) ShowChosen();
}

// On success the dynasty holds nine conferences: the team choice follows and
// this screen closes.
void ConferenceChoiceScreen::Continue() {
  if (!choice_.Continue()) return;
  host_.OpenScreen(new TeamChoiceScreen(session_, host_));
  CloseWindow();
}

}  // namespace courtmere::app
