#include "actions.h"
#include "arguments.h"
#include "commands.h"

namespace Qv {

namespace {

ExitStatus listActions(ItemArguments const& options, Session const& /*session*/, Output& output) {
  Json actions = Json::array();
  for (OfferedAction const& action : getActions(findItems(options).front()))
    actions.push_back({{"name", action.name},
                       {"display", action.display},
                       {"valid", action.valid},
                       {"dynamicState", action.state},
                       {"options", action.options}});
  output.printList("actions", actions, {"name", "valid", "dynamicState"});
  return Success;
}

} // namespace

void addActionsCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("actions", "List the actions for an item", &listActions);
  addScheme(program, command, options)->required();
  addPath(command, options);
}

} // namespace Qv
