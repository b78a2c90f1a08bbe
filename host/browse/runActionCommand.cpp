#include "actions.h"
#include "arguments.h"
#include "commands.h"

namespace Qv {

namespace {

struct Options {
  std::string action;
  std::string scheme;
  std::string path;
};

ExitStatus runAction(Options const& options, Output& output) {
  Json opened = Json::array();
  for (auto const& [view, newWindow, flag] :
       performAction(options.action, findItem(options.scheme, options.path)))
    opened.push_back({{"view", view}, {"newWindow", newWindow}, {"flag", flag}});
  output.printList(opened, {"Opened view", "In", "Flag"}, [](Json const& view) -> Output::Row {
    return {view["view"], view["newWindow"] ? "new window" : "window",
            view["newWindow"] ? "" : view["flag"].dump()};
  });
  return Success;
}

} // namespace

void addRunActionCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("run-action", "Perform an action on an item", &runAction);
  command.add_option("NAME", options.action, "The name of the action")->required();
  addScheme(command, options.scheme)->required();
  addPath(command, options.path)->required();
}

} // namespace Qv
