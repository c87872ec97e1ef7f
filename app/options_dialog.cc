#include "app/options_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/options.h"

namespace courtmere::app {

OptionsDialog::OptionsDialog(Session& session, QWidget* parent)
    : QDialog(parent),
      session_(session),
      playByPlay_(new QCheckBox("View Play-By-Play", this)),
      autosave_(new QCheckBox("Autosave At Season's End", this)),
      boxScores_(new QCheckBox("Save Box Scores to Disk:", this)),
      speed_(new QComboBox(this)) {
  setObjectName("frmOptions");
  setWindowTitle("Dynasty Options");
  playByPlay_->setObjectName("chkPBP");
  autosave_->setObjectName("chkSave");
  boxScores_->setObjectName("chkBox");
  speed_->setObjectName("cmbSpeed");
  // Design decision: 0 is offered as "0 - no pause" beside 1 to 10, for a
  // player who wants only the results; the heading stays the program's own.
  for (int pause = kNoTickerPause; pause <= kLongestTickerPause; ++pause) {
    speed_->addItem(pause == kNoTickerPause ? QString("0 - no pause") : QString::number(pause),
                    pause);
  }
  speed_->setToolTip(
      "The pause after each game of a batch on the score ticker, in tenths of a second");

  const Options current = CurrentOptions(session_);
  playByPlay_->setChecked(current.PlayByPlay == 1);
  autosave_->setChecked(current.Autosave == 1);
  boxScores_->setChecked(current.NumPlayers == 1);
  speed_->setCurrentIndex(speed_->findData(current.SimSpeed));

  auto* submit = new QPushButton("Submit", this);
  submit->setObjectName("cmdSubmit");
  submit->setDefault(true);
  auto* close = new QPushButton("Close", this);
  close->setObjectName("cmdClose");
  connect(submit, &QPushButton::clicked, this, [this] {
    Submit();
    accept();
  });
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  auto* speedRow = new QHBoxLayout;
  speedRow->addWidget(new QLabel("Set Score Ticker Speed (5=Normal)", this));
  speedRow->addWidget(speed_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(submit);
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(playByPlay_);
  layout->addWidget(autosave_);
  layout->addWidget(boxScores_);
  layout->addLayout(speedRow);
  layout->addSpacing(8);
  layout->addLayout(buttons);
}

void OptionsDialog::Submit() {
  Options options;
  options.PlayByPlay = playByPlay_->isChecked() ? 1 : 0;
  options.Autosave = autosave_->isChecked() ? 1 : 0;
  options.NumPlayers = boxScores_->isChecked() ? 1 : 0;
  options.SimSpeed = speed_->currentData().toInt();
  SubmitOptions(session_, options);
}

}  // namespace courtmere::app
