#include "app/player_card_screen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/player_career_view.h"
#include "screens/display_format.h"
#include "screens/player_card.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

const QStringList kFigureHeadings = {"",    "G",   "MPG",  "PPG", "RPG", "APG",
                                     "SPG", "BPG", "TOPG", "FG%", "3P%", "FT%"};

GridRow FigureRow(const char* label, const StatLine& s) {
  auto decimal = [](double v) { return GridCell::Number(v, FormatOneDecimal(v)); };
  auto percent = [](double v) { return GridCell::Number(v, FormatPercent(v)); };
  return {GridCell::Text(label), GridCell::Whole(s.Games), decimal(s.MPG),
          decimal(s.PPG),        decimal(s.RPG),           decimal(s.APG),
          decimal(s.SPG),        decimal(s.BPG),           decimal(s.TOPG),
          percent(s.FGPercent),  percent(s.ThreePercent),  percent(s.FTPercent)};
}

QString Line(const char* label, const std::string& value) {
  return QString("<b>%1:</b> %2").arg(label, ToQString(value).toHtmlEscaped());
}

}  // namespace

PlayerCardScreen::PlayerCardScreen(Session& session, ScreenHost& host, int playerId,
                                   QWidget* parent)
    : Screen(session, host, parent),
      playerId_(playerId),
      title_(new QLabel(this)),
      details_(new QLabel(this)),
      grades_(new GridView(new GridModel({"Scouting", "Grade"}, this), false, this)),
      figures_(new GridView(new GridModel(kFigureHeadings, this), false, this)),
      career_(new PlayerCareerView(session.Db(), playerId, this)) {
  setObjectName("frmPlayerCard");
  title_->setStyleSheet("font-size: 15pt; font-weight: bold;");
  details_->setTextFormat(Qt::RichText);
  grades_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grades_->setSelectionMode(QAbstractItemView::NoSelection);
  figures_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  figures_->setSelectionMode(QAbstractItemView::NoSelection);
  const int row = figures_->verticalHeader()->defaultSectionSize();
  figures_->setFixedHeight(row * 3 + 6);
  grades_->setFixedHeight(row * 11 + 6);
  details_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto* middle = new QHBoxLayout;
  middle->addWidget(details_, 1);
  middle->addWidget(grades_, 1);
  // The card, and his career by year on a page of its own.
  auto* card = new QWidget(this);
  auto* cardLayout = new QVBoxLayout(card);
  cardLayout->addLayout(middle);
  cardLayout->addWidget(figures_);
  cardLayout->addStretch();
  auto* pages = new QTabWidget(this);
  pages->setObjectName("tabPlayerCard");
  pages->addTab(card, "Card");
  pages->addTab(career_, "Career by Year");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title_);
  layout->addWidget(pages, 1);
  resize(720, 470);
  Refresh();
}

QString PlayerCardScreen::Caption() const {
  return name_.isEmpty() ? "Player" : name_;
}

QString PlayerCardScreen::Key() const {
  return QString("PlayerCard:%1").arg(playerId_);
}

void PlayerCardScreen::Refresh() {
  const std::optional<PlayerCard> card = LoadPlayerCard(session_, playerId_);
  if (!card) {
    // A released or graduated player's card stays open, empty.
    title_->setText("No such player");
    details_->clear();
    grades_->Model()->SetRows({});
    figures_->Model()->SetRows({});
    career_->Refresh();
    return;
  }
  name_ = ToQString(card->Name);
  title_->setText(name_ + "  " + ToQString(card->Position) + ", " + ToQString(card->Team));
  QStringList lines = {Line("Year", card->Year),
                       Line("Height", card->Height),
                       Line("Hometown", card->HomeTown),
                       Line("High School", card->HighSchool),
                       Line("Health", card->Health),
                       Line("GPA", FormatOneDecimal(card->GPA)),
                       Line("Overall (scouted)", std::to_string(card->ScoutOverall))};
  if (!card->Status.empty()) lines << Line("Status", card->Status);
  details_->setText(lines.join("<br>"));
  std::vector<GridRow> grades;
  for (const auto& [label, grade] : card->Grades) {
    grades.push_back({GridCell::Text(label), GridCell::Text(grade)});
  }
  grades_->Model()->SetRows(std::move(grades));
  std::vector<GridRow> figures;
  figures.push_back(FigureRow("Season", card->Season.value_or(StatLine{})));
  figures.push_back(FigureRow("Career", card->Career.value_or(StatLine{})));
  figures_->Model()->SetRows(std::move(figures));
  career_->Refresh();
}

}  // namespace courtmere::app
