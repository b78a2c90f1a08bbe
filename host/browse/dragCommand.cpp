#include "arguments.h"
#include "commands.h"
#include "dragging.h"
#include "values.h"

#include <sstream>

namespace Qv {

namespace {

struct Options {
  ItemArguments items;
  bool dump = false;
};

ExitStatus dragItems(Options const& options, Session const& /*session*/, Output& output) {
  Json drags = Json::array();
  std::vector<std::string> refused;
  // All paths are looked up before the first item is dragged.
  for (RCShdPtr<BrBrowsable> const& item : findItems(options.items)) {
    Drag const dragged = drag(item);
    Json& json = drags.emplace_back(toJson(*item));
    if (options.dump)
      json["dump"] = Json::array();
    json.update({{"handler", dragged.handler.empty() ? Json(nullptr) : Json(dragged.handler)},
                 {"accepted", dragged.accepted},
                 {"cut", dragged.cut},
                 {"copy", dragged.copy},
                 {"drop", dragged.drop},
                 {"arrives", Json::array()}});
    for (auto const& [what, dump, view] : dragged.arrivals) {
      json["arrives"].push_back(what);
      std::istringstream lines(dump);
      for (std::string line; options.dump && std::getline(lines, line);)
        json["dump"].push_back(line);
    }
    if (!dragged.accepted)
      refused.push_back("\"" + item->getPath() + "\"");
  }
  Output::Keys columns = {"path", "handler", "accepted", "cut", "copy", "drop", "arrives"};
  if (options.dump)
    columns.push_back("dump");
  output.printList("items", drags, columns);
  if (refused.empty())
    return Success;
  output.finish();
  output.printProblem(fmt::format("cannot be dragged out of the scheme \"{}\": {}",
                                  *options.items.scheme, fmt::join(refused, ", ")));
  return Failure;
}

} // namespace

void addDragCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("drag", "Drag items out of the browser", &dragItems);
  addScheme(program, command, options.items)->required();
  addPaths(command, options.items);
  command.add_flag("--dump", options.dump, "Show what the dropped items tell of themselves");
}

} // namespace Qv
