// frmCoachUpdate, the inbox, docked at the foot of the main window for the
// whole session: the current week's messages (Session::inbox), each with its
// sender and subject. A click on one shows its text.
#pragma once

#include <QDockWidget>

class QPlainTextEdit;

namespace courtmere {
struct Session;
}

namespace courtmere::app {

class GridView;

class InboxDock : public QDockWidget {
  Q_OBJECT

 public:
  InboxDock(Session& session, QWidget* parent = nullptr);

  // Caption "<school> Email Inbox" and the week's messages.
  void Refresh();
  GridView* Grid() const { return grid_; }

 private:
  Session& session_;
  GridView* grid_;
  QPlainTextEdit* text_;
};

}  // namespace courtmere::app
