#include "league/record_books.h"

#include "store/store.h"

namespace courtmere {

void CreateRecords(Store& store) {
  Store::Transaction tx(store);
  store.Exec("DELETE FROM Records");
  store.Exec("INSERT INTO Records (Type) SELECT SchoolName FROM Team ORDER BY rowid");
  store.Exec("INSERT INTO Records (Type) SELECT Conference FROM League ORDER BY Id");
  store.Exec("INSERT INTO Records (Type) VALUES (?)", "National");
  tx.Commit();
}

}  // namespace courtmere
