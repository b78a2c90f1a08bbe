#include "arguments.h"
#include "commands.h"
#include "dragging.h"
#include "safeText.h"

#include <sstream>

namespace Qv {

namespace {

struct Options {
  std::string scheme;
  std::vector<std::string> paths;
};

Json toJson(std::string const& path, Drag const& drag) {
  if (drag.handler.empty())
    return {{"path", path}, {"handler", nullptr}, {"accepted", false}};
  Json json = {{"path", path},    {"handler", drag.handler}, {"accepted", drag.accepted},
               {"cut", drag.cut}, {"copy", drag.copy},       {"drop", drag.drop}};
  if (drag.accepted)
    json["items"] = Json::array();
  for (Drag::Arrival const& arrival : drag.arrivals)
    json["items"].push_back({{"arrives", arrival.what}, {"dump", arrival.dump}});
  return json;
}

void print(std::string const& path, Drag const& drag, Output& output) {
  output.print("\"{}\"\n", escaped(path));
  if (drag.handler.empty())
    return output.print("  handler: none\n");
  output.print("  handler: {}\n  accepted: {}, cut: {}, copy: {}, drop: {}\n", drag.handler,
               yesOrNo(drag.accepted), yesOrNo(drag.cut), yesOrNo(drag.copy), yesOrNo(drag.drop));
  if (drag.accepted && drag.arrivals.empty())
    output.print("  arrives: nothing\n");
  for (Drag::Arrival const& arrival : drag.arrivals) {
    output.print("  arrives: {}\n", escaped(arrival.what));
    std::istringstream lines(arrival.dump);
    for (std::string line; std::getline(lines, line);)
      output.print("  {}\n", escaped(line));
  }
}

ExitStatus dragItems(Options const& options, Output& output) {
  Json drags = Json::array();
  std::vector<std::string> refused;
  // All paths are looked up before the first item is dragged.
  for (RCShdPtr<BrBrowsable> const& item : findItems(options.scheme, options.paths)) {
    Drag const dragged = drag(item);
    std::string const path = item->getPath();
    if (!dragged.accepted)
      refused.push_back("\"" + path + "\"");
    if (output.isJson())
      drags.push_back(toJson(path, dragged));
    else
      print(path, dragged, output);
  }
  if (output.isJson())
    output.printJson(drags);
  if (refused.empty())
    return Success;
  output.finish();
  output.printProblem(fmt::format("cannot be dragged out of the scheme \"{}\": {}", options.scheme,
                                  fmt::join(refused, ", ")));
  return Failure;
}

} // namespace

void addDragCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("drag", "Drag items out of the browser", &dragItems);
  addScheme(command, options.scheme)->required();
  addPaths(command, options.paths);
}

} // namespace Qv
