#include "app/training_screen.h"

#include <fmt/format.h>

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "people/player.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

constexpr const char* kGradeLabels[] = {"Athletic",     "Scoring",    "Shooting",
                                        "Outside",      "Rebounding", "Per. Defense",
                                        "Post Defense", "Handling",   "Passing"};

}  // namespace

TrainingScreen::TrainingScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      players_(new QComboBox(this)),
      details_(new QLabel(this)),
      remaining_(new QLabel(this)) {
  setObjectName("frmTrainPlayer");
  players_->setObjectName("cmbPlayers");
  remaining_->setObjectName("lblRemaining");
  details_->setWordWrap(true);
  auto* form = new QFormLayout;
  for (int i = 0; i < kTrainingSkills; ++i) {
    auto* list = new QComboBox(this);
    list->setObjectName(QString("cmb") + kTrainingSkillNames[i].column);
    for (int points = 0; points <= kMostPointsPerSkill; ++points)
      list->addItem(QString::number(points));
    connect(list, &QComboBox::currentIndexChanged, this, [this] { UpdateRemaining(); });
    lists_[i] = list;
    form->addRow(kTrainingSkillNames[i].label, list);
  }
  connect(players_, &QComboBox::currentIndexChanged, this, [this] { ShowPlayer(); });
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(AddButton("cmdReset", "Reset", [this] { Reset(); }));
  buttons->addWidget(AddButton("cmdSubmit", "Submit", [this] { Submit(); }));
  buttons->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(players_);
  layout->addWidget(details_);
  layout->addLayout(form);
  layout->addWidget(remaining_);
  layout->addLayout(buttons);
  resize(460, 640);
  Refresh();
}

void TrainingScreen::Refresh() {
  const int chosen = players_->currentIndex();
  roster_ = TrainingRoster(session_.Db(), session_.humanSchool);
  QSignalBlocker block(players_);
  players_->clear();
  for (const TrainingPlayer& p : roster_) {
    players_->addItem(ToQString(fmt::format("{} ({})", p.Name, PositionName(p.PlayerPosition))));
  }
  players_->setCurrentIndex(chosen >= 0 && chosen < players_->count() ? chosen : 0);
  ShowPlayer();
}

void TrainingScreen::ShowPlayer() {
  const int i = players_->currentIndex();
  if (i < 0 || i >= static_cast<int>(roster_.size())) {
    details_->setText("You have no players to train.");
    return;
  }
  const TrainingPlayer& p = roster_[static_cast<size_t>(i)];
  std::string text =
      fmt::format("{}, {}, GPA {:.2f}\n", PositionName(p.PlayerPosition), p.PlayerYear, p.GPA);
  for (size_t g = 0; g < p.grades.size() && g < std::size(kGradeLabels); ++g) {
    text += fmt::format("{} {}   ", kGradeLabels[g], p.grades[g]);
  }
  details_->setText(ToQString(text));
  for (int s = 0; s < kTrainingSkills; ++s) {
    QSignalBlocker block(lists_[s]);
    lists_[s]->setCurrentIndex(p.points[s]);
  }
  UpdateRemaining();
}

TrainingRow TrainingScreen::Points() const {
  TrainingRow row{};
  for (int s = 0; s < kTrainingSkills; ++s) row[s] = lists_[s]->currentIndex();
  return row;
}

void TrainingScreen::UpdateRemaining() {
  remaining_->setText(
      QString("TRAINING POINTS REMAINING: %1").arg(TrainingPointsRemaining(Points())));
}

void TrainingScreen::Reset() {
  for (QComboBox* list : lists_) {
    QSignalBlocker block(list);
    list->setCurrentIndex(kDefaultPoints);
  }
  UpdateRemaining();
}

void TrainingScreen::Submit() {
  const int i = players_->currentIndex();
  if (i < 0 || i >= static_cast<int>(roster_.size())) return;
  TrainingPlayer& p = roster_[static_cast<size_t>(i)];
  Store::Transaction tx(session_.Db());
  const TrainingSubmit result = SubmitTraining(session_.Db(), session_.humanSchool, p.Id, Points());
  tx.Commit();
  if (result.saved) p.points = Points();
  session_.ui.Message(result.message);
}

}  // namespace courtmere::app
