#include "store/record_books.h"

#include <string>
#include <vector>

#include "store/store.h"

namespace courtmere {

void CreateRecords(Store& store) {
  std::vector<std::string> books;
  for (Rows rows = store.Query("SELECT SchoolName FROM Team ORDER BY rowid"); rows.Next();) {
    books.push_back(rows.Text(0));
  }
  for (Rows rows = store.Query("SELECT Conference FROM League ORDER BY Id"); rows.Next();) {
    books.push_back(rows.Text(0));
  }
  books.push_back("National");

  Store::Transaction tx(store);
  store.Exec("DELETE FROM Records");
  for (const std::string& type : books) store.Append("Records", {{"Type", type}});
  tx.Commit();
}

}  // namespace courtmere
