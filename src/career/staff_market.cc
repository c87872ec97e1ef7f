#include "career/staff_market.h"

#include <fmt/format.h>

#include "league/head_coach.h"
#include "store/session.h"

namespace courtmere {

namespace {

// The texts of each post, in the order a screen meets them.
struct PostTexts {
  const char* title;  // "coach", "Scout", "Trainer" in the questions
  const char* noCandidates;
  const char* postFilled;
  const char* leavingEmpty;
};

const PostTexts& TextsOf(Post post) {
  static const PostTexts coach = {
      "coach", "You have no coaches interested in your team to replace this coach.",
      "You already have three coaches. You need to fire one before hiring another.",
      "You can't leave until you have three assistant coaches."};
  static const PostTexts scout = {
      "Scout", "You have no Scouts interested in your team to replace this Scout.",
      "You already have a head Scout. You need to fire him before hiring another.",
      "You can't leave until you select a head scout."};
  static const PostTexts trainer = {
      "Trainer", "You have no Trainers interested in your team to replace your current one.",
      "You already have a head Trainer. You need to fire him before hiring another.",
      "You can't leave until you hire a trainer."};
  if (post == Post::kCoach) return coach;
  return post == Post::kScout ? scout : trainer;
}

constexpr const char* kRolesUnset =
    "Please change your coaching Roles so that you have one assistant in charge of offense and one "
    "in charge of defense.";

int Count(Store& store, Post post, const std::string& sql, const std::string& team) {
  return static_cast<int>(
      store.ScalarInt(fmt::format(fmt::runtime(sql), PostTable(post)), team).value_or(0));
}

std::string NameOf(Store& store, Post post, int id) {
  return store.ScalarText(fmt::format("SELECT Name FROM {} WHERE Id = ?", PostTable(post)), id)
      .value_or("");
}

}  // namespace

const char* PostTable(Post post) {
  if (post == Post::kCoach) return "Coach";
  return post == Post::kScout ? "Scout" : "Trainer";
}

int PostPlaces(Post post) {
  return post == Post::kCoach ? 3 : 1;
}

std::string CandidateTeam(const std::string& school) {
  return "Looking At " + school;
}

bool OnStaff(Store& store, Post post, int id, const std::string& school) {
  return store
             .ScalarInt(
                 fmt::format("SELECT count(*) FROM {} WHERE Id = ? AND Team = ?", PostTable(post)),
                 id, school)
             .value_or(0) > 0;
}

bool IsCandidate(Store& store, Post post, int id, const std::string& school) {
  return store
             .ScalarInt(
                 fmt::format("SELECT count(*) FROM {} WHERE Id = ? AND Team = ? COLLATE NOCASE",
                             PostTable(post)),
                 id, CandidateTeam(school))
             .value_or(0) > 0;
}

bool FireStaff(Session& session, Post post, int id) {
  Store& store = session.Db();
  const std::string school = HumanSchool(store);
  if (!OnStaff(store, post, id, school)) return false;
  const PostTexts& texts = TextsOf(post);
  if (!session.ui.Ask(
          fmt::format("Do you wish to fire {} {}?", texts.title, NameOf(store, post, id)))) {
    return false;
  }
  if (Count(store, post, "SELECT count(*) FROM {} WHERE Team = ? COLLATE NOCASE",
            CandidateTeam(school)) == 0) {
    session.ui.Message(texts.noCandidates);
    return false;
  }
  Store::Transaction tx(store);
  if (post == Post::kCoach) {
    store.Exec(
        "UPDATE Coach SET Team = 'Looking At FA', OffPoints = 0, DefPoints = 0, RecPoints = 0 "
        "WHERE Id = ?",
        id);
  } else {
    store.Exec(fmt::format("UPDATE {} SET Team = 'Looking At FA' WHERE Id = ?", PostTable(post)),
               id);
  }
  tx.Commit();
  return true;
}

bool HireStaff(Session& session, Post post, int id) {
  Store& store = session.Db();
  const std::string school = HumanSchool(store);
  if (!IsCandidate(store, post, id, school)) return false;
  const PostTexts& texts = TextsOf(post);
  if (!session.ui.Ask(
          fmt::format("Do you wish to hire {} {}?", texts.title, NameOf(store, post, id)))) {
    return false;
  }
  if (Count(store, post, "SELECT count(*) FROM {} WHERE Team = ?", school) >= PostPlaces(post)) {
    session.ui.Message(texts.postFilled);
    return false;
  }
  Store::Transaction tx(store);
  if (post == Post::kCoach) {
    store.Exec(
        "UPDATE Coach SET Team = ?, OffPoints = 0, DefPoints = 0, RecPoints = 2 WHERE Id = ?",
        school, id);
  } else {
    store.Exec(fmt::format("UPDATE {} SET Team = ? WHERE Id = ?", PostTable(post)), school, id);
  }
  tx.Commit();
  return true;
}

std::optional<std::string> StaffIncomplete(Store& store, Post post, const std::string& school) {
  if (Count(store, post, "SELECT count(*) FROM {} WHERE Team = ?", school) < PostPlaces(post)) {
    return std::string(TextsOf(post).leavingEmpty);
  }
  if (post != Post::kCoach) return std::nullopt;
  Rows r = store.Query(
      "SELECT total(OffPoints), total(DefPoints), total(RecPoints) FROM Coach WHERE Team = ?",
      school);
  r.Next();
  if (r.Int(0) != 1 || r.Int(1) != 1 || r.Int(2) != 4) return std::string(kRolesUnset);
  return std::nullopt;
}

std::optional<std::string> HiringClosed(const Session& session) {
  if (session.config.Stage == kStagePostTraining) return std::nullopt;
  return fmt::format(
      "Staff can only be hired or fired in the stage Post Training; the dynasty stands in {}.",
      session.config.Stage);
}

}  // namespace courtmere
