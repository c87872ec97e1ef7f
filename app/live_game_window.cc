#include "app/live_game_window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "app/screen.h"
#include "app/sub_patterns_screen.h"
#include "engine/box_score.h"
#include "engine/debug_dump.h"
#include "people/player.h"
#include "screens/live_sub_patterns.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

constexpr int kManColumns = 6;  // name, points, rebounds, assists, fouls, tired

template <class Items>
QComboBox* Combo(const char* name, const Items& items, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  for (const auto& item : items) box->addItem(ToQString(item));
  return box;
}

QLabel* Box(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setFrameShape(QFrame::Panel);
  label->setFrameShadow(QFrame::Sunken);
  label->setAlignment(Qt::AlignCenter);
  label->setMinimumWidth(48);
  return label;
}

QTableWidget* Table(const char* name, const QStringList& headings, QWidget* parent) {
  auto* table = new QTableWidget(0, static_cast<int>(headings.size()), parent);
  table->setObjectName(name);
  table->setHorizontalHeaderLabels(headings);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->verticalHeader()->hide();
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  return table;
}

void SetCell(QTableWidget* table, int row, int column, const std::string& text) {
  table->setItem(row, column, new QTableWidgetItem(ToQString(text)));
}

void Select(QComboBox* box, const std::string& text) {
  const int index = box->findText(ToQString(text));
  if (index >= 0) box->setCurrentIndex(index);
}

std::string ClockText(int seconds) {
  seconds = std::max(seconds, 0);
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", seconds / 60, seconds % 60);
  return text;
}

}  // namespace

LiveGameWindow::LiveGameWindow(Session& session, QWidget* parent)
    : QWidget(parent, Qt::Window), session_(session), tabs_(new QTabWidget(this)) {
  setObjectName("frmPlayByPlay2");
  tabs_->setObjectName("SSTab1");
  tabs_->addTab(BuildGameTab(), "Game");
  tabs_->addTab(BuildLineupTab(), "Lineup");
  tabs_->addTab(BuildBoxTab(), "Box Score");
  tabs_->addTab(BuildPatternsTab(), "Sub Patterns");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_);
  Wire();
  resize(1100, 760);
}

QWidget* LiveGameWindow::BuildGameTab() {
  auto* tab = new QWidget(this);
  pbp_ = new QListWidget(tab);
  pbp_->setObjectName("txtPBP");
  clock_ = Box("txtClock", tab);
  half_ = Box("txtHalf", tab);
  shotClock_ = Box("txtTime", tab);
  auto* board = new QGridLayout;
  board->addWidget(new QLabel("Clock", tab), 0, 2);
  board->addWidget(clock_, 1, 2);
  board->addWidget(new QLabel("Half", tab), 2, 2);
  board->addWidget(half_, 3, 2);
  board->addWidget(new QLabel("Shot clock", tab), 4, 2);
  board->addWidget(shotClock_, 5, 2);
  const char* scoreNames[2] = {"txtHomeScore", "txtAwayScore"};
  const char* foulNames[2] = {"txtHomeFoul", "txtAwayFoul"};
  const char* timeoutNames[2] = {"txtHomeTO", "txtAwayTO"};
  const char* ballNames[2] = {"imgHome", "imgAway"};
  const char* menNames[2] = {"HomeTeam", "AwayTeam"};
  for (int s = 0; s < 2; ++s) {
    const int column = s == 0 ? 0 : 4;
    names_[s] = new QLabel(tab);
    names_[s]->setStyleSheet("font-weight: bold; font-size: 12pt;");
    scores_[s] = Box(scoreNames[s], tab);
    scores_[s]->setStyleSheet("font-size: 18pt; font-weight: bold;");
    fouls_[s] = Box(foulNames[s], tab);
    timeoutsLeft_[s] = Box(timeoutNames[s], tab);
    ball_[s] = new QLabel(tab);
    ball_[s]->setObjectName(ballNames[s]);
    ball_[s]->setStyleSheet("color: #c05000; font-weight: bold;");
    board->addWidget(names_[s], 0, column, 1, 2);
    board->addWidget(scores_[s], 1, column, 1, 2);
    board->addWidget(new QLabel("Team fouls", tab), 2, column);
    board->addWidget(fouls_[s], 2, column + 1);
    board->addWidget(new QLabel("Timeouts left", tab), 3, column);
    board->addWidget(timeoutsLeft_[s], 3, column + 1);
    board->addWidget(ball_[s], 4, column, 1, 2);
    men_[s] = Table(menNames[s], {"Name", "Pts", "Reb", "Ast", "Fls", "Tired"}, tab);
    men_[s]->setRowCount(5);
    men_[s]->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    men_[s]->setMinimumHeight(170);
  }
  auto* menRow = new QHBoxLayout;
  menRow->addWidget(men_[0]);
  menRow->addWidget(men_[1]);

  tempo_ = Combo("cmbTempo", kTempoChoices, tab);
  offence_ = Combo("cmbOffType", kOffenseChoices, tab);
  defence_ = Combo("cmbDefense", kDefenseChoices, tab);
  press_ = Combo("cmbPress", kPressChoices, tab);
  coach_ = new QCheckBox("Coach the end game", tab);
  coach_->setObjectName("chkCoach");
  pace_ = Combo("cmbPos", kPaceChoices, tab);
  shot_ = Combo("cmbShot", kShotChoices, tab);
  speed_ = new QSlider(Qt::Horizontal, tab);
  speed_->setObjectName("slTimer");
  speed_->setRange(0, 10);
  speed_->setValue(3);
  autoSub_ = new QCheckBox("Automatic substitution", tab);
  autoSub_->setObjectName("chkSub");
  auto* tactics = new QGridLayout;
  int row = 0;
  for (auto [label, box] : {std::pair<const char*, QComboBox*>{"Tempo", tempo_},
                            {"Offense", offence_},
                            {"Defense", defence_},
                            {"Press", press_}}) {
    tactics->addWidget(new QLabel(label, tab), row, 0);
    tactics->addWidget(box, row++, 1);
  }
  tactics->addWidget(coach_, row++, 0, 1, 2);
  tactics->addWidget(new QLabel("Pace", tab), row, 0);
  tactics->addWidget(pace_, row++, 1);
  tactics->addWidget(new QLabel("Shot", tab), row, 0);
  tactics->addWidget(shot_, row++, 1);
  tactics->addWidget(new QLabel("Speed", tab), row, 0);
  tactics->addWidget(speed_, row++, 1);
  tactics->addWidget(autoSub_, row++, 0, 1, 2);

  start_ = new QPushButton("Start / Pause", tab);
  start_->setObjectName("cmdStart");
  timeout_ = new QPushButton("Timeout", tab);
  timeout_->setObjectName("cmdTimeout");
  sub_ = new QPushButton("Sub", tab);
  sub_->setObjectName("cmdSub");
  exit_ = new QPushButton("Exit", tab);
  exit_->setObjectName("cmdExit");
  debug_ = new QPushButton("Debug", tab);
  debug_->setObjectName("cmdDebug");
  auto* buttons = new QHBoxLayout;
  for (QPushButton* b : {start_, timeout_, sub_, exit_, debug_}) buttons->addWidget(b);

  auto* right = new QVBoxLayout;
  right->addLayout(tactics);
  right->addStretch();
  auto* middle = new QHBoxLayout;
  middle->addWidget(pbp_, 1);
  middle->addLayout(right);
  auto* layout = new QVBoxLayout(tab);
  layout->addLayout(board);
  layout->addLayout(menRow);
  layout->addLayout(middle, 1);
  layout->addLayout(buttons);
  return tab;
}

QWidget* LiveGameWindow::BuildLineupTab() {
  auto* tab = new QWidget(this);
  QStringList headings;
  for (const char* column : kLineupColumns) headings << column;
  lineup_[0] = Table("MSFlexPlayer", headings, tab);
  lineup_[1] = Table("MSFlexOpponent", headings, tab);
  const char* rowNames[3] = {"cmbStart", "cmbSecondString", "cmbThirdString"};
  const char* rowLabels[3] = {"Starters", "Second string", "Third string"};
  auto* strings = new QGridLayout;
  for (int slot = 1; slot <= 5; ++slot) {
    strings->addWidget(new QLabel(PositionName(slot), tab), 0, slot);
  }
  for (int r = 0; r < 3; ++r) {
    strings->addWidget(new QLabel(rowLabels[r], tab), r + 1, 0);
    for (int slot = 0; slot < 5; ++slot) {
      strings_[r][slot] = new QComboBox(tab);
      strings_[r][slot]->setObjectName(QString("%1%2").arg(rowNames[r]).arg(slot + 1));
      strings->addWidget(strings_[r][slot], r + 1, slot + 1);
    }
  }
  player_ = new QComboBox(tab);
  player_->setObjectName("cmbPlayer");
  update_ = new QPushButton("Update", tab);
  update_->setObjectName("cmdUpdate");
  gameplan_ = new QPushButton("Save Gameplan", tab);
  gameplan_->setObjectName("cmdGameplan");
  playerView_ = new QPushButton("View Player", tab);
  playerView_->setObjectName("cmdPlayerView");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(player_);
  buttons->addWidget(playerView_);
  buttons->addStretch();
  buttons->addWidget(gameplan_);
  buttons->addWidget(update_);
  auto* layout = new QVBoxLayout(tab);
  layout->addWidget(lineup_[0], 1);
  layout->addLayout(strings);
  layout->addLayout(buttons);
  layout->addWidget(lineup_[1], 1);
  return tab;
}

QWidget* LiveGameWindow::BuildBoxTab() {
  auto* tab = new QWidget(this);
  auto* layout = new QVBoxLayout(tab);
  const char* names[2] = {"MSFlexHomeBox", "MSFlexAwayBox"};
  QStringList headings;
  for (int f = 0; f < BoxGrid::kFields; ++f) headings << "";
  for (int s = 0; s < 2; ++s) {
    box_[s] = Table(names[s], headings, tab);
    box_[s]->horizontalHeader()->hide();
    layout->addWidget(box_[s], 1);
  }
  return tab;
}

QWidget* LiveGameWindow::BuildPatternsTab() {
  auto* tab = new QWidget(this);
  patterns_ = MakeSubPatternTable(tab);
  auto* layout = new QVBoxLayout(tab);
  layout->addWidget(patterns_);
  return tab;
}

void LiveGameWindow::Wire() {
  connect(start_, &QPushButton::clicked, this, [this] { Press(PressStart); });
  connect(exit_, &QPushButton::clicked, this, [this] { Exit(); });
  connect(timeout_, &QPushButton::clicked, this, [this] {
    if (game_ == nullptr) return;
    const LiveReply reply = PressTimeout(*game_);
    if (reply.disable) timeout_->setEnabled(false);
    Tell(reply.message);
  });
  connect(sub_, &QPushButton::clicked, this, [this] {
    if (game_ != nullptr) Tell(PressSub(*game_).message);
  });
  connect(debug_, &QPushButton::clicked, this, [this] {
    if (game_ != nullptr) DebugDump(*game_);
  });
  auto tactic = [this](QComboBox* box, void (*choose)(Game&, const std::string&)) {
    connect(box, &QComboBox::currentTextChanged, this, [this, choose](const QString& text) {
      if (game_ != nullptr && !filling_) choose(*game_, ToStdString(text));
    });
  };
  tactic(tempo_, ChooseTempo);
  tactic(offence_, ChooseOffence);
  tactic(defence_, ChooseDefence);
  tactic(press_, ChoosePress);
  connect(coach_, &QCheckBox::clicked, this, [this] { CoachClicked(); });
  connect(pace_, &QComboBox::activated, this, [this] { EndgameChosen(); });
  connect(shot_, &QComboBox::activated, this, [this] { EndgameChosen(); });
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) { TabChanged(tab); });
  connect(update_, &QPushButton::clicked, this, [this] { Update(); });
  connect(gameplan_, &QPushButton::clicked, this, [this] { SaveGameplan(); });
  connect(playerView_, &QPushButton::clicked, this, [this] {
    if (openPlayerCard && player_->currentIndex() >= 0) {
      openPlayerCard(player_->currentData().toInt());
    }
  });
}

// --- Waiting --------------------------------------------------------------

template <class Done>
void LiveGameWindow::PumpUntil(Done done) {
  while (!done()) {
    QEventLoop wait;
    QTimer::singleShot(15, &wait, &QEventLoop::quit);
    wait.exec();
  }
}

void LiveGameWindow::Delay(double seconds) {
  if (seconds <= 0) {
    QCoreApplication::processEvents();
    return;
  }
  QEventLoop wait;
  QTimer::singleShot(static_cast<int>(seconds * 1000), &wait, &QEventLoop::quit);
  wait.exec();
}

// --- The engine's calls ---------------------------------------------------

void LiveGameWindow::PrepareGame(Game& game) {
  game_ = &game;
  pbp_->clear();
  FillFloorBoxes(game, boxes_);
  // An empty caption on a small screen, where the title bar is short.
  setWindowTitle(height() < 600 ? QString()
                                : ToQString(game.Home().School + " at " + game.Away().School));
  names_[0]->setText(ToQString(game.Home().School));
  names_[1]->setText(ToQString(game.Away().School));
  game.SubWindow = 1;
  SetCombos();
  coach_->setChecked(false);
  for (QWidget* w : {static_cast<QWidget*>(coach_), static_cast<QWidget*>(pace_),
                     static_cast<QWidget*>(shot_)}) {
    w->setEnabled(EndgameOpen(game));
  }
  timeout_->setEnabled(UserTeam(game).TimeoutsLeft > 0);
  start_->setEnabled(true);
  ShowBoard();
  ShowMen();
  tabs_->setCurrentIndex(1);
  FillLineupTab();
  show();
  raise();
  game.Resume = 0;
  PumpUntil([&] { return game.Resume != 0 || game.LiveGame == 0; });
}

void LiveGameWindow::ShowPlay(Game& game, PlayKind kind, std::string_view,
                              std::string_view listLine) {
  if (EndgameOpen(game) && !coach_->isEnabled()) {
    filling_ = true;
    coach_->setEnabled(true);
    pace_->setEnabled(true);
    shot_->setEnabled(true);
    Select(pace_, PaceText(UserTeam(game).Pace));
    Select(shot_, ShotNeedText(UserTeam(game).ShotNeed));
    filling_ = false;
  }
  const std::string stop = StopLine(game, kind);
  if (!stop.empty()) AddLine(ToQString(stop));
  const int v = speed_->value();
  Delay(v <= 0 ? 0 : (v < 6 ? v / 12.0 : v / 7.0));
  // A stop with the lineup tab open shows the lineup of the moment.
  if (game.Resume == 0 && tabs_->currentIndex() == 1) FillLineupTab();
  PumpUntil([&] { return game.LiveGame == 0 || (game.Resume != 0 && game.SubForced != 1); });
  if (game.LiveGame == 0) return;
  clock_->setText(ToQString(ClockText(game.Clock)));
  if (!listLine.empty()) AddLine(ToQString(std::string(listLine)));
  ShowBoard();
  ShowMen();
}

void LiveGameWindow::Halftime(Game& game) {
  FillFloorBoxes(game, boxes_);
  fouls_[0]->setText("0");
  fouls_[1]->setText("0");
  timeoutsLeft_[0]->setText("3");
  timeoutsLeft_[1]->setText("3");
  timeout_->setEnabled(true);
  start_->setEnabled(true);
  clock_->setText("20:00");
  SetCombos();
  ShowMen();
}

void LiveGameWindow::WaitForResume(Game& game) {
  if (game.Resume == 0 && tabs_->currentIndex() == 1) FillLineupTab();
  PumpUntil([&] { return game.Resume != 0 || game.LiveGame == 0; });
}

void LiveGameWindow::PlayerMustLeave(Game& game, bool fouledOut) {
  Tell(ForcedSubMessage(fouledOut));
  tabs_->setCurrentIndex(1);
  // Shown anew even when the tab was open: the game holds here.
  game.Resume = 0;
  FillLineupTab();
}

void LiveGameWindow::OpenSubstitutions(Game& game) {
  game.UserSubAsked = 0;
  tabs_->setCurrentIndex(1);
  // Shown anew even when the tab was open: the stop pauses the game.
  game.Resume = 0;
  FillLineupTab();
  start_->setEnabled(true);
}

void LiveGameWindow::ShowSubs(Game& game) {
  for (const std::string& line : SubLines(game, boxes_)) AddLine(ToQString(line));
}

bool LiveGameWindow::AutoSubstitution() const {
  return autoSub_->isChecked();
}

void LiveGameWindow::ShowFinal(Game& game) {
  ShowBoard();
  ShowMen();
  AddLine("Please Click Exit to resume simming games");
  start_->setEnabled(false);
  timeout_->setEnabled(false);
  sub_->setEnabled(false);
  PumpUntil([&] { return game.LiveGame == 0; });
}

void LiveGameWindow::Finish(Game&) {
  game_ = nullptr;
  pbp_->clear();
  hide();
}

void LiveGameWindow::closeEvent(QCloseEvent* event) {
  // Closing the window leaves the game to run unattended, as Exit does.
  if (game_ != nullptr) {
    Exit();
    event->ignore();
    return;
  }
  QWidget::closeEvent(event);
}

// --- Controls -------------------------------------------------------------

void LiveGameWindow::Press(void (*action)(Game&)) {
  if (game_ != nullptr) action(*game_);
}

void LiveGameWindow::Exit() {
  if (game_ == nullptr) return;
  PressExit(*game_);
  pbp_->clear();
  hide();
}

void LiveGameWindow::Tell(const std::string& message) {
  if (!message.empty()) session_.ui.Message(message);
}

// Ticked, the user takes over his side's end game with the two combos'
// settings; unticked, the computer takes it back once he agrees.
void LiveGameWindow::CoachClicked() {
  if (game_ == nullptr || !coach_->isEnabled()) return;
  if (!coach_->isChecked() &&
      !session_.ui.Ask("Do you want to let the CPU control the end-game management?")) {
    coach_->setChecked(true);
    return;
  }
  CoachEndgame(*game_, coach_->isChecked(), ToStdString(pace_->currentText()),
               ToStdString(shot_->currentText()));
}

// A pace or shot chosen while the user runs the end game, once he agrees.
void LiveGameWindow::EndgameChosen() {
  if (game_ == nullptr || filling_ || !coach_->isChecked()) return;
  if (!session_.ui.Ask("Do you wish to make these changes?")) return;
  CoachEndgame(*game_, true, ToStdString(pace_->currentText()), ToStdString(shot_->currentText()));
  Tell("Your changes have been saved.");
}

void LiveGameWindow::TabChanged(int tab) {
  if (game_ == nullptr) return;
  Game& game = *game_;
  if (tab == 0) {
    SetCombos();
    pbp_->scrollToBottom();
    timeout_->setEnabled(UserTeam(game).TimeoutsLeft > 0);
    game.SubForced = 0;
    return;
  }
  game.Resume = 0;
  if (tab == 1) FillLineupTab();
  if (tab == 2) FillBoxTab();
  if (tab == 3) FillPatternsTab();
}

void LiveGameWindow::Update() {
  if (game_ == nullptr) return;
  std::array<int, 5> starters{};
  for (int slot = 0; slot < 5; ++slot) starters[slot] = strings_[0][slot]->currentData().toInt();
  Tell(UpdateLineup(*game_, starters).message);
  ShowMen();
  FillLineupTab();
}

void LiveGameWindow::SaveGameplan() {
  if (game_ == nullptr) return;
  Gameplan plan;
  for (int r = 0; r < 3; ++r) {
    for (int slot = 0; slot < 5; ++slot) {
      plan.ids[r * 5 + slot] = strings_[r][slot]->currentData().toInt();
    }
  }
  plan.tempo = ToStdString(tempo_->currentText());
  plan.offence = ToStdString(offence_->currentText());
  plan.defence = ToStdString(defence_->currentText());
  plan.press = ToStdString(press_->currentText());
  Tell(courtmere::SaveGameplan(session_, UserTeam(*game_).School, plan));
}

// --- Drawing --------------------------------------------------------------

void LiveGameWindow::AddLine(const QString& line) {
  pbp_->addItem(line);
  pbp_->scrollToBottom();
}

void LiveGameWindow::SetCombos() {
  if (game_ == nullptr) return;
  const Tactics& t = UserTeam(*game_).tactics;
  filling_ = true;
  Select(tempo_, t.Tempo());
  Select(offence_, t.OffenseType());
  Select(defence_, t.Defense());
  Select(press_, t.Press());
  filling_ = false;
}

void LiveGameWindow::ShowBoard() {
  const Game& game = *game_;
  for (int s = 0; s < 2; ++s) {
    const GameSide& team = game.sides[s];
    scores_[s]->setText(QString::number(team.Score));
    fouls_[s]->setText(QString::number(team.Fouls));
    timeoutsLeft_[s]->setText(QString::number(team.TimeoutsLeft));
    ball_[s]->setText(static_cast<int>(game.Possession) == s ? "● ball" : "");
  }
  half_->setText(QString::number(game.Half));
  shotClock_->setText(game.ShotClock <= game.Clock ? QString::number(game.ShotClock) : "-");
  clock_->setText(ToQString(ClockText(game.Clock)));
}

void LiveGameWindow::ShowMen() {
  const Game& game = *game_;
  for (int s = 0; s < 2; ++s) {
    const GameSide& team = game.sides[s];
    for (int slot = 1; slot <= 5; ++slot) {
      const GamePlayer& man = team.Court[slot];
      const GameStat* line = team.StatOf(man);
      const int row = slot - 1;
      SetCell(men_[s], row, 0, team.TextsOf(man).Name);
      if (line == nullptr) {
        for (int c = 1; c < kManColumns; ++c) SetCell(men_[s], row, c, "");
        continue;
      }
      SetCell(men_[s], row, 1, std::to_string(line->Points));
      SetCell(men_[s], row, 2, std::to_string(line->OffRebounds + line->DefRebounds));
      SetCell(men_[s], row, 3, std::to_string(line->Assists));
      SetCell(men_[s], row, 4, std::to_string(line->Fouls));
      SetCell(men_[s], row, 5, LooksTired(game, line->Energy) ? "Yes" : "No");
    }
  }
}

void LiveGameWindow::FillLineupTab() {
  if (game_ == nullptr) return;
  Game& game = *game_;
  const Side user = UserSideOf(game);
  try {
    for (int s = 0; s < 2; ++s) {
      const Side side = s == 0 ? user : OtherSide(user);
      const std::vector<LiveLineupRow> rows = LineupRows(session_, game, side);
      lineup_[s]->setRowCount(static_cast<int>(rows.size()));
      for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        for (int c = 0; c < static_cast<int>(rows[r].cells.size()); ++c) {
          SetCell(lineup_[s], r, c, rows[r].cells[c]);
        }
      }
    }
    const std::vector<LineupChoice> choices = LineupChoices(session_, game, user);
    const GameSide& team = game.SideOf(user);
    filling_ = true;
    player_->clear();
    for (const LineupChoice& c : choices) player_->addItem(ToQString(c.name), c.id);
    for (int r = 0; r < 3; ++r) {
      for (int slot = 0; slot < 5; ++slot) {
        QComboBox* box = strings_[r][slot];
        box->clear();
        box->addItem("", 0);
        for (const LineupChoice& c : choices) box->addItem(ToQString(c.name), c.id);
        // The starters' row shows the floor; the others the depth chart.
        const int id = r == 0 ? team.Court[slot + 1].Id : team.Depth[r * 5 + slot + 1];
        const int index = box->findData(id);
        if (index < 0 && id != 0 && team.FindRoster(id) != nullptr) {
          // A man on the floor who may not be picked (hurt this game) still
          // shows, so that Update keeps him.
          box->addItem(ToQString(team.TextsOf(*team.FindRoster(id)).AbbrName), id);
        }
        box->setCurrentIndex(std::max(box->findData(id), 0));
      }
    }
    filling_ = false;
  } catch (const std::exception& error) {
    filling_ = false;
    Tell(std::string("There was an error in displaying your lineup. You may try and continue "
                     "but ") +
         error.what());
  }
  update_->setEnabled(UpdateOpen(game));
}

void LiveGameWindow::FillBoxTab() {
  Game& game = *game_;
  if (game.BoxFileName.empty()) return;
  WriteBoxScore(game);
  const std::array<BoxGrid, 2> grids = LoadBoxGrids(game.BoxFileName);
  for (int s = 0; s < 2; ++s) {
    box_[s]->setRowCount(BoxGrid::kRows);
    for (int r = 1; r <= BoxGrid::kRows; ++r) {
      for (int f = 0; f < BoxGrid::kFields; ++f) SetCell(box_[s], r - 1, f, grids[s].Rows[r][f]);
    }
  }
}

void LiveGameWindow::FillPatternsTab() {
  const std::vector<SubPatternRow> rows = SubPatternRows(session_, UserTeam(*game_).School);
  // On this tab each change is written at once, without a question.
  ShowSubPatternRows(patterns_, rows, [this, rows](int row, const std::string& pattern) {
    SubPatternRow changed = rows[static_cast<size_t>(row)];
    changed.pattern = pattern;
    SaveSubPatterns(session_, {changed});
  });
}

}  // namespace courtmere::app
