// courtmere-cli recruit: the operations of the recruiting screens on one
// recruit (card, add, remove, rank, bid, clear, offer, rescind). Each answers
// Yes to the screen's question and prints its message; a refusal prints the
// program's message, exits with status 2 and writes nothing. Each operation
// is one transaction.
//
// Design decision: each command is a new run of the program, so the period
// is the one a loaded dynasty stands in (worked out from the week).
#include <fmt/format.h>

#include <functional>

#include "cli_context.h"
#include "recruiting/recruit_list.h"
#include "recruiting/recruit_points.h"
#include "recruiting/recruit_ranking.h"
#include "screens/display_format.h"
#include "screens/recruit_actions.h"
#include "screens/recruit_card.h"
#include "store/menu_gate.h"

namespace courtmere::cli {

namespace {

void RequireRecruitingStage(Session& session) {
  if (session.config.Stage == kStageSeason) return;
  session.ui.Message(
      fmt::format("Recruits can only be worked on in the stage Season; the dynasty stands in {}.",
                  session.config.Stage));
  throw Refusal{};
}

// Runs an operation in one transaction, kept only when it was done.
void Operate(CliContext& context, const std::function<RecruitReply(Session&)>& operation) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  MenuGate(session);
  RequireRecruitingStage(session);
  Store::Transaction tx(session.Db());
  const RecruitReply reply = operation(session);
  if (!reply.Done) {
    if (!reply.Message.empty()) session.ui.Message(reply.Message);
    throw Refusal{};
  }
  tx.Commit();
  if (!reply.Message.empty()) session.ui.Message(reply.Message);
}

std::string Name(Session& session, int id) {
  return RecruitName(session, id).value_or(std::to_string(id));
}

void PrintCard(CliContext& context, int id) {
  Session& session = context.StartSession();
  RequireDynasty(session);
  MenuGate(session);
  const std::optional<RecruitCard> card = LoadRecruitCard(session, id);
  if (!card) {
    session.ui.Message(fmt::format("There is no recruit with the id {}.", id));
    throw Refusal{};
  }
  const RecruitCard& c = *card;
  fmt::print("{} ({}), {}\n", c.Name, c.Id, c.Position);
  fmt::print("Home Town: {}\n{} {}\nHeight: {}\n", c.HomeTown, c.SchoolLabel, c.School, c.Height);
  for (const auto& [label, grade] : c.Grades) fmt::print("  {:<18} {}\n", label, grade);
  fmt::print("Homesick: {}  Play for a winner: {}\n", c.Homesick, c.PlayWinner);
  fmt::print("PPG {}  APG {}  RPG {}  TOs {}  SPG {}  GPA {:.2f}\n", FormatOneDecimal(c.PPG),
             FormatOneDecimal(c.APG), FormatOneDecimal(c.RPG), FormatOneDecimal(c.TOs),
             FormatOneDecimal(c.SPG), c.GPA);
  std::string schools;
  for (const std::string& s : c.Schools) schools += (schools.empty() ? "" : ", ") + s;
  fmt::print("Schools: {}\n", schools);
  if (!c.PosRank.empty()) fmt::print("{} {}\n", c.PosRank, c.Position);
  if (!c.Top50Rank.empty()) fmt::print("{}\n", c.Top50Rank);
  if (!c.TeamChoice.empty()) fmt::print("Signed with: {}\n", c.TeamChoice);
  fmt::print("Report: {}\n", c.ScoutingReport);
}

RecruitReply Bid(Session& session, int id, const std::string& action, int points) {
  RecruitReply reply = BidOnRecruit(session, PeriodAfterLoad(session.config), id, action, points);
  if (reply.Done) {
    reply.Message = fmt::format("{} for {}: {} point(s) bid; {} point(s) left this week.", action,
                                Name(session, id), points, UserPointsAvail(session));
  }
  return reply;
}

RecruitReply Rank(Session& session, int id, int rank) {
  if (!UserRecruitRow(session, id)) {
    return RecruitReply::Refused("That recruit is not on your list of recruits.");
  }
  RecruitReply reply = RankRecruits(session, {{id, rank}});
  if (reply.Done) reply.Message = fmt::format("{} is ranked No. {}.", Name(session, id), rank);
  return reply;
}

// A reply that names the recruit when the operation itself says nothing.
RecruitReply Told(Session& session, int id, RecruitReply reply, const char* what) {
  if (reply.Done && reply.Message.empty())
    reply.Message = fmt::format(fmt::runtime(what), Name(session, id));
  return reply;
}

struct RecruitArgs {
  int id = 0;
  int number = 0;
  std::string action;
};

CLI::App* IdCommand(CLI::App& parent, const char* name, const char* help, RecruitArgs& args) {
  CLI::App* cmd = parent.add_subcommand(name, help);
  cmd->add_option("ID", args.id, "The recruit's id (see recruits)")->required();
  return cmd;
}

}  // namespace

void AddRecruitCommand(CLI::App& app, CliContext& context) {
  auto a = std::make_shared<RecruitArgs>();
  CLI::App* recruit =
      app.add_subcommand("recruit", "Work on one recruit as the recruiting screens do");
  recruit->require_subcommand(1);
  IdCommand(*recruit, "card", "Show the recruit's card", *a)->callback([&context, a] {
    PrintCard(context, a->id);
  });
  IdCommand(*recruit, "add", "Add the recruit to your list (at most five)", *a)
      ->callback(
          [&context, a] { Operate(context, [a](Session& s) { return AskAddRecruit(s, a->id); }); });
  IdCommand(*recruit, "remove", "Remove the recruit from your list; his points are lost", *a)
      ->callback([&context, a] {
        Operate(context, [a](Session& s) {
          const std::string name = Name(s, a->id);
          RecruitReply reply = AskRemoveRecruit(s, a->id);
          if (reply.Done) reply.Message = name + " has been removed from your list of recruits.";
          return reply;
        });
      });
  CLI::App* rank = IdCommand(*recruit, "rank", "Rank the recruit 1 to 5 on your list", *a);
  rank->add_option("N", a->number, "The rank, 1 to 5")->required();
  rank->callback(
      [&context, a] { Operate(context, [a](Session& s) { return Rank(s, a->id, a->number); }); });
  CLI::App* bid = IdCommand(*recruit, "bid", "This week's action on the recruit with a bid", *a);
  bid->add_option("ACTION", a->action, "Call, Assistant, Visit or CampusVisit")->required();
  bid->add_option("POINTS", a->number, "The points bid")->required();
  bid->callback([&context, a] {
    Operate(context, [a](Session& s) { return Bid(s, a->id, a->action, a->number); });
  });
  IdCommand(*recruit, "clear", "Clear this week's decision on the recruit", *a)
      ->callback([&context, a] {
        Operate(context, [a](Session& s) {
          return Told(s, a->id, AskClearDecision(s, a->id),
                      "This week's recruiting decision for {} has been cleared.");
        });
      });
  IdCommand(*recruit, "offer", "Offer the recruit a scholarship", *a)->callback([&context, a] {
    Operate(context, [a](Session& s) {
      return Told(s, a->id, AskOfferScholarship(s, a->id), "{} has been offered a scholarship.");
    });
  });
  IdCommand(*recruit, "rescind", "Rescind the recruit's scholarship", *a)->callback([&context, a] {
    Operate(context, [a](Session& s) {
      return Told(s, a->id, AskRescindScholarship(s, a->id),
                  "The scholarship to {} has been rescinded.");
    });
  });
}

}  // namespace courtmere::cli
