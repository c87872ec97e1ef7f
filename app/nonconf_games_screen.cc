#include "app/nonconf_games_screen.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/nonconf_submit.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

NonConfScreen Read(Session& session, NonConfView view) {
  return view == NonConfView::kPreConference ? ShowPreConferenceGames(session, session.humanSchool)
                                             : ShowOtherGames(session, session.humanSchool);
}

QString GameCaption(const NonConfRow& row) {
  const QString when =
      row.Heading.empty() ? QString("Week %1").arg(row.Week) : ToQString(row.Heading).trimmed();
  QString caption = QString("Game %1: %2, %3 - %4 %5")
                        .arg(row.Position)
                        .arg(when, ToQString(row.GameDay), row.UserAtHome ? "vs." : "at",
                             ToQString(row.Opponent));
  if (!row.Offered()) caption += QString(" (%1)").arg(ToQString(row.GameType));
  return caption;
}

GridView* ChoiceList(const NonConfRow& row, QWidget* parent) {
  auto* list = new GridView(new GridModel({"School", "Prestige"}, parent), false, parent);
  std::vector<GridRow> rows;
  for (const NonConfChoice& c : row.Choices) {
    rows.push_back({GridCell::Text(c.School), GridCell::Text(c.Prestige)});
  }
  list->Model()->SetRows(std::move(rows));
  list->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  list->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  // The present opponent and eight candidates show without scrolling.
  list->setMinimumHeight(list->verticalHeader()->defaultSectionSize() * 9 +
                         list->horizontalHeader()->sizeHint().height() + 4);
  return list;
}

}  // namespace

NonConfGamesScreen::NonConfGamesScreen(Session& session, ScreenHost& host, NonConfView view,
                                       QWidget* parent)
    : Screen(session, host, parent),
      view_(view),
      title_(new QLabel(this)),
      games_(new QWidget(this)),
      gamesLayout_(new QGridLayout(games_)) {
  setObjectName("frmSchedGames");
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  auto* scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setWidget(games_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(AddButton("cmdSubmit", "Submit", [this] { Submit(); }));
  buttons->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title_);
  layout->addWidget(scroll, 1);
  layout->addLayout(buttons);
  resize(860, 760);
  Build({});
}

QString NonConfGamesScreen::Key() const {
  return QString("frmSchedGames%1").arg(static_cast<int>(view_));
}

void NonConfGamesScreen::Refresh() {
  Build(Picked());
}

void NonConfGamesScreen::Build(const std::vector<std::string>& picked) {
  screen_ = Read(session_, view_);
  title_->setText(ToQString(screen_.Title));
  while (QLayoutItem* item = gamesLayout_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  lists_.clear();
  if (screen_.Rows.empty()) gamesLayout_->addWidget(new QLabel(ToQString(kNoGames), games_));
  for (size_t i = 0; i < screen_.Rows.size(); ++i) {
    const NonConfRow& row = screen_.Rows[i];
    auto* box = new QGroupBox(GameCaption(row), games_);
    auto* boxLayout = new QVBoxLayout(box);
    GridView* list = row.Offered() ? ChoiceList(row, box) : nullptr;
    if (list) {
      boxLayout->addWidget(list);
    } else {
      boxLayout->addWidget(new QLabel("A preseason tournament game: not offered for change.", box));
    }
    lists_.push_back(list);
    const int at = static_cast<int>(i);
    gamesLayout_->addWidget(box, at / 2, at % 2);
    if (i < picked.size() && !picked[i].empty()) Pick(i, ToQString(picked[i]));
  }
}

bool NonConfGamesScreen::Pick(size_t row, const QString& school) {
  GridView* list = lists_.at(row);
  if (!list) return false;
  for (int r = 0; r < list->Model()->rowCount(); ++r) {
    if (list->Model()->Cell(r, 0).text != school) continue;
    list->selectRow(r);
    return true;
  }
  return false;
}

// The school picked in each list; empty where nothing is picked.
std::vector<std::string> NonConfGamesScreen::Picked() const {
  std::vector<std::string> picked;
  for (GridView* list : lists_) {
    const int row = list ? list->SelectedRow() : -1;
    picked.push_back(row < 0 ? std::string() : ToStdString(list->Model()->Cell(row, 0).text));
  }
  return picked;
}

void NonConfGamesScreen::Submit() {
  if (SubmitGames(session_, screen_, Picked())) host_.StoreChanged();
}

}  // namespace courtmere::app
