#include "recruiting/scout_letters.h"

#include "people/player.h"
#include "platform/numeric.h"
#include "store/inbox.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kHeadScout = "Head Scout";

std::string FirstName(const std::string& name) {
  return name.substr(0, name.find(' '));
}

const char* WinnerText(int playWinner) {
  if (playWinner > 75) {
    return " is looking to join a team that is a contender for the national championship.";
  }
  if (playWinner > 50) {
    return " hopes to go to a school that will vie for the conference championship.";
  }
  if (playWinner > 25) return " cares more about playing time than the prestige of the school.";
  return " wants to play as soon as possible, even that means joining a losing program.";
}

const char* HomesickText(int homesick) {
  if (homesick > 50) return "wants to stay close to home.";
  if (homesick > 30) return "would like to stay in the same region as his family.";
  return "does not feel that location of the school is an issue.";
}

}  // namespace

std::string JoinNames(const std::vector<std::string>& names) {
  std::string text;
  for (size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? " and " : ", ";
    text += names[i];
  }
  return text;
}

void SendRecruitingLetter(Session& session, std::string_view sender, std::string_view subject,
                          const std::string& text) {
  AddInboxMessage(session, sender, subject, text);
  session.Db().Exec("INSERT INTO Messages (Week, Type, Message) VALUES (?, 'Recruits', ?)",
                    session.config.CurrWeek, text);
}

bool InterestedIn(const std::string& school, int prestige, const std::string& type,
                  const std::string& team1, const std::string& team2, const std::string& team3) {
  if (team1 == school || team2 == school || team3 == school) return true;
  if (type == "Exc") return prestige >= 60;
  if (type == "Good") return prestige >= 45;
  return true;
}

void ScoutRecruitReport(Session& session, int n) {
  Store& store = session.Db();
  const std::string& school = session.humanSchool;
  Rows r = store.Query(
      "SELECT PlayerID, Name, Homesick, PlayWinner FROM RecruitDecision, Player WHERE "
      "RecruitDecision.Team = ? AND NBAFlag = 0 AND PlayerID = Player.Id ORDER BY RecruitNo, "
      "RecruitDecision.Id",
      school);
  for (int i = 0; i < n; ++i) {
    if (!r.Next()) return;
  }
  const int id = r.Int(0);
  const std::string name = r.Text(1);
  const int homesick = r.Int(2);
  const int playWinner = r.Int(3);
  std::vector<std::string> others;
  for (Rows t = store.Query(
           "SELECT Team FROM RecruitDecision WHERE PlayerID = ? AND Team <> ? ORDER BY Id", id,
           school);
       t.Next();) {
    others.push_back(t.Text(0));
  }
  const std::string first = FirstName(name);
  std::string text;
  if (others.empty()) {
    text = "Our Scouts have found that there is little interest in recruit " + name +
           ". There is a good chance " + first + " will sign with us.";
  } else {
    text = "Our Scouts have found out that recruit " + name +
           " has received some interest from other schools. " + JoinNames(others) +
           (others.size() == 1 ? " has contacted him already." : " have contacted him already.") +
           "\n\nWe have also learned that " + first + WinnerText(playWinner) + " Finally, he " +
           HomesickText(homesick);
  }
  SendRecruitingLetter(session, kHeadScout, "Recruit " + name, text);
}

void RecruitInterestReport(Session& session) {
  Store& store = session.Db();
  const std::string& school = session.humanSchool;
  const int prestige =
      Int(store.ScalarDouble("SELECT Prestige FROM Team WHERE SchoolName = ?", school).value_or(0));
  std::vector<std::string> keen, cold;
  for (Rows r = store.Query(
           "SELECT Name, RecruitType, Team1, Team2, Team3, InEligible, PlayerYear FROM "
           "RecruitDecision JOIN Player ON Player.Id = PlayerID JOIN Recruit ON Recruit.Id = "
           "PlayerID WHERE RecruitDecision.Team = ? ORDER BY RecruitNo, RecruitDecision.Id",
           school);
       r.Next();) {
    if (r.Int(5) > 0 && r.Text(6) != "JCRecruit") continue;
    (InterestedIn(school, prestige, r.Text(1), r.Text(2), r.Text(3), r.Text(4)) ? keen : cold)
        .push_back(r.Text(0));
  }
  // Design decision: with nobody on the list there is nothing to write about,
  // and no empty letter is sent.
  if (keen.empty() && cold.empty()) return;
  std::string text;
  if (!keen.empty()) {
    text += JoinNames(keen) + (keen.size() == 1 ? " feels " : " feel ") + "that " + school +
            " could be a good fit.";
  }
  if (!keen.empty() && !cold.empty()) text += "\n\n";
  if (!cold.empty()) {
    text += JoinNames(cold) + (cold.size() == 1 ? " has " : " have ") +
            "little interest in attending " + school + ".";
  }
  SendRecruitingLetter(session, kHeadScout, "Recruit Interest", text);
}

void FindBackupRecruit(Session& session) {
  Store& store = session.Db();
  const std::string& school = session.humanSchool;
  for (Rows r = store.Query(
           "SELECT Recruit.Id, Name, PlayerPosition, Recruit.Region, Team1, Team2, Team3 FROM "
           "Recruit, Player WHERE Recruit.Id = Player.Id AND NBAFlag <> 1 AND InEligible = 0 AND "
           "NOT EXISTS (SELECT PlayerID FROM RecruitDecision WHERE PlayerID = Recruit.Id) "
           "ORDER BY Overall DESC, Recruit.Id");
       r.Next();) {
    if (r.Text(4) != school && r.Text(5) != school && r.Text(6) != school) continue;
    SendRecruitingLetter(
        session, kHeadScout, "Diamond in the Rough",
        "After reviewing game tapes on some potential recruits, the staff and myself feel that " +
            r.Text(1) +
            " might be a diamond in the rough. He has received little interest from other teams "
            "and might even be available as a walkon. You can find him as a " +
            PositionName(r.Int(2)) + " in the " + r.Text(3) + " Region.");
    return;
  }
  SendRecruitingLetter(
      session, kHeadScout, "Little Interest",
      "I have information from our staff that all of the recruits that are interested in "
      "attending " +
          school +
          " are being persued by atleast one school, with many having multiple schools "
          "interested in them. It looks more and more like this recruiting season is going to "
          "be a tough one.");
}

}  // namespace courtmere
