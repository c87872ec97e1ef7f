#include "app/sub_patterns_screen.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "store/session.h"

namespace courtmere::app {

QTableWidget* MakeSubPatternTable(QWidget* parent) {
  QStringList headings;
  for (const char* column : kSubPatternColumns) headings << column;
  auto* table = new QTableWidget(0, static_cast<int>(headings.size()), parent);
  table->setObjectName("MSFlexSub");
  table->setHorizontalHeaderLabels(headings);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->verticalHeader()->hide();
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  return table;
}

void ShowSubPatternRows(QTableWidget* table, const std::vector<SubPatternRow>& rows,
                        const std::function<void(int row, const std::string& pattern)>& changed) {
  table->setRowCount(static_cast<int>(rows.size()));
  for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
    const int columns = static_cast<int>(rows[r].cells.size());
    for (int c = 0; c < columns; ++c) {
      table->setItem(r, c, new QTableWidgetItem(ToQString(rows[r].cells[c])));
    }
    auto* box = new QComboBox(table);
    box->setObjectName("cmbSub");
    for (const char* choice : kSubPatternChoices) box->addItem(choice);
    box->setCurrentText(ToQString(rows[r].pattern));
    QObject::connect(box, &QComboBox::currentTextChanged, table,
                     [changed, r](const QString& text) { changed(r, ToStdString(text)); });
    table->setCellWidget(r, columns, box);
  }
}

SubPatternsScreen::SubPatternsScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent), table_(MakeSubPatternTable(this)) {
  setObjectName("frmSub");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(AddButton("cmdSubmit", "Submit", [this] { Submit(); }));
  buttons->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(table_, 1);
  layout->addLayout(buttons);
  resize(720, 480);
  Refresh();
}

void SubPatternsScreen::Refresh() {
  rows_ = SubPatternRows(session_, session_.humanSchool);
  ShowSubPatternRows(table_, rows_,
                     [this](int row, const std::string& pattern) { rows_[row].pattern = pattern; });
}

void SubPatternsScreen::Submit() {
  if (SubmitSubPatterns(session_, rows_)) host_.StoreChanged();
}

}  // namespace courtmere::app
