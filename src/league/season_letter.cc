#include "league/season_letter.h"

#include <fmt/format.h>

#include <array>

#include "league/head_coach.h"
#include "league/league_constants.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kBreak = "\n\n";

constexpr std::array<const char*, 5> kWelcome = {
    "Welcome to Courtmere! I am your assistant coach.",
    "I will correlate all the information gained from your coaches, scouts and trainers. I then "
    "will provide information on your opponents, insight on the draft pool, clue you in on any "
    "rumors and provide other pieces of information.",
    "For all messages, I will send an email to your inbox located in the lower lefthand corner. "
    "Your inbox will always stay open. You can also see all the archived messages by using News "
    "menu option.",
    "Also, make sure you save games before quitting. When you wish to resume the game later, "
    "simply select Load from the File menu. You can also choose to autosave at the end of every "
    "season. This choice can be made in the Dynasty Options selection found in File menu. If you "
    "want to start a new game, select New from the File menu.",
    "The first piece of information I have for you is to inform you of the number of "
    "scholarships you have.",
};

// The advice; {0} is the user's school.
constexpr std::array<const char*, 9> kAdvice = {
    "Now, on to business. First, go and pick out your five recruits from the regional lists. Try "
    "to go after recruits that have {0} as a top 1,2 or 3 team as well as guys that have skills "
    "you feel will compliment our squad. If there are no suitable recruits that list you as a top "
    "1,2 or 3 school, look at recruits in your recruiting area as you will have a better chance "
    "at landing them.",
    "Once you have selected your five recruits, go into the View Team Recruits option from the "
    "Recruit menu. Here, you can rank your recruits in the order you prefer them and assign "
    "recruiting actions during each week. Weeks are broken up into different periods with the "
    "type of period affecting what type of recruiting action you can take. There are four "
    "different actions that you can take on a recruit. They are setting up a campus visit, "
    "visiting the recruit yourself, sending an assistant to visit, and calling the player. Each "
    "action will have a corresponding bid value associated with it. You choose the value, but "
    "remember that each bid gets subtracted from your weekly number of points. There are also "
    "weekly and team maximums for certain actions. You can have no more than one campus visit, "
    "one head coach visit and two assistant visits in a given week. Finally, you only get one "
    "campus visit and two head coach visits per scholarship, so use them wisely!",
    "When recruiting, keep a few things in mind. First, very good recruits may choose to go pro "
    "instead of attending college. Also, recruits with poor grades may not be eligible to enroll. "
    "If a recruits GPA is under 2.0, he needs to pass an admittance exam given in week 10. If he "
    "fails, the recruit will be ineligible to enroll in classes come the fall.",
    "The total number of recruiting points are also variable from week to week. You will receive "
    "more base points during the contact period than you will in an evaluation or quiet period. "
    "Additionally, you will get bonus points for winning games and awards, as well as having "
    "players leave early for the NBA draft. You will lose points for such actions as losing and "
    "having a player suspended.",
    "Finally, bear in mind that all scholarships must be assigned by the end of week 15.",
    "The next task is to setup your lineup via the Team Roster screen option in the Management "
    "menu. Remember, one player can be in no more than two positions on the depth chart. Also, do "
    "not forget to choose an inactive player. It is usually best to choose a young guy with poor "
    "skills for this spot.",
    "When simming games, you can choose to coach your games by selected a check box next to the "
    "game. This will allow you to make second half adjustments in both lineups and tactics.",
    "Finally, you can check out your coaching staff by using the staff menu option. Consult the "
    "help file for more info on how the staff influence the game. In a nutshell, coaches help you "
    "win games and develop players, scouts give personnel information on recruits and your "
    "current players, while trainers impact how often your players get hurt. One thing to "
    "remember is that salary points for staff come out of your recruiting budget, so spend "
    "wisely!",
    "I will check back with you in a few weeks. Good Luck!",
};

int Count(Store& store, const char* sql, const std::string& school) {
  return static_cast<int>(store.ScalarInt(sql, school).value_or(0));
}

std::string LeaversParagraph(Store& store, const std::string& school) {
  std::string text;
  for (Rows rows = store.Query(
           "SELECT Name FROM Player WHERE Team = ? AND PlayerYear <> 'Senior' AND Overall > 72 "
           "ORDER BY Overall",
           school);
       rows.Next();) {
    if (text.empty()) {
      text =
          "I have also heard whisperings that some of the following players may leave early "
          "for the NBA:";
    }
    text += "\n" + rows.Text(0);
  }
  return text;
}

}  // namespace

std::string ScholarshipSentence(int m, int k) {
  int n = m + k;
  if (n > kMostScholarships) {
    n = kMostScholarships;
    k = kMostScholarships - m;
  }
  if (n <= 0) return "";
  std::string text = fmt::format(
      " As of right now, you have {} scholarships to use for your recruits because of {} "
      "graduating seniors",
      n, n - k);
  if (k < 1) return text + ".";
  return text + fmt::format(" and {} open roster spot{}", k, k == 1 ? "." : "s.");
}

std::string SeasonLetterText(Store& store, const std::string& school) {
  const int seniors = Count(
      store,
      "SELECT count(*) FROM Player WHERE PlayerYear = 'Senior' AND Redshirt <> 1 AND Team = ?",
      school);
  const int open = kRosterSize - Count(store, "SELECT count(*) FROM Player WHERE Team = ?", school);
  std::string text;
  for (const char* paragraph : kWelcome) {
    if (!text.empty()) text += kBreak;
    text += paragraph;
  }
  text += ScholarshipSentence(seniors, open);
  if (std::string leavers = LeaversParagraph(store, school); !leavers.empty()) {
    text += kBreak + leavers;
  }
  for (const char* paragraph : kAdvice) {
    text += kBreak;
    text += fmt::format(fmt::runtime(paragraph), school);
  }
  return text;
}

void SeasonLetter(Session& session) {
  Store& store = session.Db();
  const std::string text = SeasonLetterText(store, HumanSchool(store));
  const int week = LoadConfig(store).CurrWeek;
  store.Exec("INSERT INTO Messages (Type, Week, Message) VALUES (?, ?, ?)", "Team", week, text);
  AddInboxMessage(session, "Assistant Coach", "Season Instructions", text);
}

}  // namespace courtmere
