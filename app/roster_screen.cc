#include "app/roster_screen.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/roster_grid.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

const char* const kPositions[] = {"PG", "SG", "SF", "PF", "C"};
const char* const kStrings[] = {"Starter", "Reserve", "Reserve 2"};

template <size_t N>
QComboBox* ChoiceBox(const std::array<std::string_view, N>& choices, const char* name,
                     QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  for (std::string_view choice : choices) box->addItem(ToQString(choice));
  return box;
}

void Select(QComboBox* box, int id) {
  const int at = box->findData(id);
  box->setCurrentIndex(at >= 0 ? at : 0);
}

void SelectText(QComboBox* box, const std::string& text) {
  const int at = box->findText(ToQString(text));
  if (at >= 0) box->setCurrentIndex(at);
}

}  // namespace

RosterScreen::RosterScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      school_(session.humanSchool),
      grid_(new GridView(new GridModel(RosterHeadings(), this), true, this)) {
  setObjectName("frmRoster");
  grid_->setObjectName("MSFlexRoster");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == 0) host_.OpenPlayerCard(grid_->Model()->Key(row));
  });
  auto* lower = new QHBoxLayout;
  lower->addWidget(BuildChart(), 3);
  lower->addWidget(BuildTactics(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid_, 1);
  layout->addLayout(lower);
  layout->addWidget(BuildButtons());
  resize(1120, 720);
  Refresh();
}

QWidget* RosterScreen::BuildChart() {
  auto* box = new QGroupBox("Depth Chart", this);
  auto* grid = new QGridLayout(box);
  for (int p = 0; p < 5; ++p) {
    grid->addWidget(new QLabel(kPositions[p], box), 0, p + 1, Qt::AlignCenter);
  }
  for (int s = 0; s < 3; ++s) {
    grid->addWidget(new QLabel(kStrings[s], box), s + 1, 0);
    for (int p = 0; p < 5; ++p) {
      auto* list = new QComboBox(box);
      list->setObjectName(QString("cmb%1%2").arg(kPositions[p]).arg(s + 1));
      list->setMinimumContentsLength(17);
      list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
      chart_[s * 5 + p] = list;
      grid->addWidget(list, s + 1, p + 1);
    }
  }
  inactive_ = new QComboBox(box);
  inactive_->setObjectName("cmbInactive");
  grid->addWidget(new QLabel("Inactive", box), 4, 0);
  grid->addWidget(inactive_, 4, 1, 1, 2);
  return box;
}

QWidget* RosterScreen::BuildTactics() {
  auto* box = new QGroupBox("Adjustments", this);
  auto* grid = new QGridLayout(box);
  tactics_ = {
      ChoiceBox(kTempoChoices, "cmbTempo", box), ChoiceBox(kOffenseChoices, "cmbOffense", box),
      ChoiceBox(kDefenseChoices, "cmbDefense", box), ChoiceBox(kPressChoices, "cmbPress", box)};
  const char* labels[] = {"Tempo", "Offense", "Defense", "Press"};
  for (int i = 0; i < 4; ++i) {
    grid->addWidget(new QLabel(labels[i], box), i, 0);
    grid->addWidget(tactics_[i], i, 1);
  }
  return box;
}

QWidget* RosterScreen::BuildButtons() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  auto add = [&](const char* name, const QString& text, void (RosterScreen::*action)()) {
    auto* button = new QPushButton(text, row);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, action);
    layout->addWidget(button);
  };
  add("cmdAuto", "Computer Set Lineup", &RosterScreen::AutoSetLineup);
  layout->addStretch();
  add("cmdSubmit", "Submit Depth Chart", &RosterScreen::SubmitChart);
  add("cmdAdjust", "Save Adjustments", &RosterScreen::SaveTactics);
  return row;
}

QString RosterScreen::Caption() const {
  return ToQString(school_) + " Roster";
}

void RosterScreen::Refresh() {
  const std::vector<RosterRow> roster = TeamRoster(session_.Db(), school_);
  grid_->Model()->SetRows(RosterGridRows(roster), RosterIds(roster));
  FillPlayerLists(roster);
  ShowChart(LoadDepthChart(session_.Db(), school_));
  ShowTactics(LoadTactics(session_.Db(), school_));
}

void RosterScreen::FillPlayerLists(const std::vector<RosterRow>& roster) {
  std::vector<QComboBox*> lists(chart_.begin(), chart_.end());
  lists.push_back(inactive_);
  for (QComboBox* list : lists) {
    list->clear();
    list->addItem("", 0);
    for (const RosterRow& p : roster) list->addItem(ChartName(p), p.Id);
  }
}

void RosterScreen::ShowChart(const DepthChart& chart) {
  for (int i = 0; i < 15; ++i) Select(chart_[i], chart.ids[i]);
  Select(inactive_, chart.inactive);
}

void RosterScreen::ShowTactics(const TeamTactics& tactics) {
  SelectText(tactics_[0], tactics.Tempo);
  SelectText(tactics_[1], tactics.OffenseType);
  SelectText(tactics_[2], tactics.Defense);
  SelectText(tactics_[3], tactics.Press);
}

DepthChart RosterScreen::ChosenChart() const {
  DepthChart chart;
  for (int i = 0; i < 15; ++i) chart.ids[i] = chart_[i]->currentData().toInt();
  chart.inactive = inactive_->currentData().toInt();
  return chart;
}

TeamTactics RosterScreen::ChosenTactics() const {
  return {ToStdString(tactics_[0]->currentText()), ToStdString(tactics_[1]->currentText()),
          ToStdString(tactics_[2]->currentText()), ToStdString(tactics_[3]->currentText())};
}

void RosterScreen::SubmitChart() {
  // A refused chart stays on the screen as the user left it, to be put right.
  if (SubmitDepthChart(session_, school_, ChosenChart())) host_.StoreChanged();
}

void RosterScreen::SaveTactics() {
  courtmere::SaveTactics(session_, school_, ChosenTactics());
  host_.StoreChanged();
}

void RosterScreen::AutoSetLineup() {
  if (courtmere::AutoSetLineup(session_, school_)) host_.StoreChanged();
}

}  // namespace courtmere::app
