#include "app/records_screen.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/record_list.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QStringList Headings() {
  QStringList headings;
  for (const char* c : kRecordColumns) headings << c;
  return headings;
}

}  // namespace

RecordsScreen::RecordsScreen(Session& session, ScreenHost& host, Books books, QWidget* parent)
    : Screen(session, host, parent),
      books_(books),
      type_(new QComboBox(this)),
      list_(new QComboBox(this)),
      grid_(new GridView(new GridModel(Headings(), this), false, this)) {
  setObjectName("frmRecords");
  type_->setObjectName("cmbType");
  list_->setObjectName("cmbList");
  grid_->setObjectName("grdRecords");
  type_->addItems({"Season", "Career"});
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setStretchLastSection(true);
  auto* choices = new QHBoxLayout;
  choices->addWidget(new QLabel("Records:", this));
  choices->addWidget(type_);
  choices->addWidget(list_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choices);
  layout->addWidget(grid_, 1);
  connect(type_, &QComboBox::currentIndexChanged, this, [this] { ShowBook(); });
  connect(list_, &QComboBox::currentIndexChanged, this, [this] { ShowBook(); });
  resize(760, 560);
  Refresh();
}

QString RecordsScreen::Caption() const {
  switch (books_) {
    case Books::kConference:
      return "Conference Records";
    case Books::kTeam:
      return "Team Records";
    default:
      return "National Records";
  }
}

QString RecordsScreen::Key() const {
  return QString("Records:%1").arg(static_cast<int>(books_));
}

// The books of the chosen kind, the user's own first chosen.
void RecordsScreen::Refresh() {
  const QString chosen = list_->currentText();
  QSignalBlocker block(list_);
  list_->clear();
  Store& store = session_.Db();
  if (books_ == Books::kNational) {
    list_->addItem("National");
  } else {
    const std::vector<std::string> names =
        books_ == Books::kTeam ? RecordBookSchools(store) : RecordBookConferences(store);
    for (const std::string& name : names) list_->addItem(ToQString(name));
    const std::string own =
        books_ == Books::kTeam ? session_.humanSchool : session_.humanConference;
    list_->setCurrentText(chosen.isEmpty() ? ToQString(own) : chosen);
  }
  ShowBook();
}

void RecordsScreen::ShowBook() {
  const bool career = type_->currentText() == "Career";
  std::vector<GridRow> rows;
  for (const RecordRow& r : RecordList(session_.Db(), ToStdString(list_->currentText()), career)) {
    rows.push_back({GridCell::Text(r.record), GridCell::Text(r.value), GridCell::Text(r.player),
                    GridCell::Text(r.year), GridCell::Text(r.team)});
    rows.back()[1].number = true;
  }
  grid_->Model()->SetRows(std::move(rows));
}

}  // namespace courtmere::app
