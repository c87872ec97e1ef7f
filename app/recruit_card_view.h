// A recruit's card inside the recruiting screens: shown beside a list when
// the user clicks a row, or alone in the one-by-one browser.
#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QTextEdit;

namespace courtmere {
struct Session;
}

namespace courtmere::app {

class RecruitCardView : public QWidget {
  Q_OBJECT

 public:
  explicit RecruitCardView(QWidget* parent = nullptr);

  // Shows the recruit, or empties the card for an id that is no recruit.
  void ShowRecruit(Session& session, int playerId);
  int PlayerId() const { return playerId_; }
  QString NameText() const;

 private:
  int playerId_ = 0;
  QLabel* name_;
  QLabel* facts_;
  QLabel* grades_;
  QLabel* figures_;
  QListWidget* schools_;
  QTextEdit* report_;
};

}  // namespace courtmere::app
