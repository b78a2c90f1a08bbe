#include "actions.h"
#include "arguments.h"
#include "commands.h"

namespace Qv {

namespace {

struct Options {
  std::string scheme;
  std::string path;
};

ExitStatus listActions(Options const& options, Output& output) {
  Json actions = Json::array();
  for (OfferedAction const& action : getActions(findItem(options.scheme, options.path)))
    actions.push_back({{"name", action.name},
                       {"display", action.display},
                       {"valid", action.valid},
                       {"dynamicState", action.state},
                       {"options", action.options}});
  output.printList(
      actions, {"Action", "Valid", "Dynamic state"}, [](Json const& action) -> Output::Row {
        return {action["name"], yesOrNo(action["valid"]), action["dynamicState"].dump()};
      });
  return Success;
}

} // namespace

void addActionsCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("actions", "List the actions for an item", &listActions);
  addScheme(command, options.scheme)->required();
  addPath(command, options.path);
}

} // namespace Qv
