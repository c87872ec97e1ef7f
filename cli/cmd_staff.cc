// courtmere-cli staff: the user's staff (his assistant coaches with their
// Ids, skills and roles, his head scout and head trainer), and `staff roles`,
// which names the offence and defence coaches as the Change Roles screen does.
#include <fmt/format.h>

#include <optional>

#include "cli_context.h"
#include "screens/coach_roles.h"
#include "screens/coaching_staff.h"
#include "text_table.h"

namespace courtmere::cli {

namespace {

struct RoleOptions {
  std::optional<int> offence;
  std::optional<int> defence;
  std::optional<int> recruiting;
};

void PrintCoaches(Store& store, const std::string& school) {
  const CoachingStaff staff = LoadCoachingStaff(store, school);
  fmt::print("{}\n", staff.Caption);
  TextTable table;
  table.AddColumn("Id", "", TextTable::kRight);
  for (size_t i = 0; i < kStaffColumns.size(); ++i) {
    const bool number = i == 1 || i >= 11;
    table.AddColumn(kStaffColumns[i], "", number ? TextTable::kRight : TextTable::kLeft);
  }
  for (const StaffRow& r : staff.Rows) {
    std::vector<std::string> cells = {std::to_string(r.CoachId)};
    cells.insert(cells.end(), r.Cells.begin(), r.Cells.end());
    table.AddRow(std::move(cells));
  }
  fmt::print("{}", table.Render());
}

// The head scout's and the head trainer's names, one line each.
void PrintPost(Store& store, const std::string& school, const char* table, const char* title) {
  const std::optional<std::string> name =
      store.ScalarText(fmt::format("SELECT Name FROM {} WHERE Team = ?", table), school);
  fmt::print("{}: {}\n", title, name.value_or("none"));
}

void RunStaff(CliContext& context) {
  Session& session = context.StartSession();
  const std::string school = RequireDynasty(session);
  Store& store = session.Db();
  PrintCoaches(store, school);
  fmt::print("\n");
  PrintPost(store, school, "Scout", "Head Scout");
  PrintPost(store, school, "Trainer", "Head Trainer");
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
}

}  // namespace courtmere::cli
