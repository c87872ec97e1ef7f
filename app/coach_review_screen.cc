#include "app/coach_review_screen.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/coach_review.h"
#include "store/session.h"

namespace courtmere::app {

CoachReviewScreen::CoachReviewScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent), fields_(new QFormLayout) {
  setObjectName("frmCoachReview");
  fields_->setLabelAlignment(Qt::AlignRight);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(AddButton("cmdExit", "Exit", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(fields_);
  layout->addStretch(1);
  layout->addLayout(buttons);
  resize(440, 500);
  Refresh();
}

QString CoachReviewScreen::Caption() const {
  return caption_;
}

void CoachReviewScreen::Refresh() {
  const CoachReview review = LoadCoachReview(session_.Db());
  caption_ = ToQString(review.Caption);
  while (fields_->rowCount() > 0) fields_->removeRow(0);
  for (const auto& [label, value] : review.Fields) {
    auto* shown = new QLabel(ToQString(value), this);
    shown->setObjectName(ToQString(label));
    shown->setTextInteractionFlags(Qt::TextSelectableByMouse);
    fields_->addRow(new QLabel("<b>" + ToQString(label).toHtmlEscaped() + "</b>", this), shown);
  }
}

QString CoachReviewScreen::Value(const QString& label) const {
  const auto* shown = findChild<QLabel*>(label);
  return shown ? shown->text() : QString();
}

}  // namespace courtmere::app
