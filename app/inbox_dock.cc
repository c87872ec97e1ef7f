#include "app/inbox_dock.h"

#include <QHeaderView>
#include <QPlainTextEdit>
#include <QSplitter>

#include "app/grid_model.h"
#include "app/screen.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

constexpr int kHeight = 140;

}  // namespace

InboxDock::InboxDock(Session& session, QWidget* parent)
    : QDockWidget(parent),
      session_(session),
      grid_(new GridView(new GridModel({"From", "Subject"}, this), false, this)),
      text_(new QPlainTextEdit(this)) {
  setObjectName("frmCoachUpdate");
  setFeatures(QDockWidget::NoDockWidgetFeatures);
  grid_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setStretchLastSection(true);
  text_->setReadOnly(true);
  auto* split = new QSplitter(Qt::Horizontal, this);
  split->addWidget(grid_);
  split->addWidget(text_);
  split->setStretchFactor(0, 2);
  split->setStretchFactor(1, 3);
  // Design decision: the inbox keeps a fixed, low height, so the screens
  // above it keep the room they need.
  split->setFixedHeight(kHeight);
  setWidget(split);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int) {
    const std::vector<InboxMessage>& messages = session_.inbox.Messages;
    if (row < static_cast<int>(messages.size())) text_->setPlainText(ToQString(messages[row].Text));
  });
}

void InboxDock::Refresh() {
  setWindowTitle(ToQString(session_.humanSchool) + " Email Inbox");
  std::vector<GridRow> rows;
  for (const InboxMessage& message : session_.inbox.Messages) {
    rows.push_back({GridCell::Text(message.Sender), GridCell::Text(message.Subject)});
  }
  grid_->Model()->SetRows(std::move(rows));
  text_->clear();
}

}  // namespace courtmere::app
