// frmCoachReview, "<school> Head Coach Review": the user's career as his
// board sees it, a label and a value on each line.
#pragma once

#include <QString>

#include "app/screen.h"

class QFormLayout;

namespace courtmere::app {

class CoachReviewScreen : public Screen {
  Q_OBJECT

 public:
  CoachReviewScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override;
  void Refresh() override;

  // The value shown beside a label ("Coach Rating:").
  QString Value(const QString& label) const;

 private:
  QFormLayout* fields_;
  QString caption_;
};

}  // namespace courtmere::app
