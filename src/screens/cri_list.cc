#include "screens/cri_list.h"

#include <fmt/format.h>

#include "screens/school_record.h"
#include "store/store.h"

namespace courtmere {

CriList ShowCRI(Store& store, const std::string& userSchool) {
  CriList list;
  for (Rows r = store.Query(
           "SELECT CRIRank, SchoolName, CRIValue, WinPer, SchedStrength, SchedRank FROM CRIRank "
           "ORDER BY CRIRank ASC");
       r.Next();) {
    const std::string school = r.Text(1);
    list.Rows.push_back({r.Int(0), school, SchoolRecord(store, school), r.Double(2), r.Double(3),
                         r.Double(4), r.Int(5), school == userSchool});
  }
  return list;
}

std::string FormatIndex(double value) {
  return fmt::format("{:.3f}", value);
}

}  // namespace courtmere
