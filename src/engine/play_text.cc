#include "engine/play_text.h"

#include "platform/numeric.h"

namespace courtmere {

namespace {

// The four columns A, B, C, D, taken for v of 10-12, 7-9, 4-6 and 1-3.
using Row = const char* const[4];

const char* ByColumn(const Row& row, int v) {
  if (v >= 10) return row[0];
  if (v >= 7) return row[1];
  if (v >= 4) return row[2];
  return row[3];
}

constexpr Row kHitsLong = {"cashes in from downtown (", "rattles home the three (",
                           "hits nothing but net from NBA range (", "nails the three-pointer ("};
constexpr Row kHitsMid = {"hits a tough fade away (", "spots up and hits from about 15 (",
                          "cans the midrange jumper (", "goes over the defender for a quick 2 ("};
constexpr Row kHitsClose = {"muscles it in for 2 (", "rises up for the dunk! (",
                            "shows some flair with a two-handed jam! (",
                            "gets behind the D for a one-handed dunk! ("};
constexpr Row kHitsShort = {"banks home the inside shot (", "floats in a soft jumper (",
                            "connects from baseline for 2 (", "hits a one-hander from the post ("};

constexpr Row kHitsFoulLong = {"still hits the three! (", "still nails it from downtown! (",
                               "cans the three despite the contact! (",
                               "hits the three while falling down! ("};
constexpr Row kHitsFoulClose = {"double pumps and banks it in from the block! (",
                                "fights through the contact and two-hand slams it down! (",
                                "still muscles it in from down low! (",
                                "does the one-handed jam over the defender ("};
constexpr Row kHitsFoulMid = {
    "shakes off the contact and rattles it home! (", "hits the fade away despite the shove! (",
    "still hits the mid-range jumper! (", "still hits the 12-footer while falling down! ("};

constexpr Row kMissLong = {"clanks the three off the rim", "misses the three badly",
                           "doesn't get the roll from downtown", "can't connect on the long three"};
constexpr Row kMissMid = {"rattles it in and out from about 15 feet",
                          "is a little short on the fade away", "shoots but hits only iron",
                          "pump fakes but misses the open jumper"};

constexpr Row kShootFoul = {"is hammered on the shot By ", "is pushed while shooting By ",
                            "goes up for the shot and was Fouled By ", "takes a hard Foul from "};
constexpr Row kBlock = {"shoots and gets swatted by ", "throws up a prayer that gets blocked by ",
                        "goes in for the easy two. No, he's blocked by ",
                        "has his shot blocked from across the court by "};
constexpr Row kNonShootFoul = {
    "is grabbed and Fouled By ", "needs his wallet back as he was Mugged By ",
    "gets shoved to the ground and Fouled By ", "beats his man but gets Fouled By "};
constexpr Row kPass = {"gets the pass from ", "receives the no look pass from ",
                       "shakes his defender and gets the pass from ", "gets the bounce pass from "};
constexpr Row kTravel = {
    "traveled with the ball", "tries to hit a cutter but loses it out of bounds",
    "loses control and has it knocked off him out of bounds", "knocks over the defender. "};

const char* MissClose(int v) {
  if (v >= 10) return "makes a great move but misses the shot";
  if (v >= 6) return "misses the five-footer";
  if (v == 5) return "misses the dunk! Oh, my!";
  if (v == 4) return "blows the layup! What a costly miss!";
  return "shoots it too hard off the backboard";
}

const char* Pass2Phrase(int v) {
  switch (v) {
    case 12:
      return " makes a nice crosscourt pass to";
    case 11:
      return " dishes a no look pass to";
    case 10:
      return " draws the defense and tosses it to";
    case 9:
      return " throws a skip pass over to";
    case 8:
      return " passes it over the defense to";
    case 7:
      return " throws it to a well-guarded";
    case 6:
      return " tosses it to a wide open";
    case 5:
      return " fires a hard pass to";
    case 4:
      return " forces the ball to";
    default:
      return " draws the defense and tosses it to";
  }
}

}  // namespace

const char* PlayTableText(PlayVariant variant, int d, int v) {
  switch (variant) {
    case PlayVariant::Hits:
      if (d > 19) return ByColumn(kHitsLong, v);
      if (d >= 11) return ByColumn(kHitsMid, v);
      if (d < 6) return ByColumn(kHitsClose, v);
      return ByColumn(kHitsShort, v);
    case PlayVariant::HitsFoul:
      if (d > 19) return ByColumn(kHitsFoulLong, v);
      if (d <= 9) return ByColumn(kHitsFoulClose, v);
      return ByColumn(kHitsFoulMid, v);
    case PlayVariant::Miss:
      if (d > 19) return ByColumn(kMissLong, v);
      if (d >= 11) return ByColumn(kMissMid, v);
      return MissClose(v);
    case PlayVariant::ShootFoul:
      return ByColumn(kShootFoul, v);
    case PlayVariant::Block:
      return ByColumn(kBlock, v);
    case PlayVariant::NonShootFoul:
      return ByColumn(kNonShootFoul, v);
    case PlayVariant::Pass:
      return ByColumn(kPass, v);
    case PlayVariant::Pass2:
      return Pass2Phrase(v);
    case PlayVariant::Travel:
      return ByColumn(kTravel, v);
  }
  return "";
}

std::string BuildPlayText(const Game& game, int distance, PlayVariant variant, int v) {
  std::string text;
  if (variant == PlayVariant::Pass2) {
    text = game.Offense().CourtName(game.Passer);
    text += Pass2Phrase(v);
  } else if (IsCharge(variant, v)) {
    text = "knocks over the defender. ";
    text += game.Defense().CourtName(game.BallPos);
    text += " takes the Charge!";
  } else {
    text = PlayTableText(variant, distance, v);
  }
  return text;
}

}  // namespace courtmere
