#include "app/recruit_rank_screen.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <map>

#include "app/recruit_operation.h"
#include "recruiting/recruit_list.h"
#include "recruiting/recruit_ranking.h"
#include "store/session.h"

namespace courtmere::app {

RecruitRankScreen::RecruitRankScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent), title_(new QLabel(this)), form_(new QFormLayout) {
  setObjectName("frmRank");
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(AddButton("cmdSubmit", "Submit", [this] { Submit(); }));
  buttons->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title_);
  layout->addLayout(form_);
  layout->addStretch(1);
  layout->addLayout(buttons);
  resize(420, 300);
  Refresh();
}

void RecruitRankScreen::Refresh() {
  title_->setText(ToQString(session_.humanSchool + " Recruits"));
  while (form_->rowCount() > 0) form_->removeRow(0);
  ranks_.clear();
  for (const RecruitRow& row : UserRecruitRows(session_)) {
    auto* rank = new QComboBox(this);
    rank->setObjectName(QString("cmbRank%1").arg(row.PlayerID));
    rank->addItem("");
    for (int n = 1; n <= kMostRecruits; ++n) rank->addItem(QString::number(n));
    rank->setCurrentIndex(row.RecruitNo >= 0 && row.RecruitNo <= kMostRecruits ? row.RecruitNo : 0);
    form_->addRow(ToQString(row.Name), rank);
    ranks_.emplace_back(row.PlayerID, rank);
  }
}

QComboBox* RecruitRankScreen::RankOf(int playerId) const {
  for (const auto& [id, combo] : ranks_) {
    if (id == playerId) return combo;
  }
  return nullptr;
}

void RecruitRankScreen::Submit() {
  std::map<int, int> ranks;
  for (const auto& [id, combo] : ranks_) {
    if (combo->currentIndex() > 0) ranks[id] = combo->currentIndex();
  }
  RunRecruitOperation(session_, host_,
                      [&](Session& s) { return RankRecruits(s, ranks, /*wholeList=*/true); });
}

}  // namespace courtmere::app
