// courtmere-cli staff: the user's staff (his assistant coaches with their
// Ids, skills and roles, his head scout and head trainer) and the candidates
// looking at his school; `staff fire ID` and `staff hire ID` (a coach, or with
// --post the scout or the trainer) as the hire screens do, answering Yes to
// their questions; and `staff roles`, which names the offence and defence
// coaches as the Change Roles screen does.
#include <fmt/format.h>

#include <map>
#include <optional>

#include "career/staff_market.h"
#include "cli_context.h"
#include "screens/coach_roles.h"
#include "screens/coaching_staff.h"
#include "screens/staff_post.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct RoleOptions {
  std::optional<int> offence;
  std::optional<int> defence;
  std::optional<int> recruiting;
};

void PrintCoachRows(const std::vector<StaffRow>& rows) {
  TextTable table;
  table.AddColumn("Id", "", TextTable::kRight);
  for (size_t i = 0; i < kStaffColumns.size(); ++i) {
    const bool number = i == 1 || i >= 11;
    table.AddColumn(kStaffColumns[i], "", number ? TextTable::kRight : TextTable::kLeft);
  }
  for (const StaffRow& r : rows) {
    std::vector<std::string> cells = {std::to_string(r.CoachId)};
    cells.insert(cells.end(), r.Cells.begin(), r.Cells.end());
    table.AddRow(std::move(cells));
  }
  fmt::print("{}", table.Render());
}

void PrintPostRows(const PostView& view, const std::vector<PostRow>& rows) {
  TextTable table;
  table.AddColumn("Id", "", TextTable::kRight);
  for (size_t i = 0; i < view.Columns.size(); ++i) {
    table.AddColumn(view.Columns[i], "", i == 1 ? TextTable::kRight : TextTable::kLeft);
  }
  for (const PostRow& r : rows) {
    std::vector<std::string> cells = {std::to_string(r.Id)};
    cells.insert(cells.end(), r.Cells.begin(), r.Cells.end());
    table.AddRow(std::move(cells));
  }
  fmt::print("{}", table.Render());
}

void PrintPost(Store& store, const std::string& school, Post post) {
  const PostView view = LoadPostView(store, post, school);
  fmt::print("\n{}\n", view.Caption);
  PrintPostRows(view, view.Staff);
  if (view.Candidates.empty()) return;
  fmt::print("Candidates\n");
  PrintPostRows(view, view.Candidates);
}

void RunStaff(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  Store& store = session.Db();
  const CoachingStaff staff = LoadCoachingStaff(store, school);
  fmt::print("{}\n", staff.Caption);
  PrintCoachRows(staff.Rows);
  const std::vector<StaffRow> candidates = LoadCoachCandidates(store, school);
  if (!candidates.empty()) {
    fmt::print("Candidates\n");
    PrintCoachRows(candidates);
  }
  PrintPost(store, school, Post::kScout);
  PrintPost(store, school, Post::kTrainer);
}

struct MarketOptions {
  int id = 0;
  Post post = Post::kCoach;
};

// Hiring and firing belong to the staff market, open in the offseason only.
Session& StartMarket(CliContext& context, std::string& school) {
  Session& session = context.StartSession();
  school = RequireDynasty(session);
  if (const auto closed = HiringClosed(session)) Refuse(*closed);
  return session;
}

// What the hire screen would say on leaving: the post short of men or the
// roles to set again.
void PrintOutstanding(Session& session, Post post, const std::string& school) {
  if (const auto note = StaffIncomplete(session.Db(), post, school)) fmt::print("{}\n", *note);
}

void RunFire(CliContext& context, const MarketOptions& o) {
  std::string school;
  Session& session = StartMarket(context, school);
  if (!OnStaff(session.Db(), o.post, o.id, school)) {
    Refuse(fmt::format("{} {} is not on the staff of {}.", PostTable(o.post), o.id, school));
  }
  if (!FireStaff(session, o.post, o.id)) throw Refusal{};
  fmt::print("{} {} fired.\n", PostTable(o.post), o.id);
  PrintOutstanding(session, o.post, school);
}

void RunHire(CliContext& context, const MarketOptions& o) {
  std::string school;
  Session& session = StartMarket(context, school);
  if (!IsCandidate(session.Db(), o.post, o.id, school)) {
    Refuse(fmt::format("{} {} is not looking at {}.", PostTable(o.post), o.id, school));
  }
  if (!HireStaff(session, o.post, o.id)) throw Refusal{};
  fmt::print("{} {} hired.\n", PostTable(o.post), o.id);
  PrintOutstanding(session, o.post, school);
}

void AddMarketCommand(CLI::App& staff, CliContext& context, const char* name, const char* about,
                      void (*run)(CliContext&, const MarketOptions&)) {
  auto options = std::make_shared<MarketOptions>();
  CLI::App* cmd = staff.add_subcommand(name, about);
  cmd->add_option("id", options->id, "The man's Id, as staff lists it")->required();
  const std::map<std::string, Post> posts = {
      {"coach", Post::kCoach}, {"scout", Post::kScout}, {"trainer", Post::kTrainer}};
  cmd->add_option("--post", options->post, "coach (the default), scout or trainer")
      ->transform(CLI::CheckedTransformer(posts, CLI::ignore_case));
  cmd->callback([&context, options, run] { run(context, *options); });
}

void Assign(Session& session, const std::string& school, CoachRoles& roles,
            std::optional<int> coach, Role role) {
  if (!coach || AssignRole(roles, *coach, role)) return;
  session.ui.Message(fmt::format("Coach {} is not on the staff of {}.", *coach, school));
  throw Refusal{};
}

// Design decision: the roles are named in the order recruiting, offence,
// defence, and the submit's checks judge the result, so naming one coach for
// both game roles is refused as the screen refuses it.
void RunRoles(CliContext& context, const RoleOptions& o) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  CoachRoles roles = LoadCoachRoles(session.Db(), school);
  if (o.offence || o.defence || o.recruiting) {
    Assign(session, school, roles, o.recruiting, Role::kRecruiting);
    Assign(session, school, roles, o.offence, Role::kOffence);
    Assign(session, school, roles, o.defence, Role::kDefence);
    if (!SubmitCoachRoles(session, roles)) throw Refusal{};
    roles = LoadCoachRoles(session.Db(), school);
  }
  fmt::print("{}\n", roles.Caption);
  TextTable table;
  table.AddColumn("Id", "", TextTable::kRight);
  table.AddColumn("Coach", "", TextTable::kLeft);
  table.AddColumn("Role", "", TextTable::kLeft);
  for (const RoleLine& l : roles.Lines) {
    const char* role = l.Off == 1 ? "Offense" : l.Def == 1 ? "Defense" : "Recruiting";
    table.AddRow({std::to_string(l.CoachId), l.Name, role});
  }
  fmt::print("{}", table.Render());
}

}  // namespace

void AddStaffCommand(CLI::App& app, CliContext& context) {
  CLI::App* cmd = app.add_subcommand("staff", "The user's staff: coaches, head scout, trainer");
  cmd->callback([&context, cmd] {
    if (cmd->get_subcommands().empty()) RunStaff(context);
  });
  auto roles = std::make_shared<RoleOptions>();
  CLI::App* set = cmd->add_subcommand(
      "roles", "Show the coaching roles, or name the offence and defence coaches by Id");
  set->add_option("--offence", roles->offence, "The coach who runs the offence");
  set->add_option("--defence", roles->defence, "The coach who runs the defence");
  set->add_option("--recruiting", roles->recruiting, "A coach who only recruits");
  set->callback([&context, roles] { RunRoles(context, *roles); });
  AddMarketCommand(*cmd, context, "fire",
                   "Fire a man of the staff (one must be looking to replace him)", RunFire);
  AddMarketCommand(*cmd, context, "hire", "Hire a candidate looking at the school", RunHire);
}

}  // namespace courtmere::cli
