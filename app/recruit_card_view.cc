#include "app/recruit_card_view.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QTextEdit>
#include <QVBoxLayout>

#include "app/screen.h"
#include "screens/display_format.h"
#include "screens/recruit_card.h"

namespace courtmere::app {

RecruitCardView::RecruitCardView(QWidget* parent)
    : QWidget(parent),
      name_(new QLabel(this)),
      facts_(new QLabel(this)),
      grades_(new QLabel(this)),
      figures_(new QLabel(this)),
      schools_(new QListWidget(this)),
      report_(new QTextEdit(this)) {
  setObjectName("recruitCard");
  name_->setObjectName("lblRecruitName");
  name_->setStyleSheet("font-size: 13pt; font-weight: bold;");
  grades_->setTextFormat(Qt::RichText);
  schools_->setObjectName("lstSchools");
  schools_->setMaximumHeight(64);
  report_->setObjectName("txtReport");
  report_->setReadOnly(true);
  report_->setMinimumHeight(90);
  figures_->setWordWrap(true);
  // The card scrolls when the window is short, rather than crowd its lines.
  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->addWidget(name_);
  layout->addWidget(facts_);
  layout->addWidget(grades_);
  layout->addWidget(figures_);
  layout->addWidget(new QLabel("Schools he likes:", content));
  layout->addWidget(schools_);
  layout->addWidget(report_, 1);
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(content);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(scroll);
  setFixedWidth(330);
}

QString RecruitCardView::NameText() const {
  return name_->text();
}

void RecruitCardView::ShowRecruit(Session& session, int playerId) {
  const std::optional<RecruitCard> card = LoadRecruitCard(session, playerId);
  playerId_ = card ? playerId : 0;
  schools_->clear();
  if (!card) {
    for (QLabel* label : {name_, facts_, grades_, figures_}) label->clear();
    report_->clear();
    return;
  }
  const RecruitCard& c = *card;
  name_->setText(ToQString(c.Name));
  QString facts = QString("%1  %2\nHome Town: %3\n%4 %5")
                      .arg(ToQString(c.Position), ToQString(c.Height), ToQString(c.HomeTown),
                           ToQString(c.SchoolLabel), ToQString(c.School));
  if (!c.PosRank.empty()) facts += "\n" + ToQString(c.PosRank) + " " + ToQString(c.Position);
  if (!c.Top50Rank.empty()) facts += "\n" + ToQString(c.Top50Rank);
  facts_->setText(facts);
  // Two grades a line: the card stays short.
  QString grades = "<table cellspacing='2'>";
  for (size_t i = 0; i < c.Grades.size(); ++i) {
    if (i % 2 == 0) grades += "<tr>";
    grades += QString("<td>%1</td><td><b>%2</b>&nbsp;&nbsp;</td>")
                  .arg(ToQString(c.Grades[i].first).toHtmlEscaped(), ToQString(c.Grades[i].second));
    if (i % 2 == 1) grades += "</tr>";
  }
  grades_->setText(grades + "</table>");
  figures_->setText(
      QString("Homesick: %1   Play Winner: %2\nPPG %3  APG %4  RPG %5\nTOs %6  SPG %7  GPA %8")
          .arg(c.Homesick)
          .arg(c.PlayWinner)
          .arg(ToQString(FormatOneDecimal(c.PPG)), ToQString(FormatOneDecimal(c.APG)),
               ToQString(FormatOneDecimal(c.RPG)), ToQString(FormatOneDecimal(c.TOs)),
               ToQString(FormatOneDecimal(c.SPG)))
          .arg(c.GPA, 0, 'f', 2));
  for (const std::string& school : c.Schools) schools_->addItem(ToQString(school));
  report_->setPlainText(ToQString(c.ScoutingReport));
}

}  // namespace courtmere::app
