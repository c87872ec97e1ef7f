#include "app/recruit_browser_screen.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/recruit_card_view.h"
#include "app/recruit_operation.h"
#include "screens/recruit_actions.h"
#include "screens/recruit_lists.h"
#include "store/session.h"

namespace courtmere::app {

RecruitBrowserScreen::RecruitBrowserScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent), place_(new QLabel(this)), card_(new RecruitCardView(this)) {
  setObjectName("frmRecruit");
  place_->setObjectName("lblPlace");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(AddButton("cmdPrevious", "Previous", [this] { Step(-1); }));
  buttons->addWidget(AddButton("cmdNext", "Next", [this] { Step(1); }));
  buttons->addWidget(place_, 1);
  buttons->addWidget(AddButton("cmdAdd", "Add to My Recruits", [this] { AddShown(); }));
  buttons->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(card_, 1);
  layout->addLayout(buttons);
  resize(460, 640);
  Refresh();
}

void RecruitBrowserScreen::Refresh() {
  const int shown = card_->PlayerId();
  ids_ = PoolIds(session_.Db());
  at_ = 0;
  for (size_t i = 0; i < ids_.size(); ++i) {
    if (ids_[i] == shown) at_ = i;
  }
  Step(0);
}

void RecruitBrowserScreen::Step(int by) {
  if (ids_.empty()) {
    place_->setText("No recruits");
    card_->ShowRecruit(session_, 0);
    return;
  }
  const auto count = static_cast<int>(ids_.size());
  at_ = static_cast<size_t>(((static_cast<int>(at_) + by) % count + count) % count);
  card_->ShowRecruit(session_, ids_[at_]);
  place_->setText(QString("%1 of %2").arg(at_ + 1).arg(count));
}

void RecruitBrowserScreen::AddShown() {
  const int playerId = card_->PlayerId();
  if (playerId == 0) return;
  RunRecruitOperation(session_, host_,
                      [playerId](Session& s) { return AskAddRecruit(s, playerId); });
}

}  // namespace courtmere::app
