// frmScout and frmTrainer, "<school> Head Scout" and "<school> Head
// Trainer": the man in the post and, in hire mode, the candidates looking at
// the school with Fire and Hire; the screen can't be left with the post
// empty.
#pragma once

#include "app/screen.h"
#include "career/staff_market.h"

namespace courtmere::app {

class GridView;

class StaffPostScreen : public Screen {
  Q_OBJECT

 public:
  // For Post::kScout or Post::kTrainer.
  StaffPostScreen(Session& session, ScreenHost& host, Post post, bool hire,
                  QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  GridView* Candidates() const { return candidates_; }
  void Fire();
  void Hire();
  void Exit();

 private:
  Post post_;
  bool hire_;
  GridView* grid_;
  GridView* candidates_ = nullptr;
};

}  // namespace courtmere::app
