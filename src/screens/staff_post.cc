#include "screens/staff_post.h"

#include "screens/coaching_staff.h"
#include "store/store.h"

namespace courtmere {

namespace {

// Name and Salary, then every rating as a letter.
std::vector<PostRow> PostRows(Store& store, const std::string& sql, const std::string& team) {
  std::vector<PostRow> rows;
  for (Rows r = store.Query(sql, team); r.Next();) {
    PostRow row{r.Int(0), {r.Text(1), std::to_string(r.Int(2))}};
    for (int c = 3; c < r.ColumnCount(); ++c) row.Cells.push_back(StaffLetter(r.Int(c)));
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

std::vector<std::string> PostColumns(Post post) {
  if (post == Post::kScout) {
    return {"Name",       "Salary",   "Scoring",          "Defending",
            "Rebounding", "Handling", "Judges Potential", "Espionage"};
  }
  return {"Name", "Salary", "Ability"};
}

PostView LoadPostView(Store& store, Post post, const std::string& school) {
  PostView view;
  view.Columns = PostColumns(post);
  std::string select;
  if (post == Post::kScout) {
    view.Caption = school + " Head Scout";
    select =
        "SELECT Id, Name, Salary, Scoring, Defending, Rebounding, Handling, Potential, Espionage "
        "FROM Scout ";
  } else {
    view.Caption = school + " Head Trainer";
    select = "SELECT Id, Name, Salary, Ability FROM Trainer ";
  }
  view.Staff = PostRows(store, select + "WHERE Team = ? ORDER BY rowid", school);
  view.Candidates = PostRows(store, select + "WHERE Team = ? COLLATE NOCASE ORDER BY rowid",
                             CandidateTeam(school));
  return view;
}

}  // namespace courtmere
