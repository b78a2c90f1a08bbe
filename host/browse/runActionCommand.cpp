#include "actions.h"
#include "arguments.h"
#include "commands.h"

namespace Qv {

namespace {

struct Options {
  std::string action;
  ItemArguments items;
};

ExitStatus runAction(Options const& options, Session const& /*session*/, Output& output) {
  Json opened = Json::array();
  for (RCShdPtr<BrBrowsable> const& item : findItems(options.items))
    for (auto const& [view, newWindow, flag] : performAction(options.action, item))
      opened.push_back({{"view", view}, {"newWindow", newWindow}, {"flag", flag}});
  output.printList("opened", opened, {"view", "newWindow", "flag"});
  return Success;
}

} // namespace

void addRunActionCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("run-action", "Perform an action on items", &runAction);
  command.add_option("NAME", options.action, "The name of the action")->required();
  addScheme(program, command, options.items)->required();
  addPaths(command, options.items);
}

} // namespace Qv
