#include "people/recruit_report.h"

#include "platform/numeric.h"
#include "platform/rng.h"

namespace courtmere {

namespace {

enum class Topic { kHandling, kPassing, kThrees, kDefence, kScoring, kRebounding, kInside, kPost };

// The topic of report n for a player of this position with k = Id mod 4;
// columns run k = 1, 2, 3, 0, so that his three reports never repeat one.
Topic TopicFor(int position, int n, int k) {
  using T = Topic;
  static constexpr Topic kTable[5][3][4] = {
      {{T::kHandling, T::kThrees, T::kDefence, T::kPassing},
       {T::kThrees, T::kHandling, T::kPassing, T::kDefence},
       {T::kDefence, T::kPassing, T::kThrees, T::kHandling}},
      {{T::kHandling, T::kThrees, T::kDefence, T::kScoring},
       {T::kThrees, T::kHandling, T::kScoring, T::kDefence},
       {T::kDefence, T::kScoring, T::kThrees, T::kHandling}},
      {{T::kRebounding, T::kThrees, T::kDefence, T::kScoring},
       {T::kThrees, T::kRebounding, T::kScoring, T::kDefence},
       {T::kDefence, T::kScoring, T::kThrees, T::kRebounding}},
      {{T::kRebounding, T::kInside, T::kPost, T::kScoring},
       {T::kInside, T::kRebounding, T::kScoring, T::kPost},
       {T::kPost, T::kScoring, T::kInside, T::kRebounding}},
      {{T::kRebounding, T::kInside, T::kPassing, T::kPost},
       {T::kInside, T::kRebounding, T::kPost, T::kPassing},
       {T::kPost, T::kPassing, T::kInside, T::kRebounding}},
  };
  const int row = n == 1 ? 0 : n == 2 ? 1 : 2;
  const int column = k == 0 ? 3 : k - 1;
  return kTable[position - 1][row][column];
}

struct TopicFacts {
  double value;
  const std::string* grade;
};

TopicFacts FactsOf(Topic topic, const Player& p) {
  switch (topic) {
    case Topic::kHandling:
      return {static_cast<double>(p.Handling), &p.HandlingGrade};
    case Topic::kPassing:
      return {static_cast<double>(p.Passing), &p.PassingGrade};
    case Topic::kThrees:
      return {static_cast<double>(p.ThreePoint), &p.OutsideShootGrade};
    case Topic::kDefence:
      return {static_cast<double>(p.PerrDefense), &p.PerrDefenseGrade};
    case Topic::kScoring:
      return {static_cast<double>(p.Jumpshot), &p.ShootingGrade};
    case Topic::kRebounding:
      return {(p.OffReb + p.DefReb) / 2.0, &p.ReboundGrade};
    case Topic::kInside:
      return {static_cast<double>(p.InScoring), &p.ScoreGrade};
    case Topic::kPost:
      return {static_cast<double>(p.PostDefense), &p.PostDefenseGrade};
  }
  return {0, &p.PotentialGrade};
}

// The value a grade stands for. A player not yet graded is judged against
// the mark of "F".
int GradeMark(const std::string& grade) {
  if (grade == "A") return 80;
  if (grade == "B") return 68;
  if (grade == "C") return 56;
  if (grade == "D") return 45;
  return 30;
}

std::string LowSentence(Topic topic, int position, const std::string& f) {
  const bool center = position == kC;
  switch (topic) {
    case Topic::kHandling:
      return " It looks like we may have overrated " + f + "'s ability as a ball handler.";
    case Topic::kPassing:
      if (center) {
        return "After speaking to other personnel people about " + f +
               ", we may have overestimated his ability as a passer.";
      }
      return " After speaking to other personnel people, we may have overestimated " + f +
             "'s ability as a passer.";
    case Topic::kThrees:
      return " " + f + " has been disappointing from behind the arc thus far.";
    case Topic::kDefence:
      return " " + f +
             " has had a tough time defensively and doesn't look as good we pegged him to be.";
    case Topic::kScoring:
      return " " + f + " looks like he may have digressed offensively since we last saw him.";
    case Topic::kRebounding:
      if (center)
        return "It looks like we may have overvalued " + f + "'s ability to rebound the ball.";
      return " It looks like we have overvalued " + f + "'s ability to rebound the ball.";
    case Topic::kInside:
      if (center) return "National reports have downgraded " + f + "'s ability to score inside.";
      return " National reports have downgraded " + f + "'s ability to score inside.";
    case Topic::kPost:
      return " " + f + " hasn't developed into the post defender we thought he would.";
  }
  return "";
}

std::string HighSentence(Topic topic, int position, const std::string& f) {
  switch (topic) {
    case Topic::kHandling:
      return " National reports rate " + f + " as a better ball handler than our scouts do.";
    case Topic::kPassing:
      if (position == kC) {
        return " " + f + " has a reputation of being a better passer than our rating suggests.";
      }
      return " " + f + " has a reputation of being a better passer than we expected.";
    case Topic::kThrees:
      return " " + f + " has been hitting threes at a better clip than we expected.";
    case Topic::kDefence:
      return " " + f +
             " has already shut down a few good players and may be a better defender than "
             "expected.";
    case Topic::kScoring:
      return " There is a consenus nationally that " + f +
             " is a more dangerous scorer than we expected.";
    case Topic::kRebounding:
      return " " + f + " has hit the boards better than we thought and has a great work ethic.";
    case Topic::kInside:
      return " " + f +
             " has shown some good moves around the basket and may be a better post scorer than "
             "we thought.";
    case Topic::kPost:
      return " " + f +
             " is beginning to develop a reputation as a more intimidating defender than we "
             "expected.";
  }
  return "";
}

// A statistic estimated around a base: the coin picks the kinder or the
// harsher draw; a small result is replaced, a larger one scaled.
struct LineRule {
  double small;  // at or below this the result is replaced
  double scale;  // else the result is divided by this
};

double Finish(Rng& rng, double result, LineRule rule, double smallSpan, double smallBase) {
  if (result <= rule.small) return rng.Rnd() * smallSpan + smallBase;
  return result / rule.scale;
}

int Coin(Rng& rng) {
  return Int(rng.Rnd() * 100 + 1);
}

}  // namespace

std::string RecruitReport(Rng& rng, const Player& p, int n) {
  if (p.PlayerPosition < kPG || p.PlayerPosition > kC) return "";
  const std::string first = p.Name.substr(0, p.Name.find(' '));
  const Topic topic = TopicFor(p.PlayerPosition, n, p.Id % 4);
  const TopicFacts facts = FactsOf(topic, p);
  const int coin = Coin(rng);
  const int step = Int(rng.Rnd() * 10 + 5);
  const double seen = CInt(coin > 50 ? facts.value + step : facts.value - step);
  if (seen < GradeMark(*facts.grade)) return LowSentence(topic, p.PlayerPosition, first);
  return HighSentence(topic, p.PlayerPosition, first);
}

void RecruitStats(Rng& rng, const Player& p, Recruit& r) {
  double points;
  if (p.PlayerPosition <= kSG) {
    points = (p.ThreePoint + p.Jumpshot) / 2.0;
  } else if (p.PlayerPosition == kSF) {
    points = (0.5 * p.ThreePoint + p.Jumpshot + 0.5 * p.InScoring) / 2;
  } else {
    points = (0.5 * p.Jumpshot + p.InScoring) / 1.5;
  }
  double v = Coin(rng) > 50 ? points + Int(rng.Rnd() * 10 + 5) - 50 : points - 50;
  r.PPG = Finish(rng, v, {10, 1}, 7, 5);

  const double assists = (p.Passing + p.Handling) / 2.0;
  v = Coin(rng) > 50 ? assists + Int(rng.Rnd() * 10 + 5) - 50 : assists - 50;
  r.APG = Finish(rng, v, {5, p.PlayerPosition == kPG ? 2.5 : 4.5}, 4, 1);

  const double rebounds = (p.DefRebounding + p.OffRebounding) / 5.0;
  v = Coin(rng) > 50 ? rebounds + Int(rng.Rnd() * 5 + 5) - 50
                     : rebounds - Int(rng.Rnd() * 5 + 5) - 50;
  r.RPG = Finish(rng, v, {5, 2.1}, 2, 1);

  const double t = (p.Passing + p.Handling + p.OffAware) / 3.0;
  v = Coin(rng) > 50 ? 100 - t + Int(rng.Rnd() * 5 + 1) : 100 - t - Int(rng.Rnd() * 5 + 5);
  r.TOs = v / 11;

  v = Coin(rng) > 50 ? p.Steal + Int(rng.Rnd() * 10 + 5) - 50
                     : p.Steal - Int(rng.Rnd() * 10 + 1) - 50;
  r.SPG = Finish(rng, v, {5, 10.5}, 1.5, 0);

  const int i = p.Intelligence - 30;
  double gpa = i <= 20 ? rng.Rnd() + 1.5 : i / 9.5;
  if (gpa > 4) gpa = rng.Rnd() * 0.8 + 3.2;
  r.GPA = gpa;
}

}  // namespace courtmere
