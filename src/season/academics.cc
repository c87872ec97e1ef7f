#include "season/academics.h"

#include <algorithm>

#include "store/session.h"

namespace courtmere {

namespace {

constexpr double kFailingMark = 1.99;
constexpr int kMostSuspensions = 2;

struct Student {
  double gpa;
  int id;
  int intelligence;
};

std::vector<std::string> Schools(Store& store) {
  std::vector<std::string> schools;
  for (Rows r = store.Query("SELECT SchoolName FROM Team ORDER BY rowid"); r.Next();) {
    schools.push_back(r.Text(0));
  }
  return schools;
}

// A man's new mark, from his Intelligence: up to 60 a draw from 1.75 to
// 2.5, above it a ninth and a half of what he has beyond 40, and a draw from
// 3.2 to 4.0 for the few whose division passes 4.
double NewMark(Session& session, int intelligence) {
  const int x = intelligence - 40;
  double mark = x <= 20 ? session.rng.Rnd() * 0.75 + 1.75 : x / 9.5;
  if (mark > 4) mark = session.rng.Rnd() * 0.8 + 3.2;
  return mark;
}

void GradeTeam(Session& session, const std::string& school) {
  Store& store = session.Db();
  std::vector<Student> students;
  int hurt = 0;
  for (Rows r = store.Query(
           "SELECT GPA, Id, Intelligence, Health FROM Player WHERE Team = ? ORDER BY rowid",
           school);
       r.Next();) {
    students.push_back({r.Double(0), r.Int(1), r.Int(2)});
    if (r.Text(3) != "Good") ++hurt;
  }
  int suspensions = hurt >= 2 ? 1 : 0;
  for (const Student& s : students) {
    double mark = NewMark(session, s.intelligence);
    int suspended = 0;
    if (mark < kFailingMark && s.gpa < kFailingMark) {
      if (suspensions < kMostSuspensions) {
        suspended = 1;
        ++suspensions;
        if (school != session.humanSchool) {
          store.Exec("UPDATE Team SET PG1 = 0 WHERE SchoolName = ?", school);
        }
      } else {
        mark = session.rng.Rnd() * 0.1 + 2.0;
      }
    }
    store.Exec("UPDATE Player SET GPA = ?, Suspended = ? WHERE Id = ?", mark, suspended, s.id);
  }
}

std::vector<std::string> SuspendedNames(Session& session) {
  std::vector<std::string> names;
  for (Rows r = session.Db().Query(
           "SELECT Name FROM Player WHERE Team = ? AND Suspended = 1 ORDER BY rowid",
           session.humanSchool);
       r.Next();) {
    names.push_back(r.Text(0));
  }
  return names;
}

// The names of `a` that are not in `b`, under a heading, one to a line.
std::string NamesNotIn(const std::vector<std::string>& a, const std::vector<std::string>& b,
                       const std::string& heading) {
  std::string text;
  for (const std::string& name : a) {
    if (std::find(b.begin(), b.end(), name) == b.end()) text += "\n" + name;
  }
  return text.empty() ? text : "\n\n" + heading + text;
}

}  // namespace

void UpdateGrades(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  store.Exec("UPDATE Player SET Suspended = 0 WHERE Suspended = 1");
  for (const std::string& school : Schools(store)) GradeTeam(session, school);
  tx.Commit();
}

void AcademicCheck(Session& session) {
  session.ui.ShowProgress("Checking Academic eligibility");
  const std::vector<std::string> before = SuspendedNames(session);
  UpdateGrades(session);
  const std::vector<std::string> after = SuspendedNames(session);
  const std::string& team = session.humanSchool;
  const std::string text =
      "We have released a list of players suspended in the conference for the next four weeks. "
      "Click News and then Player Suspensions from the main menu to get the full list." +
      NamesNotIn(before, after, "The following " + team + " players are now eligible to return:") +
      NamesNotIn(after, before, "The following " + team + " players are now suspended:");
  AddInboxMessage(session, "Compliance Dir", "Academic Update", text);
}

std::vector<SuspendedPlayer> ShowSuspensions(Session& session, const std::string& conference) {
  std::vector<SuspendedPlayer> list;
  for (Rows r = session.Db().Query(
           "SELECT Player.Id, Name, Team, GPA, PlayerYear FROM Player, Team WHERE Suspended = 1 "
           "AND Team.SchoolName = Player.Team AND Conference = ? ORDER BY Team",
           conference);
       r.Next();) {
    SuspendedPlayer p{r.Int(0), r.Text(1), r.Text(2), r.Double(3), r.Text(4), ""};
    p.Line = p.Name + " is suspended for four weeks because of academics.";
    list.push_back(std::move(p));
  }
  return list;
}

}  // namespace courtmere
